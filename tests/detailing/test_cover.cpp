// Nominal and effective cover: the "Cobrimento" question and its two answers, the
// corrections of the cover and d', the d' text, the Check1 path and the silent twin.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

namespace {

const std::string kItemAgregado = "Item 7.4.7.6 do Projeto de revisão da NB1 / 2001";
const std::string kItemCobrimento = "Item 7.4.7 ";
const std::string kItemBarra = "Item 7.4.7.5";
const std::string kBotaoMinimo = "&1 - Utilizar cobrimento mínimo";
const std::string kBotaoMeio = "&1 - Calcular cobrimento nominal múltiplo de 0,5";

struct Bancada {
    RecordingDialogs dialogos;
    Program p{dialogos};
    Bancada()
    {
        p.Bitolas22();
        p.FlagErro = "n";
        p.Recalcula = "n";
        p.Base = 20;
        p.Altura = 50;
        p.DiamLong = 1;
        p.DiamEstribo = 0.5;
        p.Form1.Combo2.Text = "II";
        selectOption(p.Form1.Option1, p.Form1.Option2);
        p.Form1.Option7[0].Value = true;
        p.Form1.Option7[1].Value = false;
    }
};

std::string efetivoMenor(const std::string& efetivo, const std::string& nominal)
{
    return "Cobrimento efetivo = " + efetivo + " cm menor que o combrimento nominal = " + nominal + " cm.";
}

std::string barraMenor(const std::string& cobrimento, const std::string& diam)
{
    return "Cobrimento mínimo das barras longitudinais = " + cobrimento + " cm menor que o mínimo = " + diam
           + " cm (diâmetro da barra logitudinal)";
}

std::string agregadoMaior(const std::string& nominal, const std::string& limite)
{
    return "Cobrimento nominal = " + nominal + " cm, < " + limite + " cm (dimensão máxima do argagado graúdo / 1.2)";
}

} // namespace

TEST(DetailCoverCorrections, InnerHeightInWholeCentimetres)
{
    struct Linha {
        double altura, cobNominal, diamEstribo, diamLong;
        double alturaInterna, cobEfetivo, dLinha;
        const char* texto;
    };
    const Linha linhas[] = {
        {50, 2.5, 0.5, 1, 45, 2.5, 3.5, "3.50000"},
        {50, 2.3, 0.5, 1, 45, 2.5, 3.5, "3.50000"},
        {50, 3, 0.5, 1, 44, 3, 4, "4.0"},
        {50, 3, 0.5, 1.25, 44, 3, 4.125, "4.12500"},
        {50.5, 2.5, 0.5, 1.6, 45, 2.75, 4.05, "4.5000"}, // the fraction's leading zero is lost
        {40, 2.5, 0.5, 1.5, 35, 2.5, 3.75, "3.75000"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.Altura = l.altura;
        b.p.Base = 1000; // only the depth enters
        b.p.CobNominal = l.cobNominal;
        b.p.DiamEstribo = l.diamEstribo;
        b.p.DiamLong = l.diamLong;
        b.p.CalcdLinha();
        EXPECT_EQ(b.p.AlturaInterna, l.alturaInterna) << l.texto;
        EXPECT_EQ(b.p.CobEfetivo, l.cobEfetivo) << l.texto;
        EXPECT_DOUBLE_EQ(b.p.dLinha, l.dLinha) << l.texto;
        EXPECT_EQ(b.p.Form1.Text3.Text, l.texto);
        EXPECT_EQ(b.p.Recalcula, "s") << l.texto;
        EXPECT_EQ(b.p.CobNominal, l.cobNominal) << l.texto;
    }
}

TEST(DetailCoverCorrections, BarCoverRoundedUpToHalfCentimetres)
{
    struct Linha {
        const char* nome;
        double diamLong, diamEstribo, dLinhaAntes;
        double cobNominal, cobEfetivo, dLinha;
        const char* texto; // nullptr: Text3 untouched
        const char* recalcula;
    };
    const Linha linhas[] = {
        {"1.37 rounds to 1.5", 2.0, 0.63, 3.0, 2.0 - 0.63, 1.5, 0.63 + 1.0 + 1.5, "3.13000", "s"},
        {"whole stays", 2.5, 0.5, 3.0, 2.0, 2.0, 3.75, "3.75000", "s"},
        {"a tenth goes to the half", 1.6, 0.5, 0, 1.6 - 0.5, 1.5, 2.8, "2.80000", "s"},
        {"above the half goes to the next whole", 1.25, 0.5, 0, 0.75, 1.0, 2.125, "2.12500", "s"},
        {"exactly the half stays", 1.0, 0.5, 0, 0.5, 0.5, 1.5, "1.50000", "s"},
        {"d' already larger: no new pass", 2.0, 0.63, 4.0, 2.0 - 0.63, 1.5, 4.0, nullptr, "n"},
        {"d' equal: no new pass", 2.0, 0.63, 0.63 + 1.0 + 1.5, 2.0 - 0.63, 1.5, 0.63 + 1.0 + 1.5, nullptr, "n"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.DiamLong = l.diamLong;
        b.p.DiamEstribo = l.diamEstribo;
        b.p.dLinha = l.dLinhaAntes;
        b.p.Form1.Text3.Text = "antes";
        b.p.CalcdLinhaFi();
        EXPECT_EQ(b.p.CobNominal, l.cobNominal) << l.nome << ": the nominal keeps the unrounded value";
        EXPECT_EQ(b.p.CobEfetivo, l.cobEfetivo) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.dLinha, l.dLinha) << l.nome;
        EXPECT_EQ(b.p.Form1.Text3.Text, l.texto ? l.texto : "antes") << l.nome;
        EXPECT_EQ(b.p.Recalcula, l.recalcula) << l.nome;
    }
}

TEST(DetailCoverCorrections, AggregateCoverRoundedUpAndDLinhaUntouched)
{
    struct Linha {
        double agregado, cobNominal;
    };
    const Linha linhas[] = {{1.9, 2.0}, {2.4, 2.0}, {1.2, 1.0}, {3.8, 3.5}, {0.6, 0.5}, {2.5, 2.5}};
    for (const auto& l : linhas) {
        Bancada b;
        b.p.DiamAgregado = l.agregado;
        b.p.dLinha = 4;
        b.p.CalccNAgr();
        EXPECT_EQ(b.p.CobNominal, l.cobNominal) << l.agregado;
        EXPECT_EQ(b.p.dLinha, 4) << l.agregado;
        EXPECT_EQ(b.p.Recalcula, "n") << l.agregado;
    }
}

TEST(DetailCoverDialog, FirstButtonRunsTheCorrectionNamedByTheClauseOnly)
{
    struct Linha {
        std::string item;
        double cobNominal, dLinha;
        const char* recalcula;
    };
    // state: h = 50, nominal 3, d' 10, aggregate 1.9 (nominal 2 after CalccNAgr)
    const Linha linhas[] = {
        {kItemAgregado, 2.0, 10, "n"},
        {kItemCobrimento, 3, 4, "s"},
        {kItemBarra, 0.5, 10, "n"}, // 1.0 - 0.5 as the nominal; d' 10 is already larger
        {"Item 7.4.7", 3, 10, "n"}, // without the blank: nothing
        {"", 3, 10, "n"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.CobNominal = 3;
        b.p.dLinha = 10;
        b.p.DiamAgregado = 1.9;
        b.p.Form4.Label3.Caption = l.item;
        b.p.Form4Command2_Click();
        EXPECT_EQ(b.p.CobNominal, l.cobNominal) << "[" << l.item << "]";
        EXPECT_EQ(b.p.dLinha, l.dLinha) << "[" << l.item << "]";
        EXPECT_EQ(b.p.Recalcula, l.recalcula) << "[" << l.item << "]";
        EXPECT_EQ(b.p.FlagErro, "n") << "[" << l.item << "]";
    }
}

TEST(DetailCoverDialog, IgnoreMarksTheCalculationAndLeavesTheMessageAlone)
{
    Bancada b;
    b.p.MensagemErro = "m";
    b.p.ItemNorma = "i";
    b.p.dLinha = 2;
    b.p.Form4Command1_Click();
    EXPECT_EQ(b.p.FlagErro, "s");
    EXPECT_EQ(b.p.MensagemErro, "m");
    EXPECT_EQ(b.p.ItemNorma, "i");
    EXPECT_EQ(b.p.dLinha, 2);
    EXPECT_EQ(b.p.Recalcula, "n");
}

TEST(DetailNominalCover, ClassAndToleranceAndTheAggregateQuestion)
{
    struct Linha {
        const char* nome;
        bool opt1, opt2;
        const char* classe;
        double agregado;
        int resposta;
        double deltaC, cobNominal;
        std::string mensagem; // empty: no question
        const char* flag;
    };
    const Linha linhas[] = {
        {"II, 10 mm tolerance", true, false, "II", 0, 1, 1, 3, "", "n"},
        {"I, 5 mm tolerance", false, true, "I", 0, 1, 0.5, 2, "", "n"},
        {"III", true, false, "III", 0, 1, 1, 4, "", "n"},
        {"IV, 5 mm", false, true, "IV", 0, 1, 0.5, 4.5, "", "n"},
        {"neither tolerance keeps the last", false, false, "II", 0, 1, 0.7, 2.7, "", "n"},
        {"19 mm aggregate passes", true, false, "II", 1.9, 1, 1, 3, "", "n"},
        {"aggregate exactly 1.2 times passes", true, false, "I", 3.0, 1, 1, 2.5, "", "n"},
        {"38 mm aggregate, first button", true, false, "II", 3.8, 1, 1, 3.5, agregadoMaior("3", "3.17"), "n"},
        {"38 mm aggregate, ignore", true, false, "II", 3.8, 2, 1, 3, agregadoMaior("3", "3.17"), "s"},
        {"odd figures in the message", false, true, "I", 2.5, 1, 0.5, 2.5, agregadoMaior("2", "2.08"), "n"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.Form1.Option1.Value = l.opt1;
        b.p.Form1.Option2.Value = l.opt2;
        b.p.DeltaC = 0.7;
        b.p.Form1.Combo2.Text = l.classe;
        b.p.DiamAgregado = l.agregado;
        b.dialogos.coverAnswer = l.resposta;
        b.p.CobNominal40();
        EXPECT_EQ(b.p.DeltaC, l.deltaC) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.CobNominal, l.cobNominal) << l.nome;
        EXPECT_EQ(b.p.FlagErro, l.flag) << l.nome;
        if (l.mensagem.empty()) {
            EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
            continue;
        }
        ASSERT_EQ(b.dialogos.messages.size(), 1u) << l.nome;
        const auto& m = b.dialogos.messages[0];
        EXPECT_EQ(m["janela"], "Cobrimento") << l.nome;
        EXPECT_EQ(m["mensagem"], l.mensagem) << l.nome;
        EXPECT_EQ(m["item"], kItemAgregado) << l.nome;
        EXPECT_EQ(m["botao1"], kBotaoMeio) << l.nome;
    }
}

TEST(DetailEffectiveCover, QuestionsAnswersAndTheCheck1Path)
{
    struct Pergunta {
        std::string mensagem, item, botao1;
        int resposta;
    };
    struct Linha {
        const char* nome;
        double dLinha, diamLong, agregado;
        const char* classe;
        const char* recalculaAntes;
        double cobNominalAntes;
        int check1;
        int resposta;
        // expected
        std::vector<Pergunta> perguntas;
        double cobNominal, cobEfetivo, dLinhaDepois;
        const char* texto3;
        const char* recalcula;
        const char* flag;
    };
    const Linha linhas[] = {
        {"covers agree", 4, 1, 0, "II", "n", 0, 0, 1, {}, 3, 3, 4, "", "n", "n"},
        {"no d' yet, first button", 0, 1, 0, "II", "n", 0, 0, 1,
         {{efetivoMenor("-1", "3"), kItemCobrimento, kBotaoMinimo, 1}}, 3, 3, 4, "4.0", "s", "n"},
        {"no d' yet, ignore both", 0, 1, 0, "II", "n", 0, 0, 2,
         {{efetivoMenor("-1", "3"), kItemCobrimento, kBotaoMinimo, 2},
          {barraMenor("-0.5", "1"), kItemBarra, kBotaoMinimo, 2}},
         3, -1, 0, "", "n", "s"},
        {"no d' yet, Check1 corrects silently", 0, 1, 0, "II", "n", 0, 1, 2, {}, 3, 3, 4, "4.0", "s", "n"},
        {"grey Check1 still asks", 0, 1, 0, "II", "n", 0, 2, 1,
         {{efetivoMenor("-1", "3"), kItemCobrimento, kBotaoMinimo, 1}}, 3, 3, 4, "4.0", "s", "n"},
        {"repeated pass keeps the nominal it has", 3, 1, 0, "II", "s", 2, 0, 1, {}, 2, 2, 3, "", "n", "n"},
        {"thin bar cover, first button", 4.3, 3.2, 0, "I", "n", 0, 0, 1,
         {{barraMenor("2.7", "3.2"), kItemBarra, kBotaoMeio, 1}}, 2.7, 3, 5.1, "5.10000", "s", "n"},
        {"thin bar cover, Check1", 4.3, 3.2, 0, "I", "n", 0, 1, 2, {}, 2.7, 3, 5.1, "5.10000", "s", "n"},
        {"thin bar cover, ignore", 4.3, 3.2, 0, "I", "n", 0, 0, 2,
         {{barraMenor("2.7", "3.2"), kItemBarra, kBotaoMeio, 2}}, 2, 2.2, 4.3, "", "n", "s"},
        {"aggregate then effective cover", 0, 1, 3.8, "II", "n", 0, 0, 1,
         {{agregadoMaior("3", "3.17"), kItemAgregado, kBotaoMeio, 1},
          {efetivoMenor("-1", "3.5"), kItemCobrimento, kBotaoMinimo, 1}},
         3.5, 3.5, 4.5, "4.50000", "s", "n"},
        {"covers equal to four decimals", 3.99999, 1, 0, "II", "n", 0, 0, 1, {}, 3, 2.99999, 3.99999, "", "n", "n"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.dLinha = l.dLinha;
        b.p.DiamLong = l.diamLong;
        b.p.DiamAgregado = l.agregado;
        b.p.Form1.Combo2.Text = l.classe;
        if (std::string(l.classe) == "I")
            selectOption(b.p.Form1.Option2, b.p.Form1.Option1); // 1.5 + 0.5
        b.p.Recalcula = l.recalculaAntes;
        b.p.CobNominal = l.cobNominalAntes;
        b.p.Form1.Check1.Value = l.check1;
        b.p.Form4.Command2.Caption = kBotaoMeio; // what an earlier question left
        b.dialogos.coverAnswer = l.resposta;
        b.p.Cobrimento27();

        ASSERT_EQ(b.dialogos.messages.size(), l.perguntas.size()) << l.nome;
        for (std::size_t i = 0; i < l.perguntas.size(); ++i) {
            const auto& m = b.dialogos.messages[i];
            EXPECT_EQ(m["janela"], "Cobrimento") << l.nome;
            EXPECT_EQ(m["mensagem"], l.perguntas[i].mensagem) << l.nome;
            EXPECT_EQ(m["item"], l.perguntas[i].item) << l.nome;
            EXPECT_EQ(m["botao1"], l.perguntas[i].botao1) << l.nome;
            EXPECT_EQ(m["resposta"], l.perguntas[i].resposta) << l.nome;
        }
        EXPECT_DOUBLE_EQ(b.p.CobNominal, l.cobNominal) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.CobEfetivo, l.cobEfetivo) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.dLinha, l.dLinhaDepois) << l.nome;
        EXPECT_EQ(b.p.Form1.Text3.Text, l.texto3) << l.nome;
        EXPECT_EQ(b.p.Recalcula, l.recalcula) << l.nome;
        EXPECT_EQ(b.p.FlagErro, l.flag) << l.nome;
        // hooks and the inner stirrup follow the corrected cover
        EXPECT_EQ(b.p.ComprGancho, 10) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.BaseEstribo, 20 - 2 * l.cobEfetivo) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.AlturaEstribo, 50 - 2 * l.cobEfetivo) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.ComprEstribo, 2 * ((20 - 2 * l.cobEfetivo) + (50 - 2 * l.cobEfetivo)) + 10) << l.nome;
    }
}

TEST(DetailEffectiveCover, StirrupLengthUsesTheRightAngleHookToo)
{
    Bancada b;
    b.p.dLinha = 4;
    b.p.DiamEstribo = 0.8;
    b.p.DiamLong = 1.6; // cover 4 - 0.8 - 0.8 = 2.4, below 3: use Check1
    b.p.Form1.Check1.Value = 1;
    b.p.Form1.Option7[0].Value = false;
    b.p.Form1.Option7[1].Value = true;
    b.p.Cobrimento27();
    EXPECT_EQ(b.p.CobEfetivo, 3);
    EXPECT_EQ(b.p.ComprGancho, 16);
    EXPECT_EQ(b.p.ComprEstribo, 2 * (14 + 44) + 16);
}

TEST(DetailEffectiveCoverSilent, CorrectsAsTheFirstButtonWouldAndAsksNothing)
{
    struct Linha {
        const char* nome;
        double dLinha, diamLong, agregado;
        const char* recalculaAntes;
        double cobNominalAntes;
        double cobNominal, cobEfetivo, dLinhaDepois;
        const char* recalcula;
    };
    const Linha linhas[] = {
        {"covers agree", 4, 1, 0, "n", 0, 3, 3, 4, "n"},
        {"no d' yet", 0, 1, 0, "n", 0, 3, 3, 4, "s"},
        {"aggregate governs the nominal", 0, 1, 3.8, "n", 0, 3.5, 3.5, 4.5, "s"},
        {"thin bar cover", 5.7, 4.0, 0, "n", 0, 3.5, 3.5, 6.0, "s"},
        {"repeated pass keeps the nominal", 3, 1, 3.8, "s", 2, 2, 2, 3, "n"},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.Form1.Check3.Value = 1;
        b.p.dLinha = l.dLinha;
        b.p.DiamLong = l.diamLong;
        b.p.DiamAgregado = l.agregado;
        b.p.Recalcula = l.recalculaAntes;
        b.p.CobNominal = l.cobNominalAntes;
        b.p.Form10Cobrimento27();
        EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.CobNominal, l.cobNominal) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.CobEfetivo, l.cobEfetivo) << l.nome;
        EXPECT_DOUBLE_EQ(b.p.dLinha, l.dLinhaDepois) << l.nome;
        EXPECT_EQ(b.p.Recalcula, l.recalcula) << l.nome;
        EXPECT_EQ(b.p.FlagErro, "n") << l.nome;
        EXPECT_EQ(b.p.ComprGancho, 10) << l.nome;
    }
}
