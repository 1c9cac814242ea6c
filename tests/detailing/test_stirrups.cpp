// Stirrup diameter and spacing on every path of the choice, the "Escolha dos
// estribos" dialog, the least steel per metre, hooks, and the silent check.

#include "detailing/bancada.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace pilarix;
using pilarix::test::Textos;

namespace {

enum Modo { PreDef, Economico, Manual };

struct Bancada : test::Bancada {
    Bancada(double diamLong, double menorDim, Modo m, const char* aco = "Aço CA-50A", double fyk = 5000)
    {
        p.DiamLong = diamLong;
        p.MenorDim = menorDim;
        p.Form1.Combo1.Text = aco;
        p.fyk = fyk;
        p.Form1.Option3.Value = m == PreDef;
        p.Form1.Option5.Value = m == Economico;
        p.Form1.Option6.Value = m == Manual;
    }
};

} // namespace

TEST(DetailStirrups, SpacingLimitsBySteelClassAndSameSteelSpacings)
{
    // steel, fyk, φl, smaller side; minimum stirrup (cm, catalogue index), spacing, same-steel spacings of 5, 6.3, 8 mm
    const std::tuple<const char*, double, double, double, double, long, double, double, double, double> linhas[] = {
        {"Aço CA-50A", 5000, 1.6, 20, 0.5, 1, 19, 19, 19, 19},     // 12 φl bites
        {"Aço CA-50B", 5000, 1.25, 30, 0.5, 1, 15, 15, 15, 15},
        {"Aço CA-25A", 2500, 1.25, 30, 0.5, 1, 20, 20, 20, 20},    // 24 φl does not bite
        {"Aço CA-25B", 2500, 0.8, 30, 0.5, 1, 19, 19, 19, 19},     // 24 φl bites
        {"Aço CA-60A", 6000, 1.25, 30, 0.5, 1, 20, 20, 20, 20},    // no bar limit
        {"Aço CA-60B", 6000, 1.0, 19.5, 0.5, 1, 19, 19, 19, 19},   // side below 20 floored
        {"Aço CA-50A", 5000, 2.5, 19.5, 0.625, 2, 19, 18, 19, 19}, // 6.3 mm; 5 mm floored to 18
        {"Aço CA-60A", 6000, 2.5, 30, 0.625, 2, 20, 15, 20, 20},   // same-steel spacing exactly whole
        {"Aço CA-50A", 5000, 4.0, 40, 1.0, 4, 20, 11, 17, 20},
        {"Aço CA-25B", 2500, 3.2, 25, 0.8, 3, 20, 20, 20, 20},
    };
    for (const auto& l : linhas) {
        const auto& [aco, fyk, diamLong, menorDim, diamMin, indiceMin, esp, alt1, alt2, alt3] = l;
        Bancada b(diamLong, menorDim, Economico, aco, fyk);
        b.p.Estribo28();
        const auto& p = b.p;
        EXPECT_EQ(std::tuple(aco, fyk, diamLong, menorDim, p.DiamEstriboMin, p.IndiceEstriboMin, p.EspEstribo,
                             p.EspEstriboAlt(1), p.EspEstriboAlt(2), p.EspEstriboAlt(3)),
                  l);
    }
}

TEST(DetailStirrups, EveryPathOfTheChoice)
{
    // 25 mm bars in a 19.5 cm column of CA-50: the minimum is 6.3 mm at 19 cm; with
    // the same steel 5 mm may go at 18 cm and has the least steel per metre.
    const Textos erro = {"Mensagem de erro | O estribo pré-definido possue diâmetro inferior ao permitido pela norma. "
                         "Será usado o valor mínimo permitido que é de 6.3mm. | Item 18.4.3"};
    const Textos escolha = {"Escolha dos estribos"};
    const struct {
        const char* nome;
        Modo modo;
        int check5;
        const char* recalcula;
        const char* combo3;
        int opcao; // answer of "Escolha dos estribos"
        double diamLong, peso;
        const char* texto;
        Textos janelas; // dialogs shown
    } linhas[] = {
        {"economic, other steel: minimum", Economico, 0, "n", "5 mm", 4, 2.5, 0.25, "φ6.3 c/19", {}},
        {"economic, same steel: least steel", Economico, 1, "n", "5 mm", 4, 2.5, 0.16, "φ5 c/18", {}},
        {"economic, grey same-steel box", Economico, 2, "n", "5 mm", 4, 2.5, 0.25, "φ6.3 c/19", {}},
        {"pre-defined below the minimum is told", PreDef, 0, "n", "5 mm", 4, 2.5, 0.25, "φ6.3 c/19", erro},
        {"... and told again on a repeated pass", PreDef, 0, "s", "5 mm", 4, 2.5, 0.25, "φ6.3 c/19", erro},
        {"pre-defined below, same steel", PreDef, 1, "n", "5 mm", 4, 2.5, 0.16, "φ5 c/18", {}},
        {"pre-defined equal to the minimum", PreDef, 0, "n", "6.3 mm (1/4'')", 4, 2.5, 0.25, "φ6.3 c/19", {}},
        {"pre-defined above keeps the spacing", PreDef, 1, "n", "10 mm (3/8'')", 4, 2.5, 0.63, "φ10 c/19", {}},
        {"unknown pre-defined text keeps the last", PreDef, 0, "n", "7 mm", 4, 2.5, 0.4, "φ8 c/19", {}},
        {"manual: the permitted diameter", Manual, 0, "n", "5 mm", 0, 2.5, 0.25, "φ6.3 c/19", escolha},
        {"manual: the thinner one at its spacing", Manual, 0, "n", "5 mm", 1, 2.5, 0.16, "φ5 c/18", escolha},
        {"manual: least steel per metre", Manual, 0, "n", "5 mm", 4, 2.5, 0.16, "φ5 c/18", escolha},
        {"manual: a disabled option is the least steel", Manual, 0, "n", "5 mm", 3, 2.5, 0.16, "φ5 c/18", escolha},
        {"manual, repeated pass: staged at new spacing", Manual, 0, "s", "5 mm", 0, 2.5, 0.4, "φ8 c/19", {}},
        {"manual with 5 mm allowed asks nothing", Manual, 0, "n", "5 mm", 0, 1.6, 0.16, "φ5 c/19", {}},
    };
    for (const auto& l : linhas) {
        Bancada b(l.diamLong, 19.5, l.modo);
        b.p.Form1.Check5.Value = l.check5;
        b.p.Form1.Combo3.Text = l.combo3;
        b.p.Recalcula = l.recalcula;
        b.dialogos.stirrupOption = l.opcao;
        // what an earlier pre-defined and interactive choice left
        b.p.DiamEstriboPreDef = b.p.DiamEstriboEsc = 0.8;
        b.p.PesoEstriboPreDef = b.p.PesoEstriboEsc = 0.4;
        b.p.IndiceEstriboPreDef = 3;
        b.p.EspEstriboEsc = 7;
        b.p.Estribo28();
        // the stirrup never fails the calculation
        EXPECT_EQ(std::tuple(b.p.TextoEstribo, b.p.PesoEstribo, b.p.FlagErro), std::tuple(l.texto, l.peso, "n"))
            << l.nome;
        EXPECT_EQ(l.janelas == escolha ? b.mostrado("janela") : b.mostrados(), l.janelas) << l.nome;
    }
}

TEST(DetailStirrupDialog, ListsThePermittedDiameterThenTheThinnerOnes)
{
    // 40 mm bars: 10 mm at 20 cm, or with the same steel 8 mm at 20, 6.3 at 17, 5 at 11.
    const Textos opcoes = {"fi de 1mm a cada 20cm. (independe do tipo de aço do estribo).", "fi de 0.8mm a cada 20cm.",
                           "fi de 0.63mm a cada 17cm.", "fi de 0.5mm a cada 11cm.",
                           "Utilizar a solução que proporcione menos quantidade de aço por metro"};
    const std::tuple<double, double, long> escolhas[] = {{1, 20, 4}, {0.8, 20, 3}, {0.63, 17, 2}, {0.5, 11, 1},
                                                         {0.5, 11, 1}};
    for (int opcao = 0; opcao < 5; ++opcao) {
        Bancada b(4.0, 40, Manual);
        b.dialogos.stirrupOption = opcao;
        b.p.Estribo28();
        ASSERT_EQ(b.mostrados(),
                  Textos{"Escolha dos estribos | A bitola do estribo deverá ser de 10mm2 com espaçamento de 20cm "
                         "Porém, se os estribos e a armadura longitudinal forem do MESMO TIPO DE AÇO, poderá ser "
                         "adotada uma das soluções abaixo: | " + std::to_string(opcao)});
        EXPECT_EQ(b.dialogos.messages[0]["opcoes"].get<Textos>(), opcoes);
        EXPECT_EQ(std::tuple(b.p.DiamEstribo, b.p.EspEstribo, b.p.Indice), escolhas[opcao]) << "option " << opcao;
        for (std::size_t i = 0; i < 4; ++i) // cleared after OK
            EXPECT_EQ(b.p.Form7.Option1[i].Caption + (b.p.Form7.Option1[i].Enabled ? "on" : ""), "") << opcao;
    }
    // Least steel per metre: 1 cm² every 10 cm ties with 2 cm² every 20 cm and goes to the thinner bar.
    for (const auto& [espAlt1, indice] : {std::pair{10.0, 1L}, {9.0, 2L}, {11.0, 1L}}) {
        Bancada b(1, 20, Manual);
        b.p.AreaBitola(1) = 1;
        b.p.AreaBitola(2) = 2;
        b.p.IndiceEstriboMin = 2;
        b.p.EspEstriboAlt(1) = espAlt1;
        b.p.EspEstribo = 20;
        b.p.Form7MelhorSolução();
        EXPECT_EQ(b.p.Indice, indice) << espAlt1;
    }
}

TEST(DetailHooks, AllowanceByHookTypeAndSupplementaryAlwaysAt45)
{
    // 45°: 10 φt, at least 10; right angle: 20 φt, at least 14; supplementary always as at 45°
    const std::tuple<bool, double, double, double> linhas[] = {
        {true, 0.5, 10, 10},   {false, 0.5, 14, 10}, {true, 1.0, 10, 10},  {false, 1.0, 20, 10},
        {false, 0.63, 14, 10}, {false, 0.8, 16, 10}, {true, 1.2, 12, 12},  {false, 1.2, 24, 12}};
    for (const auto& [a45, diam, gancho, ganchoSup] : linhas) {
        Bancada b(1, 20, Manual);
        b.p.DiamEstribo = diam;
        b.p.Form1.Option7[0].Value = a45;
        b.p.Form1.Option7[1].Value = !a45;
        b.p.Ganchos41();
        EXPECT_EQ(std::tuple(a45, diam, b.p.ComprGancho, b.p.ComprGanchoSup), std::tuple(a45, diam, gancho, ganchoSup));
    }
}

TEST(DetailStirrupsSilent, KeepsTheSearchedStirrupAndChecksItsSpacing)
{
    // 25 mm bars in a 19.5 cm column: minimum 6.3 mm at 19; 5 mm only with the same steel, at 18.
    const std::tuple<long, int, const char*, std::string> linhas[] = {
        {1, 1, "n", "φ5 c/18"}, {1, 0, "s", "φ5 c/19"}, {2, 0, "n", "φ6.3 c/19"}, {4, 0, "n", "φ10 c/19"}};
    for (const auto& [s, check5, flag, texto] : linhas) {
        Bancada b(2.5, 19.5, Manual);
        b.p.Form1.Check3.Value = 1;
        b.p.Form1.Check5.Value = check5;
        b.p.DiamEstribo = b.p.DiamBitola(s);
        b.p.PesoEstribo = b.p.PesoBitola(s);
        b.p.Form10Estribo28();
        EXPECT_EQ(std::tuple(b.p.PesoEstribo, b.p.IndiceEstriboMin, b.p.FlagErro, b.p.TextoEstribo, b.mostrados()),
                  std::tuple(b.p.PesoBitola(s), 2L, std::string(flag), texto, Textos{}));
    }
}
