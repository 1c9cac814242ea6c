// Stirrup diameter and spacing on every path of the choice, the "Escolha dos
// estribos" dialog, the least steel per metre, hooks, and the silent check.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

enum class Modo { PreDef, Economico, Manual };

struct Bancada {
    RecordingDialogs dialogos;
    Program p{dialogos};
    Bancada(double diamLong, double menorDim, const char* aco = "Aço CA-50A", double fyk = 5000)
    {
        p.Bitolas22();
        p.FlagErro = "n";
        p.Recalcula = "n";
        p.DiamLong = diamLong;
        p.MenorDim = menorDim;
        p.Form1.Combo1.Text = aco;
        p.fyk = fyk;
    }
    void modo(Modo m)
    {
        auto& f = p.Form1;
        if (m == Modo::PreDef)
            selectOption(f.Option3, f.Option5, f.Option6);
        else if (m == Modo::Economico)
            selectOption(f.Option5, f.Option3, f.Option6);
        else
            selectOption(f.Option6, f.Option3, f.Option5);
    }
};

const std::string kPreDefPequeno = "O estribo pré-definido possue diâmetro inferior ao permitido pela norma. Será "
                                   "usado o valor mínimo permitido que é de ";

} // namespace

TEST(DetailStirrups, SpacingLimitsBySteelClassAndSameSteelSpacings)
{
    struct Linha {
        const char* nome;
        const char* aco;
        double fyk, diamLong, menorDim;
        double diamMin;
        long indiceMin;
        double esp;
        std::array<double, 3> alt;
    };
    const Linha linhas[] = {
        {"CA-50A 16 mm, 12 φl bites", "Aço CA-50A", 5000, 1.6, 20, 0.5, 1, 19, {19, 19, 19}},
        {"CA-50B 12.5 mm", "Aço CA-50B", 5000, 1.25, 30, 0.5, 1, 15, {15, 15, 15}},
        {"CA-25A 12.5 mm: 24 φl does not bite", "Aço CA-25A", 2500, 1.25, 30, 0.5, 1, 20, {20, 20, 20}},
        {"CA-25B thin bar: 24 φl bites", "Aço CA-25B", 2500, 0.8, 30, 0.5, 1, 19, {19, 19, 19}},
        {"CA-60A: no bar limit", "Aço CA-60A", 6000, 1.25, 30, 0.5, 1, 20, {20, 20, 20}},
        {"smaller side below 20 is floored", "Aço CA-60B", 6000, 1.0, 19.5, 0.5, 1, 19, {19, 19, 19}},
        {"25 mm needs 6.3 mm; same-steel 5 mm at 18", "Aço CA-50A", 5000, 2.5, 19.5, 0.625, 2, 19, {18, 19, 19}},
        {"same-steel spacing exactly whole", "Aço CA-60A", 6000, 2.5, 30, 0.625, 2, 20, {15, 20, 20}},
        {"40 mm needs 10 mm", "Aço CA-50A", 5000, 4.0, 40, 1.0, 4, 20, {11, 17, 20}},
        {"32 mm needs 8 mm", "Aço CA-25B", 2500, 3.2, 25, 0.8, 3, 20, {20, 20, 20}},
    };
    for (const auto& l : linhas) {
        Bancada b(l.diamLong, l.menorDim, l.aco, l.fyk);
        b.modo(Modo::Economico);
        b.p.Estribo28();
        EXPECT_EQ(b.p.DiamEstriboMin, l.diamMin) << l.nome;
        EXPECT_EQ(b.p.IndiceEstriboMin, l.indiceMin) << l.nome;
        EXPECT_EQ(b.p.DiamEstribo, b.p.DiamBitola(l.indiceMin)) << l.nome;
        EXPECT_EQ(b.p.PesoEstribo, b.p.PesoBitola(l.indiceMin)) << l.nome;
        EXPECT_EQ(b.p.EspEstribo, l.esp) << l.nome;
        for (long k = 1; k <= 3; ++k)
            EXPECT_EQ(b.p.EspEstriboAlt(k), l.alt[static_cast<std::size_t>(k - 1)]) << l.nome << " k=" << k;
        EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
    }
}

TEST(DetailStirrups, EveryPathOfTheChoice)
{
    // 25 mm bars in a 19.5 cm column of CA-50: the minimum is 6.3 mm at 19 cm; with
    // the same steel 5 mm may go at 18 cm and has the least steel per metre.
    struct Linha {
        const char* nome;
        Modo modo;
        int check5;
        const char* recalcula;
        const char* combo3;
        int opcao; // answer of "Escolha dos estribos"
        double diam, peso, esp;
        const char* texto;
        std::string erro;   // the error dialog's text, empty for none
        bool perguntaEscolha; // "Escolha dos estribos" shown
    };
    const Linha linhas[] = {
        {"economic, different steels: minimum", Modo::Economico, 0, "n", "5 mm", 4, 0.63, 0.25, 19, "φ6.3 c/19", "",
         false},
        {"economic, same steel: least steel per metre", Modo::Economico, 1, "n", "5 mm", 4, 0.5, 0.16, 18, "φ5 c/18",
         "", false},
        {"economic ignores a grey same-steel box", Modo::Economico, 2, "n", "5 mm", 4, 0.63, 0.25, 19, "φ6.3 c/19", "",
         false},
        {"pre-defined below the minimum is told", Modo::PreDef, 0, "n", "5 mm", 4, 0.63, 0.25, 19, "φ6.3 c/19",
         kPreDefPequeno + "6.3mm.", false},
        {"pre-defined below the minimum on a repeated pass is told again", Modo::PreDef, 0, "s", "5 mm", 4, 0.63, 0.25,
         19, "φ6.3 c/19", kPreDefPequeno + "6.3mm.", false},
        {"pre-defined below, same steel: reduced spacing", Modo::PreDef, 1, "n", "5 mm", 4, 0.5, 0.16, 18, "φ5 c/18",
         "", false},
        {"pre-defined equal to the minimum", Modo::PreDef, 0, "n", "6.3 mm (1/4'')", 4, 0.63, 0.25, 19, "φ6.3 c/19",
         "", false},
        {"pre-defined above the minimum keeps the spacing", Modo::PreDef, 1, "n", "10 mm (3/8'')", 4, 1, 0.63, 19,
         "φ10 c/19", "", false},
        {"manual: the permitted diameter", Modo::Manual, 0, "n", "5 mm", 0, 0.63, 0.25, 19, "φ6.3 c/19", "", true},
        {"manual: the thinner one at its spacing", Modo::Manual, 0, "n", "5 mm", 1, 0.5, 0.16, 18, "φ5 c/18", "",
         true},
        {"manual: least steel per metre", Modo::Manual, 0, "n", "5 mm", 4, 0.5, 0.16, 18, "φ5 c/18", "", true},
        {"manual: a disabled option acts as the least steel", Modo::Manual, 0, "n", "5 mm", 3, 0.5, 0.16, 18,
         "φ5 c/18", "", true},
        {"manual, repeated pass: staged diameter at the current spacing", Modo::Manual, 0, "s", "5 mm", 0, 0.8, 0.4, 19,
         "φ8 c/19", "", false},
    };
    for (const auto& l : linhas) {
        Bancada b(2.5, 19.5);
        b.modo(l.modo);
        b.p.Form1.Check5.Value = l.check5;
        b.p.Form1.Combo3.Text = l.combo3;
        b.p.Recalcula = l.recalcula;
        b.dialogos.stirrupOption = l.opcao;
        // what an earlier interactive choice left staged
        b.p.DiamEstriboEsc = 0.8;
        b.p.PesoEstriboEsc = 0.4;
        b.p.EspEstriboEsc = 7;
        b.p.Estribo28();

        EXPECT_EQ(b.p.DiamEstribo, l.diam) << l.nome;
        EXPECT_EQ(b.p.PesoEstribo, l.peso) << l.nome;
        EXPECT_EQ(b.p.EspEstribo, l.esp) << l.nome;
        EXPECT_EQ(b.p.TextoEstribo, l.texto) << l.nome;
        EXPECT_EQ(b.p.FlagErro, "n") << l.nome << ": the stirrup never fails the calculation";
        std::vector<std::string> janelas;
        for (const auto& m : b.dialogos.messages)
            janelas.push_back(m["janela"]);
        std::vector<std::string> esperadas;
        if (!l.erro.empty())
            esperadas.push_back("Mensagem de erro");
        if (l.perguntaEscolha)
            esperadas.push_back("Escolha dos estribos");
        EXPECT_EQ(janelas, esperadas) << l.nome;
        if (!l.erro.empty()) {
            EXPECT_EQ(b.dialogos.messages[0]["mensagem"], l.erro) << l.nome;
            EXPECT_EQ(b.dialogos.messages[0]["item"], "Item 18.4.3") << l.nome;
        }
    }
}

TEST(DetailStirrups, UnknownPreDefinedTextKeepsThePreviousStirrup)
{
    Bancada b(2.5, 19.5);
    b.modo(Modo::PreDef);
    b.p.Form1.Combo3.Text = "7 mm";
    b.p.DiamEstriboPreDef = 0.8;
    b.p.PesoEstriboPreDef = 0.4;
    b.p.IndiceEstriboPreDef = 3;
    b.p.Estribo28();
    EXPECT_EQ(b.p.DiamEstribo, 0.8);
    EXPECT_EQ(b.p.PesoEstribo, 0.4);
    EXPECT_EQ(b.p.IndiceEstriboPreDef, 3);
}

TEST(DetailStirrups, ManualChoiceWithFiveMillimetresAllowedAsksNothing)
{
    Bancada b(1.6, 20);
    b.modo(Modo::Manual);
    b.p.Estribo28();
    EXPECT_TRUE(b.dialogos.messages.empty());
    EXPECT_EQ(b.p.DiamEstribo, 0.5);
    EXPECT_EQ(b.p.PesoEstribo, 0.16);
    EXPECT_EQ(b.p.EspEstribo, 19);
}

TEST(DetailStirrupDialog, ListsThePermittedDiameterThenTheThinnerOnes)
{
    struct Linha {
        const char* nome;
        int opcao;
        double diam, esp;
        long indice;
    };
    // 40 mm bars: 10 mm at 20 cm, or with the same steel 8 mm at 20, 6.3 at 17, 5 at 11.
    const Linha linhas[] = {
        {"element 0: the permitted 10 mm", 0, 1, 20, 4},
        {"element 1: 8 mm", 1, 0.8, 20, 3},
        {"element 2: 6.3 mm", 2, 0.63, 17, 2},
        {"element 3: 5 mm", 3, 0.5, 11, 1},
        {"element 4: least steel, 5 mm", 4, 0.5, 11, 1},
    };
    for (const auto& l : linhas) {
        Bancada b(4.0, 40);
        b.modo(Modo::Manual);
        b.dialogos.stirrupOption = l.opcao;
        b.p.Estribo28();
        ASSERT_EQ(b.dialogos.messages.size(), 1u) << l.nome;
        const auto& m = b.dialogos.messages[0];
        EXPECT_EQ(m["janela"], "Escolha dos estribos");
        EXPECT_EQ(m["mensagem"], "A bitola do estribo deverá ser de 10mm2 com espaçamento de 20cm"
                                 " Porém, se os estribos e a armadura longitudinal forem do MESMO TIPO DE AÇO, poderá "
                                 "ser adotada uma das soluções abaixo:");
        const std::vector<std::string> opcoes = m["opcoes"];
        const std::vector<std::string> esperadas = {
            "fi de 1mm a cada 20cm. (independe do tipo de aço do estribo).",
            "fi de 0.8mm a cada 20cm.",
            "fi de 0.63mm a cada 17cm.",
            "fi de 0.5mm a cada 11cm.",
            "Utilizar a solução que proporcione menos quantidade de aço por metro",
        };
        EXPECT_EQ(opcoes, esperadas) << l.nome;
        EXPECT_EQ(b.p.DiamEstribo, l.diam) << l.nome;
        EXPECT_EQ(b.p.EspEstribo, l.esp) << l.nome;
        EXPECT_EQ(b.p.Indice, l.indice) << l.nome;
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(b.p.Form7.Option1[i].Caption, "") << l.nome << ": cleared after OK";
            EXPECT_FALSE(b.p.Form7.Option1[i].Enabled) << l.nome;
        }
    }
}

TEST(DetailStirrupDialog, LeastSteelPerMetreTieGoesToTheThinnerBar)
{
    struct Linha {
        const char* nome;
        double espAlt1;
        long indice;
    };
    // 1 cm² every 10 cm against 2 cm² every 20 cm: the same steel per metre.
    const Linha linhas[] = {
        {"tie", 10, 1},
        {"thinner has more steel", 9, 2},
        {"thinner has less steel", 11, 1},
    };
    for (const auto& l : linhas) {
        Bancada b(1, 20);
        b.p.AreaBitola(1) = 1;
        b.p.AreaBitola(2) = 2;
        b.p.IndiceEstriboMin = 2;
        b.p.EspEstriboAlt(1) = l.espAlt1;
        b.p.EspEstribo = 20;
        b.p.Form7MelhorSolução();
        EXPECT_EQ(b.p.Indice, l.indice) << l.nome;
        EXPECT_EQ(b.p.AcoPorMetro(2), 0.1) << l.nome;
    }
}

TEST(DetailHooks, AllowanceByHookTypeAndSupplementaryAlwaysAt45)
{
    struct Linha {
        bool a45;
        double diam, gancho, ganchoSup;
    };
    const Linha linhas[] = {
        {true, 0.5, 10, 10},  {false, 0.5, 14, 10},  {true, 1.0, 10, 10},   {false, 1.0, 20, 10},
        {false, 0.63, 14, 10}, {false, 0.8, 16, 10}, {true, 1.2, 12, 12},   {false, 1.2, 24, 12},
    };
    for (const auto& l : linhas) {
        Bancada b(1, 20);
        b.p.DiamEstribo = l.diam;
        b.p.Form1.Option7[0].Value = l.a45;
        b.p.Form1.Option7[1].Value = !l.a45;
        b.p.Ganchos41();
        EXPECT_EQ(b.p.ComprGancho, l.gancho) << l.diam << (l.a45 ? " at 45" : " at 90");
        EXPECT_EQ(b.p.ComprGanchoSup, l.ganchoSup) << l.diam;
    }
}

TEST(DetailStirrupsSilent, KeepsTheSearchedStirrupAndChecksItsSpacing)
{
    struct Linha {
        const char* nome;
        long s;
        int check5;
        double esp;
        const char* flag;
        const char* texto;
    };
    // 25 mm bars in a 19.5 cm column: minimum 6.3 mm at 19; 5 mm only with the same steel, at 18.
    const Linha linhas[] = {
        {"thinner than the minimum, same steel", 1, 1, 18, "n", "φ5 c/18"},
        {"thinner than the minimum, other steel", 1, 0, 19, "s", "φ5 c/19"},
        {"the minimum itself", 2, 0, 19, "n", "φ6.3 c/19"},
        {"thicker than the minimum", 4, 0, 19, "n", "φ10 c/19"},
    };
    for (const auto& l : linhas) {
        Bancada b(2.5, 19.5);
        b.p.Form1.Check3.Value = 1;
        b.modo(Modo::Manual);
        b.p.Form1.Check5.Value = l.check5;
        b.p.DiamEstribo = b.p.DiamBitola(l.s);
        b.p.PesoEstribo = b.p.PesoBitola(l.s);
        b.p.Form10Estribo28();
        EXPECT_EQ(b.p.DiamEstribo, b.p.DiamBitola(l.s)) << l.nome;
        EXPECT_EQ(b.p.PesoEstribo, b.p.PesoBitola(l.s)) << l.nome;
        EXPECT_EQ(b.p.DiamEstriboMin, 0.625) << l.nome;
        EXPECT_EQ(b.p.IndiceEstriboMin, 2) << l.nome;
        EXPECT_EQ(b.p.EspEstribo, l.esp) << l.nome;
        EXPECT_EQ(b.p.EspEstriboAlt(1), 18) << l.nome;
        EXPECT_EQ(b.p.FlagErro, l.flag) << l.nome;
        EXPECT_EQ(b.p.TextoEstribo, l.texto) << l.nome;
        EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
    }
}
