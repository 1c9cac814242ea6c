// The command line: its arguments, its errors and the shape of its JSON.

#include "cli/cli.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

using namespace pilarix;

namespace {
struct CliRun {
    int status;
    std::string out, err;
};

CliRun runArgs(std::vector<std::string> args)
{
    std::ostringstream out, err;
    const int status = runCli(args, out, err);
    return {status, out.str(), err.str()};
}
} // namespace

TEST(Cli, BadArgumentsGiveOneLineAndStatus2)
{
    const std::vector<std::vector<std::string>> cases{
        {"--set", "Foo=1"},           {"--set", "Combo4=kn"},        {"--set", "Check1=5"},
        {"--set", "Option3=yes"},     {"--cobrimento", "3"},         {"--estribo", "7"},
        {"--set"},                    {"--bogus"},                   {"--set", "=3"},
        {"a.txt", "b.txt", "--salvar", "c.txt"}, {"--caso", "P1;400"},   {"--caso", "P,1;400;100"},
        {"--caso", "P1;4OO;100"},
    };
    for (const auto& args : cases) {
        const CliRun r = runArgs(args);
        EXPECT_EQ(r.status, 2) << args[0];
        EXPECT_TRUE(r.out.empty());
        EXPECT_EQ(r.err.rfind("pilarix-cli: ", 0), 0u) << r.err;
    }
}

TEST(Cli, JsonHoldsTheCorrectedInputsAndInternalValues)
{
    const CliRun r = runArgs({"--sem-padrao", "--set", "Text1=8", "--set", "Text4=9", "--json"});
    ASSERT_EQ(r.status, 0) << r.err;
    const auto doc = nlohmann::json::parse(r.out);
    ASSERT_TRUE(doc.contains("Erros"));
    ASSERT_TRUE(doc.contains("mensagens"));
    EXPECT_FALSE(doc.contains("solucoes"));
    EXPECT_EQ(doc["caixas"]["Text1"], "12");
    EXPECT_EQ(doc["caixas"]["Text7(1)"], "12,5");
    EXPECT_TRUE(doc["caixas"].contains("Text7(7).destaque"));
    const auto& e = doc["estado"];
    EXPECT_EQ(e["Base"], 12);
    EXPECT_EQ(e["Nd"], 40000);
    EXPECT_EQ(e["Md"], 1000000);
    EXPECT_EQ(e["Fck"], 200);
    EXPECT_EQ(e["Es"], 2100000);
    for (const char* field : {"AsNec", "Rho", "Zona", "SupH", "SupV", "FlagErro", "NSolucoes", "BetaX"})
        EXPECT_TRUE(e.contains(field)) << field;
}

TEST(Cli, NumbersReadBackExactly)
{
    const CliRun r = runArgs({"--sem-padrao", "--set", "Text16=333.3", "--json"});
    const auto doc = nlohmann::json::parse(r.out);
    EXPECT_EQ(doc["estado"]["Nd"].get<double>(), 333.3 * 100);
}

TEST(Cli, OptionTrueClearsItsGroupAndSetsAreAppliedInOrder)
{
    const CliRun r = runArgs({"--sem-padrao", "--set", "Option2=True", "--set", "Text18=30", "--set", "Text18=19", "--json"});
    ASSERT_EQ(r.status, 0);
    const auto doc = nlohmann::json::parse(r.out);
    EXPECT_EQ(doc["estado"]["Fck"], 190);
    EXPECT_EQ(doc["mensagens"][0]["mensagem"], "Fck = 19 , inferior a 20 Mpa (valor mínimo para pilares).");
}

TEST(Cli, AMissingProjectFileIsStatus2)
{
    const CliRun r = runArgs({"/nonexistent/dir/projeto.txt", "--json"});
    EXPECT_EQ(r.status, 2);
    EXPECT_FALSE(r.err.empty());
}

// ---- load cases and batches ----

TEST(Cli, CasesGiveOneObjectEachAndTheGoverningIsTheOneWithMostSteel)
{
    // The case needing the most steel governs wherever it stands in the list.
    for (const auto& order : std::vector<std::vector<std::string>>{{"A;400;10000", "B;200;15000", "C;600;4000"},
                                                                   {"B;200;15000", "C;600;4000", "A;400;10000"}}) {
        std::vector<std::string> args{"--sem-padrao", "--json"};
        for (const auto& c : order)
            args.insert(args.end(), {"--caso", c});
        const CliRun r = runArgs(args);
        ASSERT_EQ(r.status, 0) << r.err;
        const auto casos = nlohmann::json::parse(r.out)["casos"];
        ASSERT_EQ(casos.size(), 3u);
        for (const auto& c : casos)
            EXPECT_EQ(c["governa"], c["nome"] == "B") << c.dump();
        EXPECT_EQ(casos[0]["nome"], order[0].substr(0, 1));
    }
}

TEST(Cli, ABatchRunsEveryFileAsAloneAndGoesOnPastAnUnreadableOne)
{
    const auto dir = std::filesystem::temp_directory_path() / "pilarix-lote";
    std::filesystem::create_directories(dir);
    const std::string a = (dir / "a.txt").string(), b = (dir / "b.txt").string(), bad = (dir / "ruim.txt").string();
    ASSERT_EQ(runArgs({"--sem-padrao", "--salvar", a}).status, 0);
    ASSERT_EQ(runArgs({"--sem-padrao", "--set", "Text1=30", "--set", "Text16=900", "--salvar", b}).status, 0);
    std::ofstream(bad) << "lixo\n";

    const CliRun lote = runArgs({a, bad, b, "--json"});
    EXPECT_EQ(lote.status, 2);
    EXPECT_NE(lote.err.find("ruim.txt"), std::string::npos);
    std::istringstream linhas(lote.out);
    std::vector<nlohmann::json> docs;
    for (std::string l; std::getline(linhas, l);)
        docs.push_back(nlohmann::json::parse(l));
    ASSERT_EQ(docs.size(), 2u) << "one JSON line per readable file, in the order given";
    EXPECT_EQ(docs[0]["arquivo"], a);
    EXPECT_EQ(docs[1]["arquivo"], b);
    for (std::size_t i = 0; i < 2; ++i) {
        const auto alone = nlohmann::json::parse(runArgs({i == 0 ? a : b, "--json"}).out);
        EXPECT_EQ(docs[i]["estado"], alone["estado"]) << "the batch gives each file what it gives alone";
    }
    std::filesystem::remove_all(dir);
}

TEST(Cli, TheTextWritesForcesInTheUnitsTypedAndNamesTheGoverningCase)
{
    // The same column typed in kN / kN·cm and in tf / tf·m: the text gives each unit
    // with kN beside it, the same in both, and lists the cases with the governing one.
    struct Row {
        const char* name;
        std::vector<std::string> units, cases;
        const char* nSd;
        const char* governing;
    } rows[] = {
        {"kN", {"--set", "Combo4=KN", "--set", "Combo5=KN.cm"}, {"--caso", "topo;400;10000", "--caso", "vento;600;20000"},
         "N_Sd = 600.0 KN (600.0 kN), M_Sd = 20000 KN.cm (200.00 kN·m)", "Caso determinante: vento\n"},
        {"tf", {"--set", "Combo4=Tf", "--set", "Combo5=Tf.m"}, {"--caso", "topo;40;10", "--caso", "vento;60;20"},
         "N_Sd = 60.00 Tf (600.0 kN), M_Sd = 20.00 Tf.m (200.00 kN·m)", "Caso determinante: vento\n"},
        {"one case", {"--set", "Combo4=Tf", "--set", "Combo5=Tf.m", "--set", "Text16=60", "--set", "Text17=20"}, {},
         "N_Sd = 60.00 Tf (600.0 kN), M_Sd = 20.00 Tf.m (200.00 kN·m)", ""},
    };
    for (const auto& row : rows) {
        std::vector<std::string> args{"--sem-padrao", "--set", "Text3=4"};
        args.insert(args.end(), row.units.begin(), row.units.end());
        args.insert(args.end(), row.cases.begin(), row.cases.end());
        const CliRun r = runArgs(args);
        EXPECT_NE(r.out.find(row.nSd), std::string::npos) << row.name << "\n" << r.out;
        if (*row.governing) {
            EXPECT_NE(r.out.find(row.governing), std::string::npos) << row.name;
            EXPECT_NE(r.out.find("Caso topo: "), std::string::npos) << row.name;
        } else {
            EXPECT_EQ(r.out.find("Caso determinante"), std::string::npos) << row.name;
        }
    }
}
