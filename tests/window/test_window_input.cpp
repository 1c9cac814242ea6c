// The window's own view of its input: what a result, the search's list and the saved
// project depend on, what is put back by an undo, and the checks made before a
// calculation reads the boxes.

#include "window/policy_dialogs.h"
#include "window/window_input.h"

#include <gtest/gtest.h>

using namespace pilarix;

TEST(WindowInput, OtherValuesOutOfRangeAreRefusedNamingTheValue)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"0.0001", "", nullptr},
        {"0.01", "2.5", nullptr},
        {"0.0100001", "", "Precisão = 0.0100001 está fora do intervalo aceito"},
        {"0", "", "Precisão = 0 está fora"},
        {"-0.001", "", "Precisão = -0.001 está fora"},
        {"abc", "", "Precisão = \"abc\" não é um número"},
        {" ", "", "A precisão está vazia"},
        {"0.001", "0", "Diâmetro máximo do agregado graúdo = 0 cm: deve ser maior que zero"},
        {"0.001", "1,9", "Diâmetro máximo do agregado graúdo = \"1,9\" não é um número"},
    };
    for (const auto& [precisao, agregado, mensagem] : rows) {
        const auto m = conferenciaDeOutrosValores(precisao, agregado);
        ASSERT_EQ(m.has_value(), mensagem != nullptr) << precisao << " " << agregado;
        if (mensagem) {
            EXPECT_EQ(m->rfind(mensagem, 0), 0u) << *m;
        }
    }
}

TEST(WindowInput, EachScopeDependsOnItsOwnInputs)
{
    const struct {
        const char *nome, *valor;
        bool projeto, resultado, busca;
    } rows[] = {
        {"Text1", "25", true, true, true},       {"Text16", "500", true, true, true},
        {"Combo1", "Aço CA-60A", true, true, true}, {"Form8.Text1", "0.001", true, true, true},
        {"Bitola fixa", "7", true, true, true},  {"Check2", "0", true, true, true},
        {"Text4", "3", true, true, false},       {"Text3", "5", true, true, false},
        {"Option3|Option5|Option6", "Option5", true, true, false},
        {"Text31", "5", true, false, false},     {"Text6", "10", true, false, false},
        {"Casos", "1\nvento;100;200", true, true, true},
    };
    for (const auto& r : rows) {
        PolicyDialogs d;
        Program p(d);
        const auto antes = [&](Alcance a) { return fotoDaEntrada(p, a); };
        const std::string projeto = antes(Alcance::Projeto), resultado = antes(Alcance::Resultado),
                          busca = antes(Alcance::Busca);
        ASSERT_TRUE(restauraEntrada(p, r.nome, r.valor)) << r.nome;
        EXPECT_EQ(fotoDaEntrada(p, Alcance::Projeto) != projeto, r.projeto) << r.nome;
        EXPECT_EQ(fotoDaEntrada(p, Alcance::Resultado) != resultado, r.resultado) << r.nome;
        EXPECT_EQ(fotoDaEntrada(p, Alcance::Busca) != busca, r.busca) << r.nome;
    }
}

TEST(WindowInput, EveryInputIsPutBackAsItWasRead)
{
    PolicyDialogs d;
    Program origem(d), destino(d);
    origem.Form1.Text1.Text = "35";
    origem.Form1.Check3.Value = 1;
    origem.Form1.Option7[0].Value = false;
    origem.Form1.Option7[1].Value = true;
    origem.Form8.Text2.Text = "1.9";
    origem.BitolaFixa = 9;
    origem.OutrosCasos = {{"vento", "100", "-20.5"}, {"sismo", "80", "3"}};
    for (const auto& [nome, valor] : valoresDaEntrada(origem, Alcance::Projeto))
        ASSERT_TRUE(restauraEntrada(destino, nome, valor)) << nome;
    EXPECT_EQ(fotoDaEntrada(destino, Alcance::Projeto), fotoDaEntrada(origem, Alcance::Projeto));
    EXPECT_FALSE(destino.Form1.Text3.Enabled) << "d' automático takes the d' box out of use";
    EXPECT_EQ(destino.OutrosCasos.size(), 2u);
}

TEST(WindowInput, ImpossibleValuesAreRefusedBeforeAnythingIsCalculated)
{
    // Each once gave "Ok" with figures that meant nothing (a negative βx, a negative
    // weight, a negative area); the same check runs in the window and on the command
    // line, in the program's units as the box's list makes them.
    const struct {
        const char *name, *box, *value;
        const char* message; // the start of the refusal; none: calculated
    } rows[] = {
        {"the defaults", "Text16", "400", nullptr},
        {"γc absurdly small", "Text21", "0.0001", "A caixa \"γc (coef. do concreto)\" tem 0.0001, fora do que"},
        {"γs below 1", "Text22", "0.9", "A caixa \"γs (coef. do aço)\" tem 0.9"},
        {"Es negative", "Text20", "-21000", "A caixa \"Es\" tem -21000 KN/cm2, fora"},
        {"a negative length", "Text23", "-300", "A caixa \"Comprimento (cm)\" tem -300"},
        {"bars per face not whole", "Text4", "2.5", "A caixa \"Barras nas faces da base\" tem 2.5"},
        {"bars per face above 500", "Text5", "501", "A caixa \"Barras nas faces da altura\" tem 501"},
        {"a base of zero", "Text1", "0", "A caixa \"Base (cm)\" tem 0"},
        {"a base of 8 cm is raised to 12 by the calculation", "Text1", "8", nullptr},
        {"Nd beyond any column", "Text16", "1e307", "A caixa \"Nd\" tem 1e307 KN"},
        {"a tension is a force", "Text16", "-400", nullptr},
        {"a negative moment is a moment", "Text17", "-10000", nullptr},
        {"d' past the middle of the section", "Text3", "10", "A caixa \"d' (cm)\" tem 10"},
        {"a comma is not the command line's point", "Text16", "400,5", "A caixa \"Nd\" tem \"400,5\", que não é"},
    };
    for (const auto& r : rows) {
        PolicyDialogs d;
        Program p(d);
        ASSERT_TRUE(restauraEntrada(p, r.box, r.value)) << r.name;
        const auto m = conferenciaDaEntrada(p);
        ASSERT_EQ(m.has_value(), r.message != nullptr) << r.name << (m ? ": " + *m : "");
        if (r.message) {
            EXPECT_EQ(m->rfind(r.message, 0), 0u) << r.name << ": " << *m;
            EXPECT_NE(m->find("Nada foi calculado."), std::string::npos) << *m;
            // The command line's run of "&Calcula" says the same and calculates nothing.
            p.Command1_Click();
            EXPECT_EQ(p.Form1.Text30.Text, "erro") << r.name;
            EXPECT_TRUE(p.Form1.Text11.Text.empty()) << r.name;
            ASSERT_FALSE(d.records.empty()) << r.name;
            EXPECT_EQ(d.records.back().mensagem, *m) << r.name;
        }
    }
}
