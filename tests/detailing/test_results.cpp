// The result boxes and their reset, and whole calculations of the default column
// through the command line: the repeated pass of a cover correction, the ignored
// cover, Check1, a wall and a bar too small.

#include "cli/cli.h"
#include "detailing/bancada.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <sstream>
#include <tuple>

using namespace pilarix;
using pilarix::test::Bancada;
using pilarix::test::Textos;

namespace {

nlohmann::ordered_json cli(std::vector<std::string> args)
{
    args.push_back("--json");
    std::ostringstream out, err;
    EXPECT_EQ(runCli(args, out, err), 0) << err.str();
    return nlohmann::ordered_json::parse(out.str());
}

} // namespace

TEST(DetailResultBoxes, MasksTheChosenBarAndTheReset)
{
    // AsMin, AsNec, AsReal, AsMinBarra, AsBarraD, AsBarra, Excesso, PesoLong, CobNominal, CobEfetivo, BetaX, Altura
    // into Text9..Text14, Text15, Text19, Text25, Text26, Text28, Text29 (BetaX·Altura); NZona into Text8.
    const std::tuple<std::array<double, 12>, std::int16_t, Textos, int> linhas[] = {
        // the chosen bar's box of Text7 is picked out by its area
        {{4, 0, 1234.5, 0.5, 0, 0.8, 100, 1234.5, 2.675, -1, 0.0456, 50}, 1,
         {"4.00", "0.00", "1234.50", "0.50", "0.00", "0.80", "100.00%", "1234.50", "2.68", "-1.00", "0.046", "2.3",
          "1"}, 0},
        {{0.004, 0.005, 0.006, 0.0004, 0.0005, 12.5, 16.6667, 0.125, 2.5, 2.5, 1.25, 40}, 5,
         {"0.00", "0.01", "0.01", "0.00", "0.00", "12.50", "16.67%", "0.13", "2.50", "2.50", "1.250", "50.0", "5"}, 7},
        {{0, 0, 0, 0, 0, 0.5, 0, 0, 0, 0, 0, 0}, 0, {}, -1}, // a stirrup size is not in the list
    };
    for (const auto& [v, nZona, caixas, destaque] : linhas) {
        Bancada b;
        auto& p = b.p;
        auto& f = p.Form1;
        std::tie(p.AsMin, p.AsNec, p.AsReal, p.AsMinBarra, p.AsBarraD, p.AsBarra, p.Excesso, p.PesoLong, p.CobNominal,
                 p.CobEfetivo, p.BetaX, p.Altura) = std::tuple_cat(v);
        p.NZona = nZona;
        p.TextoEstribo = "φ6.3 c/12";
        p.Imprime37();
        if (!caixas.empty()) {
            EXPECT_EQ((Textos{f.Text9.Text, f.Text10.Text, f.Text11.Text, f.Text12.Text, f.Text13.Text, f.Text14.Text,
                              f.Text15.Text, f.Text19.Text, f.Text25.Text, f.Text26.Text, f.Text28.Text,
                              f.Text29.Text, f.Text8.Text}),
                      caixas);
        }
        EXPECT_EQ(f.Text27.Text, "φ6.3 c/12");
        for (int i = 0; i < 8; ++i) {
            const auto& t = f.Text7[static_cast<std::size_t>(i)];
            EXPECT_EQ(std::pair(t.BackColor, t.ForeColor),
                      i == destaque ? std::pair(kDarkBlue, kWhite) : std::pair(kWhite, kInactiveCaptionText))
                << v[5] << " box " << i;
        }

        // The reset empties every result and the highlight, and keeps the input.
        f.Text30.Text = "x";
        f.Text30.BackColor = kRed;
        f.CotasVisiveis = true;
        p.ErroEntrada = "s";
        f.Text3.Text = "4.0";
        p.Zera31();
        for (const auto* t : {&f.Text8, &f.Text9, &f.Text10, &f.Text11, &f.Text12, &f.Text13, &f.Text14, &f.Text15,
                              &f.Text19, &f.Text25, &f.Text26, &f.Text27, &f.Text28, &f.Text29, &f.Text30})
            EXPECT_EQ(t->Text, "");
        for (const auto& t : f.Text7)
            EXPECT_EQ(std::pair(t.BackColor, t.ForeColor), std::pair(kWhite, kInactiveCaptionText));
        EXPECT_EQ(std::tuple(f.Text30.BackColor, f.CotasVisiveis, p.ErroEntrada, f.Text3.Text),
                  std::tuple(kWhite, false, "n", "4.0"));
    }
}

// The default column: 20 x 50 cm, 2 x 4 bars, 400 kN and 10000 kN.cm, fck 20 MPa,
// CA-50A, class II with Δc = 1 cm (nominal cover 3 cm), a 5 mm pre-defined stirrup,
// and no d' typed: the cover question sets d' from the cover.
TEST(DetailWholeCalculation, CoverPathsAWallAndABarTooSmall)
{
    const auto efetivo = [](const char* cob, int resposta) {
        return test::cobrimento("Cobrimento efetivo = " + std::string(cob)
                                    + " cm menor que o combrimento nominal = 3 cm.",
                                "Item 7.4.7 ", "&1 - Utilizar cobrimento mínimo", resposta);
    };
    const struct {
        std::vector<std::string> args;
        Textos dialogos;
        const char *erros, *flag, *text3, *text11, *text26, *text27;
    } linhas[] = {
        // the first button: d' = 0 with 10 mm bars; then d' = 0.5 + 0.5 + 3 = 4, which needs 12.5 mm,
        // and a second pass sets d' = 0.5 + 0.625 + 3; 8 bars of 12.5 mm, stirrups at 12 φl = 15 cm
        {{}, {efetivo("-1", 1), efetivo("2.875", 1)}, "Ok", "n", "4.12500", "10.00", "3.00", "φ5 c/15"},
        // "&2 - Ignorar" ends in error with the first arrangement kept: 8 bars of 10 mm, d' 0
        {{"--cobrimento", "2"},
         {efetivo("-1", 2), test::cobrimento("Cobrimento mínimo das barras longitudinais = -0.5 cm menor que o mínimo "
                                             "= 1 cm (diâmetro da barra logitudinal)",
                                             "Item 7.4.7.5", "&1 - Utilizar cobrimento mínimo", 2)},
         "erro", "s", "", "6.40", "-1.00", "φ5 c/12"},
        {{"--set", "Check1=1"}, {}, "Ok", "n", "4.12500", "10.00", "3.00", "φ5 c/15"}, // corrects without asking
        {{"--set", "Text2=101"},
         {test::erro("Maior dimensão da seção transversal = 101cm, excedeu 5 vezes a menor dimensão = 100. O pilar "
                     "deve ser tratado como pilar parede.",
                     "Item 18.4.1 do Projeto de revisão da NB1 / 2001")},
         "erro", "sPparede", "", "", "", ""},
        // 1800 kN needs more than 10 mm bars, the largest allowed here
        {{"--set", "Text16=1800", "--set", "Form8.Combo3=10 mm (3/8'')"},
         {test::erro("Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.",
                     "")},
         "erro", "s", "", "", "", ""},
    };
    for (const auto& l : linhas) {
        const auto doc = cli(l.args);
        const auto& c = doc["caixas"];
        const auto nome = l.args.empty() ? "default" : l.args[1];
        EXPECT_EQ(test::juntos(doc["mensagens"]), l.dialogos) << nome;
        const auto& e = doc["estado"];
        EXPECT_EQ(std::tuple(doc["Erros"], e["FlagErro"], c["Text3"], c["Text11"], c["Text26"], c["Text27"]),
                  std::tuple(l.erros, l.flag, l.text3, l.text11, l.text26, l.text27))
            << nome;
    }
    // The default in detail: axis spacing 11.75 and 13.92 cm, beyond 20 φt = 10 cm: every interior bar is tied.
    const auto doc = cli({});
    const auto& e = doc["estado"];
    EXPECT_EQ(std::tuple(e["dLinha"], e["Recalcula"], e["EspEixoH"], doc["caixas"]["Text7(1).destaque"]),
              std::tuple(4.125, "n", 11.75, true));
    EXPECT_EQ(std::tuple(e["PesoLong"], doc["caixas"]["Text19"]), std::tuple(24, "24.00")); // 8 x 1.0 kg/m x 3 m
    EXPECT_EQ(e["SupH"], nlohmann::json::array({"", ""}));
    EXPECT_EQ(e["SupV"], nlohmann::json::array({"", "s", "s", ""}));
}
