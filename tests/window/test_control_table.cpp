// The one table of the window's controls, as its three readers see it: a project
// file keeps every project input and gives it back, `--set` takes a control by its
// name and refuses what the control does not take, the window compares and puts
// back its inputs.

#include "cli/controls_by_name.h"
#include "window/control_table.h"
#include "window/policy_dialogs.h"
#include "window/window_input.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

using namespace pilarix;
using Tipo = Controle::Tipo;

namespace {

std::string arquivo(Program& p, const std::string& nome)
{
    p.NomeArquivo = (std::filesystem::temp_directory_path() / (nome + std::to_string(::getpid()))).string();
    p.Grava32();
    std::ifstream in(p.NomeArquivo, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// A value the control takes and does not hold on a new window.
std::string outroValor(const Controle& c, const Program& p)
{
    const std::string agora = c.valor(p);
    switch (c.tipo) {
    case Tipo::Lista:
        for (const auto& v : *c.lista)
            if (v != agora)
                return v;
        return {};
    case Tipo::Marca: return "2";
    case Tipo::Opcao:
    case Tipo::Habilitado: return agora == "True" ? "False" : "True";
    case Tipo::Grupo: return c.opcoesDoGrupo().back()->nome;
    case Tipo::Texto: return "Edifício; \"A\"";
    case Tipo::Composto: return c.nome == "Casos" ? "1\nvento;100;-20.5" : "7";
    case Tipo::Caixa: break;
    }
    return "7.5";
}

} // namespace

TEST(ControlTable, EachNameAndEachRecordIsInOnePlace)
{
    PolicyDialogs d;
    Program p(d);
    std::set<std::string> nomes, registros;
    std::set<int> lugares;
    for (const auto& c : controles()) {
        EXPECT_TRUE(nomes.insert(c.nome).second) << c.nome << " twice";
        if (c.noArquivo()) {
            EXPECT_TRUE(lugares.insert(c.arquivo.lugar).second) << c.nome << " shares its place in the file";
            if (c.arquivo.lugar <= 39) {
                EXPECT_TRUE(c.arquivo.rotulo && !c.arquivo.registro) << c.nome;
            } else {
                EXPECT_TRUE(c.arquivo.registro && registros.insert(c.arquivo.registro).second) << c.nome;
            }
        }
        // The table's list is the one the window shows, or a file and --set would
        // take what the window cannot show.
        if (c.tipo == Tipo::Lista) {
            EXPECT_EQ(*c.lista, std::get<ComboBox*>(c.alvo(p))->List) << c.nome;
        }
    }
    for (int lugar = 1; lugar <= 39; ++lugar)
        EXPECT_TRUE(lugares.count(lugar)) << "no control in record " << lugar;
}

TEST(ControlTable, EveryProjectInputIsSavedAndComesBackByItsName)
{
    PolicyDialogs d;
    Program novo(d);
    const std::string padrao = arquivo(novo, "pilarix_ct_padrao");
    for (const auto& c : controles()) {
        if (c.em(Alcance::Projeto) && c.tipo != Tipo::Grupo) {
            EXPECT_TRUE(c.noArquivo()) << c.nome << " is a project input no file keeps";
        }
        if (!c.noArquivo() && c.tipo != Tipo::Grupo)
            continue;
        Program p(d), lido(d);
        const std::string valor = outroValor(c, p);
        // As the engineer gives it: by --set, by the window's undo, or by the window's
        // own state of its boxes.
        std::string erro;
        const bool porNome = setControlByName(p, c.nome, valor, erro);
        EXPECT_EQ(porNome, c.tipo != Tipo::Habilitado && c.tipo != Tipo::Grupo && c.tipo != Tipo::Composto)
            << c.nome << ": " << erro;
        if (!porNome && !restauraEntrada(p, c.nome, valor))
            c.atribui(p, valor);
        ASSERT_EQ(c.valor(p), valor) << c.nome;
        EXPECT_NE(arquivo(p, "pilarix_ct_salvo"), padrao) << c.nome << " left out of the file";
        lido.NomeArquivo = p.NomeArquivo;
        lido.Carrega33();
        ASSERT_EQ(lido.ErroArquivo, "") << c.nome;
        EXPECT_EQ(c.valor(lido), valor) << c.nome << " lost on loading";
        EXPECT_EQ(fotoDaEntrada(lido, Alcance::Projeto), fotoDaEntrada(p, Alcance::Projeto)) << c.nome;
        std::filesystem::remove(p.NomeArquivo);
    }
}

TEST(ControlTable, SetByNameRefusesWhatTheControlDoesNotTake)
{
    const struct {
        const char *caso, *nome, *valor;
        const char* erro; // none: taken
        const char* fica; // what the control then holds; none: the value given
    } rows[] = {
        {"a unit outside its list", "Combo4", "kN", "\"kN\" não está na lista de Combo4", nullptr},
        {"a bar outside Outros valores' list", "Form8.Combo3", "50 mm", "\"50 mm\" não está na lista de Form8.Combo3",
         nullptr},
        {"the rule set by its year", "Norma", "2023", nullptr, "ABNT NBR 6118:2023"},
        {"a year with no rule set", "Norma", "2019", "\"2019\" não está na lista de Norma", nullptr},
        {"no typed stirrup", "EstriboDiametro", "", nullptr, nullptr},
        {"a grey tick", "Check5", "2", nullptr, nullptr},
        {"a tick beyond grey", "Check1", "3", "Check1 aceita 0, 1 ou 2, não \"3\"", nullptr},
        {"an option in words", "Option7(1)", "sim", "Option7(1) aceita True ou False, não \"sim\"", nullptr},
        {"a result box", "Text30", "erro", nullptr, nullptr},
        {"a bar of the catalogue", "Text7(3)", "x", nullptr, nullptr},
        {"a box the window does not have", "Text24", "1", "controle desconhecido: Text24", nullptr},
        {"a group is the window's, not a control", "Option1|Option2", "Option2",
         "controle desconhecido: Option1|Option2", nullptr},
        {"the load cases come by --caso", "Casos", "1", "controle desconhecido: Casos", nullptr},
        {"a box's state is the program's", "Text3.Enabled", "False", "controle desconhecido: Text3.Enabled", nullptr},
        {"the record's spelling is not the control's", "Revisão", "B", "controle desconhecido: Revisão", nullptr},
    };
    for (const auto& r : rows) {
        PolicyDialogs d;
        Program p(d);
        const std::string antes = fotoDaEntrada(p, Alcance::Projeto);
        std::string erro;
        EXPECT_EQ(setControlByName(p, r.nome, r.valor, erro), r.erro == nullptr) << r.caso;
        EXPECT_EQ(erro, r.erro ? r.erro : "") << r.caso;
        if (r.erro) {
            EXPECT_EQ(fotoDaEntrada(p, Alcance::Projeto), antes) << r.caso << ": a refused value was kept";
        } else {
            EXPECT_EQ(controle(r.nome)->valor(p), r.fica ? r.fica : r.valor) << r.caso;
        }
    }
}

TEST(ControlTable, TheTextBoxesAreListedInTheOrderOfTheirNumbers)
{
    PolicyDialogs d;
    Program p(d);
    std::string nomes;
    for (const auto& [nome, caixa] : textBoxesOf(p.Form1))
        nomes += nome + " ";
    EXPECT_EQ(nomes, "Text1 Text2 Text3 Text4 Text5 Text6 Text7(0) Text7(1) Text7(2) Text7(3) Text7(4) Text7(5) "
                     "Text7(6) Text7(7) Text8 Text9 Text10 Text11 Text12 Text13 Text14 Text15 Text16 Text17 Text18 "
                     "Text19 Text20 Text21 Text22 Text23 Text25 Text26 Text27 Text28 Text29 Text30 Text31 Text32 ");
}

TEST(ControlTable, AControlIsNamedByItsPlaceOnItsForm)
{
    PolicyDialogs d;
    Program p(d);
    auto& f = p.Form1;
    TextBox solta;
    const struct {
        const char* caso;
        std::string_view nome;
        const char* esperado;
    } rows[] = {
        {"an input box", nomeDoControle(f, &f.Text16), "Text16"},
        {"a result box", nomeDoControle(f, &f.Text30), "Text30"},
        {"a bar of the catalogue", nomeDoControle(f, &f.Text7[3]), "Text7(3)"},
        {"the right-angle hook, whatever its place in the array", nomeDoControle(f, &f.Option7[1]), "Option7(1)"},
        {"a box's state is not the box", nomeDoControle(f, &f.Text3.Enabled), "Text3.Enabled"},
        {"a list of Outros valores", nomeDoControle(p.Form8, &p.Form8.Combo3), "Form8.Combo3"},
        {"a box of Outros valores on its own form", nomeNoForm(nomeDoControle(p.Form8, &p.Form8.Text1)), "Text1"},
        {"a hook on its own form", nomeNoForm("Option7(0)"), "Option7(0)"},
        {"a box of the main window is none of Outros valores", nomeDoControle(p.Form8, &f.Text1), ""},
        {"a box of no form", nomeDoControle(f, &solta), ""},
    };
    for (const auto& r : rows)
        EXPECT_EQ(r.nome, r.esperado) << r.caso;
    // Two rows at one place would give its widget the first one's name.
    for (const auto& c : controles())
        if (c.noForm1 || c.noForm8) {
            EXPECT_EQ(c.noForm1 ? nomeDoControle(p.Form1, c.alvo(p)) : nomeDoControle(p.Form8, c.alvo(p)), c.nome);
        }
}
