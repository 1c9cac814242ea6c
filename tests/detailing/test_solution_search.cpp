// The best-solution search: the store, its order, the list of "Soluções", the
// stepping buttons, and searches whose chosen solution must calculate back to
// exactly the arrangement and weight of the list.

#include "cli/recording_dialogs.h"
#include "driver/program.h"
#include "input/number_text.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

using namespace pilarix;

namespace {

constexpr const char* kNenhum = "Nenhum arranjo de armaduras pode ser usado para os esforços plicados";

struct Fixture {
    RecordingDialogs dialogs;
    Program p{dialogs};
};

// A candidate as the driver leaves it when it has passed every check.
void store(Program& p, double peso, double nBase, int nAltura, double estribo, double dLinha)
{
    p.PesoLong = peso;
    p.nBase = nBase;
    p.nAltura = static_cast<std::int16_t>(nAltura);
    p.IndiceEstriboBusca = estribo;
    p.DiamEstribo = std::vector<double>{0.5, 0.63, 0.8, 1}[static_cast<std::size_t>(estribo) - 1];
    p.dLinha = dLinha;
    p.GuardaValores42();
}

std::string describe(const SolutionRow& s)
{
    return Str(s.peso) + " kg, " + Str(s.nBase) + " x " + Str(s.nAltura) + ", estribo " + Str(s.IndiceEstribo) + " ("
           + Str(s.DiamEstribo) + " cm), d' " + Str(s.dLinha);
}

std::vector<std::string> describe(const std::vector<SolutionRow>& rows)
{
    std::vector<std::string> out;
    for (const auto& r : rows)
        out.push_back(describe(r));
    return out;
}

int selectedRow(const Program& p)
{
    for (int i = 0; i < Form11Model::kRows; ++i)
        if (p.Form11.Rows[static_cast<std::size_t>(i)].Option.Value)
            return i + 1;
    return 0;
}

void setSection(Program& p, const char* b, const char* h, const char* nd, const char* md)
{
    p.Form1.Text1.Text = b;
    p.Form1.Text2.Text = h;
    p.Form1.Text16.Text = nd;
    p.Form1.Text17.Text = md;
}

} // namespace

TEST(SolutionSearch, StoreKeepsEachCandidateWithItsFinalDLinha)
{
    Fixture f;
    store(f.p, 24.5, 3, 5, 2, 4.13);
    store(f.p, 18, 2, 4, 4, 4.5);
    ASSERT_EQ(f.p.NSolucoes, 2);
    ASSERT_EQ(f.p.Solucoes.size(), 2u);
    EXPECT_EQ(describe(f.p.Solucoes[0]), "24.5 kg, 3 x 5, estribo 2 (0.63 cm), d' 4.13");
    EXPECT_EQ(describe(f.p.Solucoes[1]), "18 kg, 2 x 4, estribo 4 (1 cm), d' 4.5");
}

TEST(SolutionSearch, OrderIsAscendingByWeightAndStableForEqualWeights)
{
    struct Row {
        const char* name;
        std::vector<double> pesos;      // in the order of discovery
        std::vector<double> discovered; // the discovery position (1-based) of each ordered row
    };
    const std::vector<Row> rows{
        {"one solution", {7}, {1}},
        {"already ascending", {1, 2, 3}, {1, 2, 3}},
        {"descending", {3, 2, 1}, {3, 2, 1}},
        {"all equal keep their order", {5, 5, 5, 5}, {1, 2, 3, 4}},
        {"equal weights after lighter ones", {5, 3, 5, 3}, {2, 4, 1, 3}},
        {"equal weights interleaved", {2, 1, 2, 1, 2}, {2, 4, 1, 3, 5}},
        {"a heavier one between equals", {4, 9, 4, 9, 4}, {1, 3, 5, 2, 4}},
        {"weights equal to the cent but not beyond", {15.12, 15.119999, 15.12}, {2, 1, 3}},
    };
    for (const auto& r : rows) {
        Fixture f;
        for (std::size_t i = 0; i < r.pesos.size(); ++i)
            store(f.p, r.pesos[i], static_cast<double>(i + 1), 4, 1, 4);
        f.p.EscolheValores43();
        std::vector<double> got;
        for (const auto& s : f.p.Ordenadas)
            got.push_back(s.nBase);
        EXPECT_EQ(got, r.discovered) << r.name;
        EXPECT_EQ(f.p.Solucoes.size(), r.pesos.size()) << r.name << ": the input set stays as found";
    }
}

TEST(SolutionSearch, ListShowsAtMostFortyRows)
{
    struct Row {
        int stored;
        int shown;
    };
    const std::vector<Row> rows{{1, 1}, {2, 2}, {39, 39}, {40, 40}, {41, 40}, {120, 40}};
    for (const auto& r : rows) {
        Fixture f;
        // A longer list first: rows that the new store does not reach must be empty.
        for (int i = 0; i < 60; ++i)
            store(f.p, 1000 + i, 2, 4, 1, 4);
        f.p.EscolheValores43();
        f.p.ValoresnoForm1144();
        f.p.Solucoes.clear();
        f.p.NSolucoes = 0;

        for (int i = 0; i < r.stored; ++i)
            store(f.p, 10 + i, 2, 4, 1, 4);
        f.p.EscolheValores43();
        f.p.ValoresnoForm1144();
        EXPECT_EQ(f.p.Form11.RowsShown, r.shown) << r.stored;
        EXPECT_EQ(f.p.Ordenadas.size(), static_cast<std::size_t>(r.stored)) << "all remain stored";
        for (int i = 0; i < Form11Model::kRows; ++i) {
            const auto& row = f.p.Form11.Rows[static_cast<std::size_t>(i)];
            EXPECT_EQ(row.Option.Visible, i < r.shown) << r.stored << " row " << i + 1;
            EXPECT_EQ(row.Peso, i < r.shown ? Format(10 + i, "##0.00") : "") << r.stored << " row " << i + 1;
        }
    }
}

TEST(SolutionSearch, ListRowTexts)
{
    struct Row {
        double peso;
        double estribo;
        std::vector<std::string> texts; // weight, bars on b, bars on h, stirrup mm, short label
    };
    const std::vector<Row> rows{
        {15.12, 1, {"15.12", "3", "5", "5", "5"}},
        {1234.5, 2, {"1234.50", "3", "5", "6.3", "6.3"}},
        {0.455, 3, {"0.46", "3", "5", "8", "8"}},
        {24, 4, {"24.00", "3", "5", "10", "10"}},
    };
    for (const auto& r : rows) {
        Fixture f;
        store(f.p, r.peso, 3, 5, r.estribo, 4);
        f.p.EscolheValores43();
        f.p.ValoresnoForm1144();
        const auto& row = f.p.Form11.Rows[0];
        EXPECT_EQ((std::vector<std::string>{row.Peso, row.nBase, row.nAltura, row.DiamEstriboMm, row.Estribo}),
                  r.texts)
            << r.peso;
    }
}

TEST(SolutionSearch, NextAndPreviousStopAtTheEndsOfTheList)
{
    enum class Botao { Mais, Menos, Command9, Command10 };
    struct Row {
        const char* name;
        int stored;
        int from;
        Botao botao;
        int to;
        bool calculated;
    };
    const std::vector<Row> rows{
        {"next from the first", 5, 1, Botao::Mais, 2, true},
        {"next before the last", 5, 4, Botao::Command9, 5, true},
        {"next at the last solution", 5, 5, Botao::Mais, 5, false},
        {"next at the last of exactly forty", 40, 40, Botao::Command9, 40, false},
        {"next into row forty of more", 45, 39, Botao::Mais, 40, true},
        {"next at row forty of more: that row is not shown", 45, 40, Botao::Mais, 40, false},
        {"previous from the third", 5, 3, Botao::Menos, 2, true},
        {"previous from the second", 5, 2, Botao::Command10, 1, true},
        {"previous at the first", 5, 1, Botao::Menos, 1, false},
        {"previous at the first, through the button", 45, 1, Botao::Command10, 1, false},
        {"previous from row forty of more", 45, 40, Botao::Menos, 39, true},
        {"a single solution goes nowhere", 1, 1, Botao::Mais, 1, false},
    };
    for (const auto& r : rows) {
        Fixture f;
        // Every stored row is the default section's own arrangement; the stirrups
        // differ so that the row put into the window can be told.
        for (int i = 0; i < r.stored; ++i)
            store(f.p, 20 + i, 2, 4, 1 + i % 4, 4.125);
        f.p.EscolheValores43();
        f.p.ValoresnoForm1144();
        for (auto& row : f.p.Form11.Rows)
            row.Option.Value = false;
        f.p.Form11.Rows[static_cast<std::size_t>(r.from - 1)].Option.Value = true;
        f.p.SolucaoAtual = static_cast<std::int16_t>(r.from);
        f.p.Form1.Text30.Text = "";
        f.p.Form1.Combo3.Text = "marca";

        switch (r.botao) {
        case Botao::Mais: f.p.Form11BotaoMais(); break;
        case Botao::Menos: f.p.Form11BotaoMenos(); break;
        case Botao::Command9: f.p.Command9_Click(); break;
        case Botao::Command10: f.p.Command10_Click(); break;
        }

        EXPECT_EQ(selectedRow(f.p), r.to) << r.name;
        EXPECT_EQ(f.p.SolucaoAtual, r.to) << r.name;
        if (r.calculated) {
            EXPECT_EQ(f.p.Form1.Text30.Text, "Ok") << r.name;
            EXPECT_EQ(f.p.Form1.Combo3.Text, lists::estribo[static_cast<std::size_t>((r.to - 1) % 4)]) << r.name;
            EXPECT_EQ(f.p.Form1.Check3.Value, 0) << r.name;
        } else {
            EXPECT_EQ(f.p.Form1.Text30.Text, "") << r.name << ": nothing was calculated";
            EXPECT_EQ(f.p.Form1.Combo3.Text, "marca") << r.name;
        }
    }
}

TEST(SolutionSearch, ChosenSolutionsCalculateBackToTheirArrangementAndWeight)
{
    struct Row {
        const char* name;
        const char *b, *h, *nd, *md;
        std::function<void(Program&)> more;
    };
    const auto nothing = [](Program&) {};
    const std::vector<Row> rows{
        {"initial values", "20", "50", "400", "10000", nothing},
        {"large section", "40", "120", "2000", "50000", nothing},
        {"square, small moment", "25", "25", "800", "2000", nothing},
        {"thin section", "15", "40", "300", "3000", nothing},
        {"pure compression", "30", "60", "2500", "0", nothing},
        {"no forces at all", "20", "30", "0", "0", nothing},
        {"heavy bending", "20", "60", "100", "30000", nothing},
        // Pure bending: the reference fields at mid-height take the λ that the
        // candidate before left, and the best one holds on a d' of 3 cm only from it.
        {"pure bending, CA-25, class I, rigid control", "50", "60", "0", "10000",
         [](Program& p) {
             p.Form1.Combo1.Text = "Aço CA-25A";
             p.Form1.Combo2.Text = "I";
             selectOption(p.Form1.Option2, p.Form1.Option1);
             p.Form1.Text3.Text = "4.5";
         }},
    };
    for (const auto& r : rows) {
        Fixture f;
        setSection(f.p, r.b, r.h, r.nd, r.md);
        r.more(f.p);
        f.p.Command8_Click();
        SCOPED_TRACE(r.name);

        // The window's own calculation of the best asks nothing: its cover is settled.
        EXPECT_TRUE(f.dialogs.messages.empty()) << f.dialogs.messages.dump();
        ASSERT_GT(f.p.NSolucoes, 0);
        EXPECT_FALSE(f.p.BuscaEmCurso);
        ASSERT_EQ(f.p.Ordenadas.size(), f.p.Solucoes.size());
        EXPECT_EQ(f.p.NSolucoes, static_cast<double>(f.p.Solucoes.size()));
        EXPECT_TRUE(f.p.Form1.Command9.Visible && f.p.Form1.Command10.Visible && f.p.Form1.Command11.Visible);
        EXPECT_EQ(f.p.SolucaoAtual, 1);
        EXPECT_EQ(f.p.SolucaoNoForm, "s");

        // The input set holds the candidates in the order they were tried.
        for (std::size_t i = 1; i < f.p.Solucoes.size(); ++i) {
            const auto& a = f.p.Solucoes[i - 1];
            const auto& c = f.p.Solucoes[i];
            EXPECT_LT(std::tie(a.nAltura, a.nBase, a.IndiceEstribo), std::tie(c.nAltura, c.nBase, c.IndiceEstribo));
        }

        // Each listed solution, the best first and then through "next", is
        // calculated in the window to exactly its stored arrangement and weight.
        const auto ordered = f.p.Ordenadas;
        const int shown = f.p.Form11.RowsShown;
        EXPECT_EQ(shown, std::min<int>(40, static_cast<int>(ordered.size())));
        for (int row = 1; row <= shown; ++row) {
            if (row > 1)
                f.p.Command9_Click();
            const auto& s = ordered[static_cast<std::size_t>(row - 1)];
            ASSERT_EQ(f.p.SolucaoAtual, row);
            EXPECT_EQ(f.p.Form1.Check3.Value, 0) << "row " << row;
            EXPECT_EQ(f.p.Form1.Text30.Text, "Ok") << "row " << row;
            EXPECT_EQ(f.p.PesoLong, s.peso) << "row " << row << ": " << describe(s);
            EXPECT_EQ(f.p.nBase, s.nBase) << "row " << row;
            EXPECT_EQ(f.p.nAltura, s.nAltura) << "row " << row;
            EXPECT_EQ(f.p.DiamEstribo, s.DiamEstribo) << "row " << row;
            EXPECT_EQ(f.p.dLinha, s.dLinha) << "row " << row;
            EXPECT_EQ(f.p.Form1.Text3.Text, Str(s.dLinha)) << "row " << row;
            EXPECT_TRUE(f.p.Form1.Option3.Value && !f.p.Form1.Option5.Value && !f.p.Form1.Option6.Value);
            EXPECT_EQ(f.p.Form11.Rows[static_cast<std::size_t>(row - 1)].Peso, Format(s.peso, "##0.00"));
        }
        EXPECT_EQ(describe(f.p.Ordenadas), describe(ordered)) << "stepping leaves the store as it was";
        EXPECT_TRUE(f.dialogs.messages.empty()) << f.dialogs.messages.dump();

        // "&Outras soluções" opens the list on the solution on show.
        f.p.Command11_Click();
        EXPECT_EQ(describe(f.p.Ordenadas), describe(ordered));
        EXPECT_EQ(f.p.NSolucoes, static_cast<double>(ordered.size()));
        EXPECT_EQ(selectedRow(f.p), shown);
        EXPECT_EQ(f.p.Form1.Check3.Value, 0);
    }
}

TEST(SolutionSearch, NothingPassesEndsInErrorWithTheWindowOutOfSearchMode)
{
    struct Row {
        const char* name;
        const char* control;
        const char* value;
        std::vector<std::string> messages;
    };
    const std::vector<Row> rows{
        {"forces beyond every arrangement", "Text16", "100000", {kNenhum}},
        {"fck below 20 MPa: the search is skipped", "Text18", "15",
         {"Fck = 15 , inferior a 20 Mpa (valor mínimo para pilares).", kNenhum}},
        {"fck zero", "Text18", "0", {"Fck deve ser diferente de zero", kNenhum}},
        {"largest bar too small for any arrangement", "Form8.Combo3", "10 mm (3/8'')", {kNenhum}},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.Command8_Click(); // a search that finds solutions first
        ASSERT_GT(f.p.NSolucoes, 0) << r.name;
        f.dialogs.messages = nlohmann::ordered_json::array();

        if (std::string(r.control) == "Text16")
            f.p.Form1.Text16.Text = r.value;
        else if (std::string(r.control) == "Text18")
            f.p.Form1.Text18.Text = r.value;
        else {
            f.p.Form8.Combo3.Text = r.value;
            f.p.Form1.Text16.Text = "3000";
        }
        f.p.Command8_Click();

        std::vector<std::string> shown;
        for (const auto& m : f.dialogs.messages)
            shown.push_back(m["mensagem"]);
        EXPECT_EQ(shown, r.messages) << r.name;
        ASSERT_FALSE(f.dialogs.messages.empty());
        EXPECT_EQ(f.dialogs.messages.back()["janela"], "aviso") << r.name;
        EXPECT_EQ(f.p.Form1.Text30.Text, "erro") << r.name;
        EXPECT_EQ(f.p.Form1.Text30.BackColor, kRed) << r.name;
        EXPECT_EQ(f.p.Form1.Text10.Text, "") << r.name << ": the results are cleared";
        EXPECT_EQ(f.p.Form1.Check3.Value, 0) << r.name;
        EXPECT_EQ(f.p.NSolucoes, 0) << r.name;
        EXPECT_TRUE(f.p.Ordenadas.empty()) << r.name;
        EXPECT_EQ(f.p.Form11.RowsShown, 0) << r.name;
        EXPECT_FALSE(f.p.Form1.Command9.Visible || f.p.Form1.Command10.Visible || f.p.Form1.Command11.Visible)
            << r.name;
    }
}

TEST(SolutionSearch, AFailureOfTheMethodEndsTheSearchWithAMessage)
{
    // A wall 30 m deep: the bars that fit on its depth faces pass the 500 layers the
    // section can hold.
    Fixture f;
    f.p.Form1.Text1.Text = "12";
    f.p.Form1.Text2.Text = "3000";
    f.p.Form8.Combo1.Text = "5 mm";
    f.p.Command8_Click();

    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0]["janela"], "Mensagem de erro");
    EXPECT_NE(f.dialogs.messages[0]["mensagem"].get<std::string>().find("(500)"), std::string::npos)
        << f.dialogs.messages[0]["mensagem"];
    EXPECT_EQ(f.p.Form1.Text30.Text, "erro");
    EXPECT_EQ(f.p.Form1.Check3.Value, 0);
    EXPECT_FALSE(f.p.BuscaEmCurso);
    EXPECT_EQ(f.p.NSolucoes, 0);
    EXPECT_TRUE(f.p.Solucoes.empty());

    // The program goes on: the next calculation is a normal one.
    f.p.Form1.Text1.Text = "20";
    f.p.Form1.Text2.Text = "50";
    f.p.Command1_Click();
    EXPECT_EQ(f.p.Form1.Text30.Text, "Ok");
}

TEST(SolutionSearch, OtherSolutionsWithoutASearchDoesNothing)
{
    Fixture f;
    f.p.Command11_Click();
    EXPECT_EQ(f.p.Form11.RowsShown, 0);
    EXPECT_EQ(f.p.Form1.Text30.Text, "");
    EXPECT_EQ(f.p.Form1.Check3.Value, 0);
    EXPECT_TRUE(f.dialogs.messages.empty());
}
