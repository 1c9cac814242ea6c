// "Definir manualmente" with the stirrup typed: taken as it is, nothing asked, and the
// final arrangement's re-check tells a spacing the rules refuse; with either box
// empty the calculation asks "Escolha dos estribos" as before.

#include "window/policy_dialogs.h"
#include "window/program.h"
#include "window/window_input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace pilarix;

namespace {

// 30 x 60 at 3500 kN, three bars on each depth face: 32 mm bars, whose stirrup is
// 8 mm at 20 cm at most, so the choice of the stirrup is asked when nothing is typed.
void coluna(Program& p, const std::string& diametro, const std::string& espacamento)
{
    ASSERT_TRUE(restauraEntrada(p, "Text1", "30"));
    ASSERT_TRUE(restauraEntrada(p, "Text2", "60"));
    ASSERT_TRUE(restauraEntrada(p, "Text5", "3"));
    ASSERT_TRUE(restauraEntrada(p, "Text16", "3500"));
    ASSERT_TRUE(restauraEntrada(p, "Text3", "4"));
    ASSERT_TRUE(restauraEntrada(p, "Option3|Option5|Option6", "Option6"));
    ASSERT_TRUE(restauraEntrada(p, "EstriboDiametro", diametro));
    ASSERT_TRUE(restauraEntrada(p, "EstriboEspacamento", espacamento));
}

long perguntas(const PolicyDialogs& d)
{
    return std::count_if(d.records.begin(), d.records.end(),
                         [](const DialogRecord& r) { return r.kind == DialogRecord::Kind::Stirrup; });
}

} // namespace

TEST(TypedStirrup, IsUsedAsTypedAndTheReCheckJudgesIt)
{
    const struct Row {
        const char* name;
        const char* diametro;
        const char* espacamento;
        long asked;       // "Escolha dos estribos" shown
        double diameter;  // cm, 0: whatever the answer gave
        double spacing;   // cm, 0: whatever the answer gave
        const char* erros; // the "Erros" box
    } rows[] = {
        {"8 mm at 15 cm, within the rules", "8 mm (5/16'')", "15", 0, 0.8, 15, "Ok"},
        {"10 mm at 20 cm, the largest spacing", "10 mm (3/8'')", "20", 0, 1.0, 20, "Ok"},
        {"8 mm at 25 cm, above the largest spacing", "8 mm (5/16'')", "25", 0, 0.8, 25, "erro"},
        {"5 mm at 15 cm, thinner than a quarter of the bar", "5 mm", "15", 0, 0.5, 15, "erro"},
        {"no diameter: the question", "", "15", 1, 0, 0, nullptr},
        {"no spacing: the question", "8 mm (5/16'')", "", 1, 0, 0, nullptr},
    };
    for (const Row& r : rows) {
        PolicyDialogs d;
        Program p(d);
        coluna(p, r.diametro, r.espacamento);
        p.Command1_Click();
        EXPECT_EQ(perguntas(d), r.asked) << r.name;
        ASSERT_TRUE(p.Resultado) << r.name << ": " << d.lastMessage();
        if (r.diameter != 0) {
            EXPECT_DOUBLE_EQ(p.Resultado->stirrup.diameter, r.diameter) << r.name;
            EXPECT_DOUBLE_EQ(p.Resultado->stirrup.spacing, r.spacing) << r.name;
        }
        if (r.erros) {
            EXPECT_EQ(p.Form1.Text30.Text, r.erros) << r.name << ": " << d.lastMessage();
        }
    }
}

TEST(TypedStirrup, ASpacingAboveTheLargestIsToldByTheReCheck)
{
    PolicyDialogs d;
    Program p(d);
    coluna(p, "8 mm (5/16'')", "25");
    p.Command1_Click();
    ASSERT_FALSE(d.records.empty());
    EXPECT_EQ(d.records.back().mensagem,
              "Arranjo final: o espaçamento dos estribos, 25 cm, excede o máximo de 20 cm para a barra longitudinal "
              "de 32 mm.");
    EXPECT_EQ(d.records.back().item, "Item 18.4.3");
}

TEST(TypedStirrup, TheSpacingIsCheckedBeforeCalculatingOnlyWithTheManualOption)
{
    const struct Row {
        const char* name;
        const char* opcao;
        const char* espacamento;
        const char* message; // the start of the refusal, none: accepted
    } rows[] = {
        {"empty", "Option6", "", nullptr},
        {"100 cm", "Option6", "100", nullptr},
        {"zero", "Option6", "0", "A caixa \"Espaçamento do estribo (cm)\" tem 0, fora"},
        {"above 100 cm", "Option6", "100.5", "A caixa \"Espaçamento do estribo (cm)\" tem 100.5, fora"},
        {"a comma", "Option6", "12,5", "A caixa \"Espaçamento do estribo (cm)\" tem \"12,5\", que não é um número"},
        {"another option leaves it unread", "Option3", "0", nullptr},
    };
    for (const Row& r : rows) {
        PolicyDialogs d;
        Program p(d);
        ASSERT_TRUE(restauraEntrada(p, "Option3|Option5|Option6", r.opcao));
        ASSERT_TRUE(restauraEntrada(p, "EstriboEspacamento", r.espacamento));
        const auto m = conferenciaDaEntrada(p);
        ASSERT_EQ(m.has_value(), r.message != nullptr) << r.name << (m ? ": " + *m : "");
        if (r.message) {
            EXPECT_EQ(m->rfind(r.message, 0), 0u) << r.name << ": " << *m;
        }
    }
}
