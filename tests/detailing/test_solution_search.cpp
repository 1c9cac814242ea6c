// The best-solution search: the order of the store, the list of "Soluções", the
// stepping buttons, and searches whose listed solutions must calculate back to
// exactly their arrangement and weight.

#include "cli/recording_dialogs.h"
#include "driver/program.h"
#include "base/number_text.h"

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

// A candidate as the driver leaves it when it has passed every check, on the
// initial section (2 x 4 bars, d' 4.125 cm).
void store(Program& p, double peso, double nBase, int estribo = 1)
{
    p.PesoLong = peso;
    p.nBase = nBase;
    p.nAltura = 4;
    p.IndiceEstriboBusca = estribo;
    p.DiamEstribo = p.DiamBitola(estribo);
    p.dLinha = 4.125;
    p.GuardaValores42();
}

void listOf(Program& p, int n)
{
    p.Bitolas22();
    for (int i = 0; i < n; ++i)
        store(p, 20 + i, 2, 1 + i % 4);
    p.EscolheValores43();
    p.ValoresnoForm1144();
}

int selectedRow(const Program& p)
{
    for (int i = 0; i < Form11Model::kRows; ++i)
        if (p.Form11.Rows[static_cast<std::size_t>(i)].Option.Value)
            return i + 1;
    return 0;
}

} // namespace

TEST(SolutionSearch, OrderIsAscendingByWeightAndStableForEqualWeights)
{
    struct Row {
        std::vector<double> pesos;      // in the order of discovery
        std::vector<double> discovered; // discovery position of each ordered row
    };
    const std::vector<Row> rows{
        {{7}, {1}},
        {{3, 2, 1}, {3, 2, 1}},
        {{5, 5, 5, 5}, {1, 2, 3, 4}},
        {{5, 3, 5, 3}, {2, 4, 1, 3}},
        {{4, 9, 4, 9, 4}, {1, 3, 5, 2, 4}},
        {{15.12, 15.119999, 15.12}, {2, 1, 3}},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.Bitolas22();
        for (std::size_t i = 0; i < r.pesos.size(); ++i)
            store(f.p, r.pesos[i], static_cast<double>(i + 1));
        f.p.EscolheValores43();
        std::vector<double> got;
        for (const auto& s : f.p.Ordenadas)
            got.push_back(s.nBase);
        EXPECT_EQ(got, r.discovered) << ::testing::PrintToString(r.pesos);
    }
}

TEST(SolutionSearch, ListShowsAtMostFortyRows)
{
    for (const auto& [stored, shown] : std::vector<std::pair<int, int>>{{1, 1}, {40, 40}, {41, 40}, {120, 40}}) {
        Fixture f;
        listOf(f.p, 60); // a longer list first: rows the new store does not reach must be empty
        f.p.Solucoes.clear();
        f.p.NSolucoes = 0;
        listOf(f.p, stored);
        EXPECT_EQ(f.p.Form11.RowsShown, shown);
        EXPECT_EQ(f.p.Ordenadas.size(), static_cast<std::size_t>(stored)) << "all remain stored";
        for (int i = 0; i < Form11Model::kRows; ++i) {
            const auto& row = f.p.Form11.Rows[static_cast<std::size_t>(i)];
            EXPECT_EQ(row.Peso, i < shown ? Str(20 + i) + ".00" : "") << stored << " row " << i + 1;
        }
        const auto& second = f.p.Form11.Rows[1];
        if (shown > 1) {
            EXPECT_EQ(second.nBase + "|" + second.nAltura + "|" + second.DiamEstriboMm + "|" + second.Estribo,
                      "2|4|6.3|6.3");
        }
    }
}

TEST(SolutionSearch, NextAndPreviousStopAtTheEndsOfTheList)
{
    struct Row {
        const char* name;
        int stored, from;
        void (Program::*botao)();
        int to; // equal to from: nothing is calculated
    };
    const std::vector<Row> rows{
        {"next", 5, 1, &Program::Form11BotaoMais, 2},
        {"next button", 5, 4, &Program::Command9_Click, 5},
        {"next at the last", 5, 5, &Program::Form11BotaoMais, 5},
        {"next at the last of forty", 40, 40, &Program::Command9_Click, 40},
        {"next into row forty of more", 45, 39, &Program::Form11BotaoMais, 40},
        {"next at row forty of more", 45, 40, &Program::Form11BotaoMais, 40},
        {"previous button", 5, 2, &Program::Command10_Click, 1},
        {"previous at the first", 45, 1, &Program::Form11BotaoMenos, 1},
        {"previous from row forty", 45, 40, &Program::Form11BotaoMenos, 39},
    };
    for (const auto& r : rows) {
        Fixture f;
        listOf(f.p, r.stored);
        for (auto& row : f.p.Form11.Rows)
            row.Option.Value = false;
        f.p.Form11.Rows[static_cast<std::size_t>(r.from - 1)].Option.Value = true;
        f.p.SolucaoAtual = static_cast<std::int16_t>(r.from);
        f.p.Form1.Combo3.Text = "marca";
        (f.p.*r.botao)();

        EXPECT_EQ(selectedRow(f.p), r.to) << r.name;
        EXPECT_EQ(f.p.SolucaoAtual, r.to) << r.name;
        // Row k holds stirrup 1 + (k - 1) mod 4: the window shows the row chosen.
        EXPECT_EQ(f.p.Form1.Combo3.Text, r.to == r.from ? "marca" : lists::estribo[(r.to - 1) % 4]) << r.name;
        EXPECT_EQ(f.p.Form1.Text30.Text, r.to == r.from ? "" : "Ok") << r.name;
    }
}

TEST(SolutionSearch, ListedSolutionsCalculateBackToTheirArrangementAndWeight)
{
    struct Row {
        const char *b, *h, *nd, *md;
        std::function<void(Form1Model&)> more;
    };
    const auto nothing = [](Form1Model&) {};
    const std::vector<Row> rows{
        {"20", "50", "400", "10000", nothing},
        {"40", "120", "2000", "50000", nothing},
        {"25", "25", "800", "2000", nothing},
        {"15", "40", "300", "3000", nothing},
        {"30", "60", "2500", "0", nothing},
        {"20", "30", "0", "0", nothing},
        // Pure bending: the reference fields at mid-height keep the λ the candidate
        // before left, and the best one holds on a d' of 3 cm only from it.
        {"50", "60", "0", "10000", [](Form1Model& f) {
             f.Combo1.Text = "Aço CA-25A";
             f.Combo2.Text = "I";
             selectOption(f.Option2, f.Option1);
             f.Text3.Text = "4.5";
         }},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.Form1.Text1.Text = r.b, f.p.Form1.Text2.Text = r.h;
        f.p.Form1.Text16.Text = r.nd, f.p.Form1.Text17.Text = r.md;
        r.more(f.p.Form1);
        f.p.Command8_Click();
        SCOPED_TRACE(std::string(r.b) + " x " + r.h + ", Nd " + r.nd + ", Md " + r.md);

        ASSERT_GT(f.p.NSolucoes, 0);
        EXPECT_FALSE(f.p.BuscaEmCurso);
        EXPECT_TRUE(f.p.Form1.Command9.Visible && f.p.Form1.Command10.Visible && f.p.Form1.Command11.Visible);
        for (std::size_t i = 1; i < f.p.Solucoes.size(); ++i) {
            const auto &a = f.p.Solucoes[i - 1], &c = f.p.Solucoes[i];
            EXPECT_LT(std::tie(a.nAltura, a.nBase, a.IndiceEstribo), std::tie(c.nAltura, c.nBase, c.IndiceEstribo))
                << "the input set is in the order of the enumeration";
        }

        // The best, then every row through "next": the window's own calculation
        // asks nothing (the cover is settled) and gives the stored values.
        const auto ordered = f.p.Ordenadas;
        for (int row = 1; row <= f.p.Form11.RowsShown; ++row) {
            if (row > 1)
                f.p.Command9_Click();
            const auto& s = ordered[static_cast<std::size_t>(row - 1)];
            ASSERT_EQ(f.p.SolucaoAtual, row);
            EXPECT_EQ(f.p.Form1.Text30.Text, "Ok") << row;
            EXPECT_EQ(f.p.Form1.Check3.Value, 0) << row;
            EXPECT_EQ(std::tie(f.p.PesoLong, f.p.nBase, f.p.DiamEstribo, f.p.dLinha),
                      std::tie(s.peso, s.nBase, s.DiamEstribo, s.dLinha))
                << row;
            EXPECT_EQ(f.p.nAltura, s.nAltura) << row;
            EXPECT_EQ(f.p.Form1.Text3.Text, Str(s.dLinha)) << row;
        }
        EXPECT_TRUE(f.dialogs.messages.empty()) << f.dialogs.messages.dump();

        // "&Outras soluções" opens the list on the solution on show, store intact.
        const int shown = f.p.Form11.RowsShown;
        f.p.Command11_Click();
        EXPECT_EQ(selectedRow(f.p), shown);
        EXPECT_EQ(f.p.Ordenadas.size(), ordered.size());
        EXPECT_EQ(f.p.Ordenadas.back().peso, ordered.back().peso);
        EXPECT_EQ(f.p.Form1.Check3.Value, 0);
    }
}

TEST(SolutionSearch, NothingFoundOrAFailureEndsInErrorOutOfSearchMode)
{
    struct Row {
        const char* name;
        std::function<void(Program&)> set;
        std::vector<std::string> messages; // beginnings of the messages shown
    };
    const std::vector<Row> rows{
        {"forces beyond every arrangement", [](Program& p) { p.Form1.Text16.Text = "100000"; }, {kNenhum}},
        {"fck below 20 MPa skips the search", [](Program& p) { p.Form1.Text18.Text = "15"; },
         {"Fck = 15 , inferior a 20 Mpa (valor mínimo para pilares).", kNenhum}},
        {"fck zero", [](Program& p) { p.Form1.Text18.Text = "0"; }, {"Fck deve ser diferente de zero", kNenhum}},
        {"largest bar too small",
         [](Program& p) {
             p.Form8.Combo3.Text = "10 mm (3/8'')";
             p.Form1.Text16.Text = "3000";
         },
         {kNenhum}},
        // A wall 30 m deep: the bars that fit on its depth faces pass the 500 layers
        // a section holds, and the search stops with the message of the failure.
        {"more layers than a section holds",
         [](Program& p) {
             p.Form1.Text1.Text = "12";
             p.Form1.Text2.Text = "3000";
             p.Form8.Combo1.Text = "5 mm";
         },
         {"Índice fora dos limites: NBarCam(500)"}},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.Command8_Click(); // a search that finds solutions first
        ASSERT_GT(f.p.NSolucoes, 0) << r.name;
        f.dialogs.messages = nlohmann::ordered_json::array();
        r.set(f.p);
        f.p.Command8_Click();

        ASSERT_EQ(f.dialogs.messages.size(), r.messages.size()) << r.name << f.dialogs.messages.dump();
        for (std::size_t i = 0; i < r.messages.size(); ++i)
            EXPECT_EQ(f.dialogs.messages[i]["mensagem"].get<std::string>().rfind(r.messages[i], 0), 0u) << r.name;
        EXPECT_EQ(f.p.Form1.Text30.Text, "erro") << r.name;
        EXPECT_EQ(f.p.Form1.Text30.BackColor, kRed) << r.name;
        EXPECT_EQ(f.p.Form1.Text10.Text, "") << r.name << ": the results are cleared";
        EXPECT_EQ(f.p.Form1.Check3.Value, 0) << r.name;
        EXPECT_FALSE(f.p.BuscaEmCurso) << r.name;
        EXPECT_EQ(f.p.NSolucoes, 0) << r.name;
        EXPECT_TRUE(f.p.Ordenadas.empty() && f.p.Solucoes.empty()) << r.name;
        EXPECT_EQ(f.p.Form11.RowsShown, 0) << r.name;
        EXPECT_FALSE(f.p.Form1.Command9.Visible || f.p.Form1.Command11.Visible) << r.name;
    }
}
