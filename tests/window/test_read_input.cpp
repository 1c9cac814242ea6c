// Reading the main window: units, corrections of the boxes and the fck messages.

#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

namespace {

struct Fixture {
    PolicyDialogs dialogs;
    Program p{dialogs};
};

std::string message(const PolicyDialogs& d, std::size_t i)
{
    return d.records.at(i).mensagem;
}

} // namespace

TEST(Units, EveryUnitConvertsToKgfAndCm)
{
    struct Row {
        const char* name;
        double factor;
    };
    const std::vector<Row> rows{
        {"Kgf", 1},       {"Tf", 1000},        {"N", 0.1},        {"KN", 100},       {"Kgf.mm", 0.1},
        {"Kgf.cm", 1},    {"Kgf.m", 100},      {"Tf.mm", 100},    {"Tf.cm", 1000},   {"Tf.m", 100000},
        {"N.mm", 0.01},   {"N.cm", 0.1},       {"N.m", 10},       {"KN.mm", 10},     {"KN.cm", 100},
        {"KN.m", 10000},  {"Kgf/mm2", 100},    {"Kgf/cm2", 1},    {"Kgf/m2", 0.0001}, {"Tf/mm2", 100000},
        {"Tf/cm2", 1000}, {"Tf/m2", 0.1},      {"N/mm2", 10},     {"N/cm2", 0.1},    {"N/m2", 0.00001},
        {"KN/mm2", 10000}, {"KN/cm2", 100},    {"KN/m2", 0.01},   {"MPa", 10},
    };
    Fixture f;
    for (const auto& r : rows) {
        f.p.FatorUnidade = -1;
        f.p.UnidadeNome = r.name;
        f.p.Unidades30();
        EXPECT_EQ(f.p.FatorUnidade, r.factor) << r.name;
    }
}

TEST(Units, AnUnknownNameKeepsThePreviousFactor)
{
    Fixture f;
    EXPECT_EQ(f.p.FatorUnidade, 0);
    f.p.UnidadeNome = "kn";
    f.p.Unidades30();
    EXPECT_EQ(f.p.FatorUnidade, 0);
    f.p.UnidadeNome = "Tf";
    f.p.Unidades30();
    f.p.UnidadeNome = "mpa";
    f.p.Unidades30();
    EXPECT_EQ(f.p.FatorUnidade, 1000);
}

TEST(Ler02, DefaultsReadIntoInternalUnits)
{
    Fixture f;
    f.p.Ler02();
    EXPECT_EQ(f.p.Nd, 40000);
    EXPECT_EQ(f.p.Md, 1000000);
    EXPECT_EQ(f.p.Fck, 200);
    EXPECT_EQ(f.p.Es, 2100000);
    EXPECT_EQ(f.p.GamaC, 1.5);
    EXPECT_EQ(f.p.GamaS, 1.15);
    EXPECT_EQ(f.p.Precisao, 0.0001);
    EXPECT_EQ(f.p.Base, 20);
    EXPECT_EQ(f.p.Altura, 50);
    EXPECT_EQ(f.p.Comprimento, 300);
    EXPECT_EQ(f.p.nBase, 2);
    EXPECT_EQ(f.p.nAltura, 4);
    EXPECT_EQ(f.p.IndiceBitolaMax, 11);
    EXPECT_EQ(f.p.IndiceEstriboMax, 4.0f);
    EXPECT_EQ(f.p.DiamAgregado, 0);
    EXPECT_EQ(f.p.MargemDesenho, 20);
    EXPECT_TRUE(f.dialogs.records.empty());
}

TEST(Ler02, CorrectsTheBoxesAsTheUserSeesThem)
{
    struct Row {
        const char* name;
        const char *b, *h, *dl, *nb, *nh;
        const char *b2, *h2, *nb2, *nh2;
        int nMaxBase;
        double nMaxAltura;
    };
    const std::vector<Row> rows{
        {"small base raised to 12", "8", "50", "4", "2", "4", "12", "50", "2", "4", 2, 9},
        {"text that is no number", "abc", "x", "", "2", "2", "12", "12", "2", "2", 3, 3},
        {"width rounds, depth floors", "20", "50", "4", "9", "12", "20", "50", "3", "9", 3, 9},
        {"ties to even on the width", "16.5", "16.5", "2", "9", "9", "16.5", "16.5", "4", "3", 4, 3},
        {"both counts capped at 500", "5000", "5000", "0", "900", "900", "5000", "5000", "500", "500", 1001, 1001},
        {"0 and 1 pass unchanged", "20", "50", "3", "0", "1", "20", "50", "0", "1", 4, 9},
        {"a large d' leaves at least 2", "20", "50", "30", "5", "5", "20", "50", "2", "2", 2, 2},
    };
    for (const auto& r : rows) {
        Fixture f;
        auto& w = f.p.Form1;
        w.Text1.Text = r.b;
        w.Text2.Text = r.h;
        w.Text3.Text = r.dl;
        w.Text4.Text = r.nb;
        w.Text5.Text = r.nh;
        f.p.Ler02();
        EXPECT_EQ(w.Text1.Text, r.b2) << r.name;
        EXPECT_EQ(w.Text2.Text, r.h2) << r.name;
        EXPECT_EQ(w.Text4.Text, r.nb2) << r.name;
        EXPECT_EQ(w.Text5.Text, r.nh2) << r.name;
        EXPECT_EQ(f.p.nMaxBase, r.nMaxBase) << r.name;
        EXPECT_EQ(f.p.nMaxAltura, r.nMaxAltura) << r.name;
    }
}

TEST(Ler02, FckMessages)
{
    const std::string item = "Item 8.2.1 do Projeto de revisão da NB1 / 2001";
    struct Row {
        const char* fck;
        const char* unit;
        std::vector<std::string> messages;
        const char* erroEntrada;
    };
    const std::vector<Row> rows{
        {"19", "MPa", {"Fck = 19 , inferior a 20 Mpa (valor mínimo para pilares)."}, "s"},
        {"20", "MPa", {}, "n"},
        {"50", "MPa", {}, "n"},
        {"50.1", "MPa", {"Fck = 50.1 , maior que 50 Mpa (valor máximo abrangido pela norma)."}, "s"},
        {"150", "Kgf/cm2", {"Fck = 15 , inferior a 20 Mpa (valor mínimo para pilares)."}, "s"},
        {"2.5", "KN/cm2", {}, "n"},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.ErroEntrada = "n";
        f.p.Form1.Text18.Text = r.fck;
        f.p.Form1.Combo6.Text = r.unit;
        f.p.Ler02();
        ASSERT_EQ(f.dialogs.records.size(), r.messages.size()) << r.fck;
        for (std::size_t i = 0; i < r.messages.size(); ++i) {
            EXPECT_EQ(message(f.dialogs, i), r.messages[i]);
            EXPECT_EQ(f.dialogs.records[i].item, item);
            EXPECT_EQ(f.dialogs.records[i].janela, "Mensagem de erro");
        }
        EXPECT_EQ(f.p.ErroEntrada, r.erroEntrada) << r.fck;
        EXPECT_EQ(f.p.Es, 2100000) << "reading goes on after an fck warning";
    }
}

TEST(Ler02, FckWarningsAreNotRepeatedOnARecalculation)
{
    Fixture f;
    f.p.metodo().Recalcula = engine::Recalculation::Yes;
    f.p.Form1.Text18.Text = "19";
    f.p.Ler02();
    EXPECT_TRUE(f.dialogs.records.empty());
}

TEST(Ler02, ZeroFckStopsTheReading)
{
    Fixture f;
    f.p.Es = 123;
    f.p.Form1.Text18.Text = "0";
    f.p.Ler02();
    ASSERT_EQ(f.dialogs.records.size(), 1u);
    EXPECT_EQ(message(f.dialogs, 0), "Fck deve ser diferente de zero");
    EXPECT_EQ(f.dialogs.records[0].item, "");
    EXPECT_EQ(f.p.ErroEntrada, "s");
    EXPECT_EQ(f.p.Es, 123) << "Es is not read after a zero fck";
}

TEST(Ler02, ZeroDivisorsOfTheDesignAreInputErrors)
{
    struct Row {
        const char* control;
        const char* start;
    };
    const std::vector<Row> rows{{"Es", "Es deve"}, {"GamaC", "GamaC"}, {"GamaS", "GamaS"}};
    for (const auto& r : rows) {
        Fixture f;
        auto& w = f.p.Form1;
        if (std::string(r.control) == "Es")
            w.Text20.Text = "";
        else if (std::string(r.control) == "GamaC")
            w.Text21.Text = "0";
        else
            w.Text22.Text = "abc";
        f.p.Ler02();
        ASSERT_EQ(f.dialogs.records.size(), 1u) << r.control;
        EXPECT_EQ(message(f.dialogs, 0).rfind(r.start, 0), 0u) << message(f.dialogs, 0);
        EXPECT_NE(message(f.dialogs, 0).find("deve ser diferente de zero"), std::string::npos);
        EXPECT_EQ(f.p.ErroEntrada, "s");
    }
}

TEST(Ler02, LargestDiametersFromOtherValues)
{
    Fixture f;
    const std::vector<std::pair<std::string, int>> longs{
        {"10 mm (3/8'')", 4},  {"12.5 mm (1/2'')", 5}, {"16 mm (5/8'')", 6}, {"20 mm (3/4'')", 7},
        {"22.5 mm (7/8'')", 8}, {"25 mm (1'')", 9},    {"32 mm (1 1/4'')", 10}, {"40 mm", 11}};
    for (const auto& [text, index] : longs) {
        f.p.Form8.Combo3.Text = text;
        f.p.Ler02();
        EXPECT_EQ(f.p.IndiceBitolaMax, index) << text;
    }
    const std::vector<std::pair<std::string, float>> stirrups{
        {"5 mm", 1}, {"6.3 mm (1/4'')", 2}, {"8 mm (5/16'')", 3}, {"10 mm (3/8'')", 4}};
    for (const auto& [text, index] : stirrups) {
        f.p.Form8.Combo1.Text = text;
        f.p.Form8Command1_Click();
        EXPECT_EQ(f.p.IndiceEstriboMax, index) << text;
    }
    // a text outside the lists keeps the last index
    f.p.Form8.Combo3.Text = "12,5 mm (1/2'')";
    f.p.Ler02();
    EXPECT_EQ(f.p.IndiceBitolaMax, 11);
}
