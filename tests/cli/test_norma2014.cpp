// The rule set ABNT NBR 6118:2014 as the command line gives it: the published
// figures of a textbook's intermediate column, the refusals, both directions of load
// cases with end moments, the search, and the project file that keeps it all.

#include "cli/cli.h"

#include "support/tolerance.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

nlohmann::json run(std::vector<std::string> args)
{
    args.insert(args.begin(), {"--sem-padrao", "--json"});
    std::ostringstream out, err;
    EXPECT_EQ(runCli(args, out, err), 0) << err.str();
    return nlohmann::json::parse(out.str());
}

// 20 x 50 cm (b = 50, h = 20: the moment of the window bends the 20 cm side), d' = 4 cm,
// 4 + 4 bars in two rows, Nd = 1400 kN, no first-order moments, C30, γc = 1.4, CA-50,
// ℓe = length; the cover is kept ("2 - Ignorar") so that d' stays at 4 cm.
std::vector<std::string> textbookColumn(const char* length)
{
    return {"--norma",          "2014",        "--set", "Text1=50",     "--set", "Text2=20",   "--set",
            "Text3=4",          "--set",       "Text4=4", "--set",      "Text5=2", "--set",    "Text16=1400",
            "--set",            "Text17=0",    "--set", "Text18=30",    "--set", "Text21=1.4", "--set",
            std::string("Text23=") + length, "--cobrimento", "2"};
}

} // namespace

TEST(Norma2014, TheTextbookIntermediateColumn)
{
    // Published (a Brazilian textbook's intermediate column, kN and cm): λ = 19.4 and
    // 48.4; M1d,min = 4200 and 2940 kN·cm; e2 = 1.70 cm; M2d = 2380; Md,tot = 5320;
    // ω = 0.22 from a chart, As ≈ 10.8 cm² (strain compatibility: 10.38). With ℓe =
    // 480 cm: λ = 83.0, Md,tot = 9940 (the book rounds e2 = 5.00 along the way: 9932
    // unrounded), As ≈ 31.0. Tolerances: half of the last printed digit, the areas 5 %
    // (a chart's reading).
    const struct {
        const char* length;
        double lambdaH, lambdaB, m1dMinH, m2d, mdTot, mdTotTolerance, asNec;
    } rows[] = {
        {"280", 48.4, 19.4, 2940, 2380, 5320, 5, 10.8},
        {"480", 83.0, 33.2, 2940, 6990, 9940, 10, 31.0},
    };
    for (const auto& r : rows) {
        const nlohmann::json d = run(textbookColumn(r.length));
        const auto& n = d.at("norma2014");
        const auto& h = n.at("direcoes").at("h");
        const auto& b = n.at("direcoes").at("b");
        EXPECT_EQ(n.at("gamaN"), 1.0);
        EXPECT_NEAR(h.at("lambda").get<double>(), r.lambdaH, 0.05) << r.length;
        EXPECT_NEAR(b.at("lambda").get<double>(), r.lambdaB, 0.05) << r.length;
        EXPECT_NEAR(h.at("M1dMin").get<double>() / 100, r.m1dMinH, 0.5) << r.length;
        EXPECT_NEAR(b.at("M1dMin").get<double>() / 100, 4200, 0.5) << r.length;
        EXPECT_TRUE(h.at("segundaOrdem").get<bool>()) << r.length;
        EXPECT_NEAR(h.at("M2d").get<double>() / 100, r.m2d, r.mdTotTolerance) << r.length;
        EXPECT_NEAR(h.at("MdTot").get<double>() / 100, r.mdTot, r.mdTotTolerance) << r.length;
        EXPECT_EQ(n.at("governa"), "h") << r.length;
        EXPECT_NEAR_REL(n.at("AsNec").get<double>(), r.asNec, 0.05);
        // 0.15 Nd/fyd = 0.15 · 1400 / 43.48 = 4.83 cm², above 0.4 % of 1000 cm².
        EXPECT_NEAR(n.at("AsMin").get<double>(), 4.83, 0.005);
        EXPECT_EQ(n.at("AsMax"), 40.0);
        // Every message of the run cites 2014.
        for (const auto& m : d.at("mensagens"))
            if (m.contains("item") && !m.at("item").get<std::string>().empty()) {
                EXPECT_NE(m.at("item").get<std::string>().find("ABNT NBR 6118:2014"), std::string::npos)
                    << m.at("item");
            }
    }
}

TEST(Norma2014, RefusedWhereTheStandardColumnDoesNotApply)
{
    const struct {
        const char* name;
        std::vector<std::string> change;
        const char* message;
    } rows[] = {
        {"a side below 14 cm", {"--set", "Text1=13", "--set", "Text2=40"}, "Menor dimensão da seção = 13 cm"},
        {"an area below 360 cm²", {"--set", "Text1=15", "--set", "Text2=20"}, "360"},
        {"λ above 90", {"--set", "Text23=800"}, "λ = 138.4"},
    };
    for (const auto& r : rows) {
        std::vector<std::string> args = textbookColumn("280");
        args.insert(args.end(), r.change.begin(), r.change.end());
        const nlohmann::json d = run(args);
        EXPECT_EQ(d.at("Erros"), "erro") << r.name;
        ASSERT_TRUE(d.at("norma2014").contains("recusa")) << r.name;
        EXPECT_NE(d.at("norma2014").at("recusa").get<std::string>().find(r.message), std::string::npos)
            << r.name << ": " << d.at("norma2014").at("recusa");
        EXPECT_TRUE(d.at("caixas").at("Text11").get<std::string>().empty()) << r.name;
    }
}

TEST(Norma2014, BothDirectionsOfEveryCaseDecide)
{
    // A corner column: the second case bends the 50 cm side hard. Its area, not the
    // first case's, is detailed, and the direction of b governs.
    const nlohmann::json d =
        run({"--norma", "2014", "--set", "Text1=50", "--set", "Text2=20", "--set", "Text18=30", "--set", "Text21=1.4",
             "--caso", "gravidade;1400;0;0;0;0", "--caso", "vento;800;1000;-1000;40000;-30000"});
    const auto& n = d.at("norma2014");
    EXPECT_EQ(n.at("caso"), "vento");
    EXPECT_EQ(n.at("governa"), "b");
    // MA = 40000, MB = −30000 tensions the other face: αb = 0.6 − 0.4 · 3/4 = 0.3 → 0.4.
    EXPECT_NEAR(n.at("direcoes").at("b").at("alfaB").get<double>(), 0.4, 1e-12);
    ASSERT_EQ(d.at("casos").size(), 2u);
    for (const auto& c : d.at("casos"))
        if (d.at("Erros") == "Ok") {
            EXPECT_LE(c.at("utilizacao").get<double>(), 1) << c.at("nome");
        }
}

TEST(Norma2014, TheSearchKeepsOnlyWhatCarriesBothDirections)
{
    const nlohmann::json d = run([] {
        auto a = textbookColumn("280");
        a.push_back("--melhor");
        return a;
    }());
    ASSERT_FALSE(d.at("solucoes").empty());
    EXPECT_EQ(d.at("Erros"), "Ok");
    for (const char* direction : {"h", "b"})
        EXPECT_LE(d.at("norma2014").at("direcoes").at(direction).at("utilizacao").get<double>(), 1) << direction;
}

TEST(Norma2014, AProjectKeepsItsRuleSetAndA2001ProjectIsAsItWas)
{
    const auto dir = std::filesystem::temp_directory_path() / "pilarix_norma2014";
    std::filesystem::create_directories(dir);
    const std::string a = (dir / "a.txt").string(), b = (dir / "b.txt").string(), old = (dir / "old.txt").string();
    auto args = textbookColumn("280");
    args.insert(args.end(), {"--set", "LeB=400", "--set", "MyTopo=2500", "--set", "SegundaOrdem=rigidez",
                             "--caso", "1;1400;0;0;2500;0", "--caso", "vento;900;300;-200;1000;500", "--salvar", a});
    const nlohmann::json first = run(args);
    const nlohmann::json again = run({a, "--cobrimento", "2", "--salvar", b});
    EXPECT_EQ(first.at("Erros"), again.at("Erros"));
    EXPECT_EQ(first.at("norma2014"), again.at("norma2014"));
    std::ifstream fa(a), fb(b);
    const std::string ta((std::istreambuf_iterator<char>(fa)), {}), tb((std::istreambuf_iterator<char>(fb)), {});
    EXPECT_EQ(ta, tb);
    for (const char* record : {"Norma;2014", "LeB;400", "SegundaOrdem;rigidez", "Caso;vento;900;300;-200;1000;500"})
        EXPECT_NE(ta.find(record), std::string::npos) << record;
    // A 2001 project writes none of it.
    run({"--salvar", old});
    std::ifstream fo(old);
    const std::string to((std::istreambuf_iterator<char>(fo)), {});
    EXPECT_EQ(to.find("Norma"), std::string::npos);
    std::filesystem::remove_all(dir);
}

TEST(Norma2014, ACornerColumnIsCheckedWithBothMomentsTogether)
{
    // 30 x 30, ℓe 280 both ways, 1200 kN with 40 kN·m at the top in each direction:
    // the points of the top, the base and the intermediate section, the envelope of
    // the minimum moments, and "Ok" only with all of them carried.
    const nlohmann::json d =
        run({"--norma", "2014", "--set", "Text1=30", "--set", "Text2=30", "--set", "Text4=3", "--set", "Text5=3",
             "--set", "Text18=30", "--set", "Text21=1.4", "--set", "Text23=280", "--set", "Text16=1200", "--set",
             "Text17=4000", "--set", "MdBase=-2000", "--set", "MyTopo=4000", "--set", "MyBase=-2000"});
    const auto& o = d.at("verificacaoObliqua");
    EXPECT_GE(o.at("contorno").size(), 72u);
    ASSERT_GE(o.at("pontos").size(), 2u);
    EXPECT_EQ(o.at("pontos")[0].at("secao"), "topo");
    EXPECT_EQ(o.at("pontos")[0].at("Mx"), 400000.0);
    EXPECT_EQ(o.at("pontos")[0].at("My"), 400000.0);
    double worst = 0;
    for (const auto& p : o.at("pontos"))
        worst = std::max(worst, p.at("utilizacao").get<double>());
    EXPECT_EQ(o.at("utilizacao").get<double>(), worst);
    const bool carried = worst <= 1 && o.at("envoltoriaMinima").at("dentro").get<bool>();
    if (d.at("Erros") == "Ok") {
        EXPECT_TRUE(carried);
    }
    // With My = 0 the check is the uniaxial one: the detailed section's M_Rd at N.
    const nlohmann::json u = run({"--norma", "2014", "--set", "Text1=30", "--set", "Text2=30", "--set", "Text4=3",
                                  "--set", "Text5=3", "--set", "Text16=1200", "--set", "Text17=4000", "--set",
                                  "Text23=100"});
    EXPECT_NEAR_REL(u.at("verificacaoObliqua").at("MRdxx").get<double>(), u.at("verificacao").at("MRd").get<double>(),
                    1e-6);
}
