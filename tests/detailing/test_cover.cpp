// Nominal and effective cover: the "Cobrimento" question and its two answers, the
// corrections of the cover and d', the d' text, the Check1 path and the silent twin.

#include "detailing/bancada.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace pilarix;
using pilarix::test::Textos;

namespace {

const std::string kBotaoMinimo = "&1 - Utilizar cobrimento mínimo";
const std::string kBotaoMeio = "&1 - Calcular cobrimento nominal múltiplo de 0,5";

// The three questions as the dialog shows them, with the answer given.
std::string efetivo(const std::string& cobEfetivo, const std::string& nominal, int resposta)
{
    return test::cobrimento("Cobrimento efetivo = " + cobEfetivo + " cm menor que o combrimento nominal = " + nominal
                                + " cm.",
                            "Item 7.4.7 ", kBotaoMinimo, resposta);
}

std::string barra(const std::string& cob, const std::string& diam, const std::string& botao1, int resposta)
{
    return test::cobrimento("Cobrimento mínimo das barras longitudinais = " + cob + " cm menor que o mínimo = " + diam
                                + " cm (diâmetro da barra logitudinal)",
                            "Item 7.4.7.5", botao1, resposta);
}

std::string agregado(const std::string& nominal, const std::string& limite, int resposta)
{
    return test::cobrimento("Cobrimento nominal = " + nominal + " cm, < " + limite
                                + " cm (dimensão máxima do argagado graúdo / 1.2)",
                            "Item 7.4.7.6 do Projeto de revisão da NB1 / 2001", kBotaoMeio, resposta);
}

// A 20 x 50 column, 10 mm bars, 5 mm stirrups at 45°, class II with Δc = 1 cm.
struct Bancada : test::Bancada {
    Bancada()
    {
        p.Base = 20;
        p.Altura = 50;
        p.DiamLong = 1;
        p.DiamEstribo = 0.5;
        p.Form1.Combo2.Text = "II";
        selectOption(p.Form1.Option1, p.Form1.Option2);
        selectOption(p.Form1.Option7[0], p.Form1.Option7[1]);
    }
};

} // namespace

TEST(DetailCoverCorrections, DLinhaAndCoversInWholeAndHalfCentimetres)
{
    // The nominal cover grows until the inner height is whole: height, nominal cover, φl;
    // inner height, effective cover, d', the d' text (its fraction loses leading zeros).
    const std::tuple<double, double, double, double, double, double, std::string> inteiros[] = {
        {50, 2.5, 1, 45, 2.5, 3.5, "3.50000"}, {50, 2.3, 1, 45, 2.5, 3.5, "3.50000"}, {50, 3, 1, 44, 3, 4, "4.0"},
        {50, 3, 1.25, 44, 3, 4.125, "4.12500"}, {50.5, 2.5, 1.6, 45, 2.75, 4.05, "4.5000"}};
    for (const auto& [altura, cobNominal, diamLong, alturaInterna, cobEfetivo, dLinha, texto] : inteiros) {
        Bancada b;
        b.p.Altura = altura;
        b.p.Base = 1000; // only the depth enters
        b.p.CobNominal = cobNominal;
        b.p.DiamLong = diamLong;
        b.p.CalcdLinha();
        EXPECT_EQ(std::tuple(b.p.AlturaInterna, b.p.CobEfetivo, b.p.Form1.Text3.Text, b.p.Recalcula, b.p.CobNominal),
                  std::tuple(alturaInterna, cobEfetivo, texto, "s", cobNominal));
        EXPECT_DOUBLE_EQ(b.p.dLinha, dLinha) << texto;
    }
    // The bar's cover (φl - φt, kept unrounded as the nominal) rounded up to the half;
    // d' grows to it only when larger, with its text and a new pass.
    const std::tuple<double, double, double, double, double, const char*> linhas[] = {
        {2.0, 0.63, 3.0, 1.5, 0.63 + 1.0 + 1.5, "3.13000"}, // 1.37 rounds to 1.5
        {2.5, 0.5, 3.0, 2.0, 3.75, "3.75000"},              // whole stays
        {1.6, 0.5, 0, 1.5, 2.8, "2.80000"},                 // a tenth goes to the half
        {1.25, 0.5, 0, 1.0, 2.125, "2.12500"},              // above the half goes to the next whole
        {1.0, 0.5, 0, 0.5, 1.5, "1.50000"},                 // exactly the half stays
        {2.0, 0.63, 4.0, 1.5, 4.0, nullptr},                // d' already larger: Text3 untouched
        {2.0, 0.63, 0.63 + 1.0 + 1.5, 1.5, 0.63 + 1.0 + 1.5, nullptr}, // d' equal
    };
    for (const auto& [diamLong, diamEstribo, dLinhaAntes, cobEfetivo, dLinha, texto] : linhas) {
        Bancada b;
        b.p.DiamLong = diamLong;
        b.p.DiamEstribo = diamEstribo;
        b.p.dLinha = dLinhaAntes;
        b.p.Form1.Text3.Text = "antes";
        b.p.CalcdLinhaFi();
        EXPECT_EQ(std::tuple(b.p.CobNominal, b.p.CobEfetivo, b.p.Form1.Text3.Text, b.p.Recalcula),
                  std::tuple(diamLong - diamEstribo, cobEfetivo, texto ? texto : "antes", texto ? "s" : "n"));
        EXPECT_DOUBLE_EQ(b.p.dLinha, dLinha) << diamLong;
    }
    // The aggregate's nominal cover, d' left alone.
    for (const auto& [diamAgregado, cobNominal] : {std::pair{1.9, 2.0}, {2.4, 2.0}, {1.2, 1.0}, {3.8, 3.5}, {0.6, 0.5}})
    {
        Bancada b;
        b.p.DiamAgregado = diamAgregado;
        b.p.dLinha = 4;
        b.p.CalccNAgr();
        EXPECT_EQ(std::tuple(b.p.CobNominal, b.p.dLinha, b.p.Recalcula), std::tuple(cobNominal, 4.0, "n"));
    }
}

TEST(DetailNominalCover, ClassAndToleranceAndTheAggregateQuestion)
{
    // tolerance option (1: 10 mm, 2: 5 mm, 0: neither, Δc kept at 0.7), class, aggregate, answer;
    // Δc, nominal cover, FlagErro, the question asked
    const std::tuple<int, const char*, double, int, double, double, const char*, Textos> linhas[] = {
        {1, "II", 0, 1, 1, 3, "n", {}},        {2, "I", 0, 1, 0.5, 2, "n", {}},   {1, "III", 0, 1, 1, 4, "n", {}},
        {2, "IV", 0, 1, 0.5, 4.5, "n", {}},    {0, "II", 0, 1, 0.7, 2.7, "n", {}}, {1, "II", 1.9, 1, 1, 3, "n", {}},
        {1, "I", 3.0, 1, 1, 2.5, "n", {}}, // an aggregate of exactly 1.2 times the cover passes
        {1, "II", 3.8, 1, 1, 3.5, "n", {agregado("3", "3.17", 1)}},
        {1, "II", 3.8, 2, 1, 3, "s", {agregado("3", "3.17", 2)}},
        {2, "I", 2.5, 1, 0.5, 2.5, "n", {agregado("2", "2.08", 1)}},
    };
    for (const auto& [tolerancia, classe, diamAgregado, resposta, deltaC, cobNominal, flag, perguntas] : linhas) {
        Bancada b;
        b.p.Form1.Option1.Value = tolerancia == 1;
        b.p.Form1.Option2.Value = tolerancia == 2;
        b.p.DeltaC = 0.7;
        b.p.Form1.Combo2.Text = classe;
        b.p.DiamAgregado = diamAgregado;
        b.dialogos.coverAnswer = resposta;
        b.p.CobNominal40();
        EXPECT_EQ(std::tuple(b.p.DeltaC, b.p.FlagErro, b.mostrados()), std::tuple(deltaC, flag, perguntas))
            << classe << " " << diamAgregado;
        EXPECT_DOUBLE_EQ(b.p.CobNominal, cobNominal) << classe << " " << diamAgregado;
    }
}

TEST(DetailEffectiveCover, QuestionsAnswersTheCheck1PathAndTheSilentTwin)
{
    // The default column's own paths (ignore both questions, Check1 with no d') run whole in test_results.
    const struct {
        const char* nome;
        double dLinha, diamLong, diamAgregado;
        const char* classe; // class I goes with Δc = 0.5
        const char* recalculaAntes;
        double cobNominalAntes;
        int check1, resposta;
        Textos perguntas;
        double cobNominal, cobEfetivo, dLinhaDepois;
        const char *texto3, *recalcula, *flag;
    } linhas[] = {
        {"covers agree", 4, 1, 0, "II", "n", 0, 0, 1, {}, 3, 3, 4, "", "n", "n"},
        {"no d' yet, first button", 0, 1, 0, "II", "n", 0, 0, 1, {efetivo("-1", "3", 1)}, 3, 3, 4, "4.0", "s", "n"},
        {"grey Check1 still asks", 0, 1, 0, "II", "n", 0, 2, 1, {efetivo("-1", "3", 1)}, 3, 3, 4, "4.0", "s", "n"},
        {"repeated pass keeps the nominal it has", 3, 1, 3.8, "II", "s", 2, 0, 1, {}, 2, 2, 3, "", "n", "n"},
        {"thin bar cover, first button", 4.3, 3.2, 0, "I", "n", 0, 0, 1, {barra("2.7", "3.2", kBotaoMeio, 1)}, 2.7,
         3, 5.1, "5.10000", "s", "n"},
        {"thin bar cover, Check1", 4.3, 3.2, 0, "I", "n", 0, 1, 2, {}, 2.7, 3, 5.1, "5.10000", "s", "n"},
        {"thin bar cover, ignore", 4.3, 3.2, 0, "I", "n", 0, 0, 2, {barra("2.7", "3.2", kBotaoMeio, 2)}, 2, 2.2,
         4.3, "", "n", "s"},
        {"aggregate then effective cover", 0, 1, 3.8, "II", "n", 0, 0, 1,
         {agregado("3", "3.17", 1), efetivo("-1", "3.5", 1)}, 3.5, 3.5, 4.5, "4.50000", "s", "n"},
        {"covers equal to four decimals", 3.99999, 1, 0, "II", "n", 0, 0, 1, {}, 3, 2.99999, 3.99999, "", "n", "n"},
    };
    for (const auto& l : linhas) {
        // The search corrects as the first button would and asks nothing (hooks at a right angle there: 14 cm).
        for (const bool busca : {false, true}) {
            if (busca && std::string(l.flag) == "s")
                continue;
            Bancada b;
            b.p.Form1.Check3.Value = busca;
            if (busca)
                selectOption(b.p.Form1.Option7[1], b.p.Form1.Option7[0]);
            b.p.dLinha = l.dLinha;
            b.p.DiamLong = l.diamLong;
            b.p.DiamAgregado = l.diamAgregado;
            b.p.Form1.Combo2.Text = l.classe;
            if (std::string(l.classe) == "I")
                selectOption(b.p.Form1.Option2, b.p.Form1.Option1);
            b.p.Recalcula = l.recalculaAntes;
            b.p.CobNominal = l.cobNominalAntes;
            b.p.Form1.Check1.Value = l.check1;
            b.p.Form4.Command2.Caption = kBotaoMeio; // what an earlier question left
            b.dialogos.coverAnswer = l.resposta;
            if (busca)
                b.p.Form10Cobrimento27();
            else
                b.p.Cobrimento27();
            const std::string nome = std::string(l.nome) + (busca ? " (search)" : "");
            EXPECT_EQ(std::tuple(b.mostrados(), b.p.Form1.Text3.Text, b.p.Recalcula, b.p.FlagErro),
                      std::tuple(busca ? Textos{} : l.perguntas, l.texto3, l.recalcula, l.flag))
                << nome;
            EXPECT_DOUBLE_EQ(b.p.CobNominal, l.cobNominal) << nome;
            EXPECT_DOUBLE_EQ(b.p.CobEfetivo, l.cobEfetivo) << nome;
            EXPECT_DOUBLE_EQ(b.p.dLinha, l.dLinhaDepois) << nome;
            // the inner stirrup and its length with its hooks follow the corrected cover
            EXPECT_DOUBLE_EQ(b.p.ComprEstribo,
                             2 * ((20 - 2 * l.cobEfetivo) + (50 - 2 * l.cobEfetivo)) + (busca ? 14 : 10))
                << nome;
        }
    }
}
