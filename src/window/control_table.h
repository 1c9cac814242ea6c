#pragma once
// The table of the window's controls: the one place where the names the program
// gives its controls live ("Text16", "Combo4", "Check3", "Option7(1)",
// "Form8.Text1", "Norma", "MdBase", the heading of the report "Obra"...), each with
// what kind of control it is, its value as text, the comparisons of the window's
// input it takes part in, and where a project file keeps it. The project files
// (files/project_file.cpp), `pilarix-cli --set` (cli/controls_by_name.cpp) and the
// window's input (window/window_input.cpp: undo, a result out of date, the project
// modified) all read their controls from here.

#include "window/program.h"

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace pilarix {

// What a set of inputs is compared for.
enum class Alcance {
    Projeto,   // everything a project file saves
    Resultado, // everything the result of "&Calcula" depends on (not the steps of
               // the "-" / "+" buttons nor the scale of the exported drawing)
    Busca,     // what the list of the search was found for: the section, the forces
               // and the load cases, the materials, the cover, the bar settings and "Outros valores"; not
               // the bars per face, d' and the stirrup, which the list itself puts in
};

struct Controle {
    enum class Tipo {
        Caixa,      // a text box: any text
        Lista,      // a list: its text is one of its entries
        Marca,      // a check box: 0 clear, 1 ticked, 2 grey
        Opcao,      // an option button: True (the others of its group are cleared) or False
        Habilitado, // whether a box or a button is in use: True or False
        Texto,      // a text the program keeps beside its forms: the heading of the report
        Grupo,      // a group of option buttons: the name of the one selected, "" for none
        Composto,   // several values of the program as one text: the fixed bar, the load cases
    };

    // Where a project file keeps the control.
    struct NoArquivo {
        // 1 to 39: its record among the 39 of every file; above 39, its order among the
        // records written after them; 0: a file does not keep it.
        int lugar = 0;
        const char* rotulo = nullptr;   // one of the 39: how a message names it ("Text16, Nd")
        const char* registro = nullptr; // after the 39: the name its record starts with ("MdBase;...")
    };

    // The control itself, on the forms.
    using Alvo = std::variant<TextBox*, ComboBox*, CheckBox*, OptionButton*, bool*>;

    std::string nome;
    Tipo tipo;
    unsigned alcances = 0; // a bit for each Alcance
    NoArquivo arquivo;
    const std::vector<std::string>* lista = nullptr; // Lista: the entries it takes
    int grupo = 0;                                    // Opcao, Grupo: the buttons that clear one another
    Alvo (*noForm1)(Form1Model&) = nullptr;           // a control of the main window
    Alvo (*noForm8)(Form8Model&) = nullptr;           // a control of "Outros valores"
    std::string* (*noPrograma)(Program&) = nullptr;   // Texto
    std::string (*le)(const Program&) = nullptr;      // Composto
    void (*poe)(Program&, const std::string&) = nullptr;

    bool em(Alcance a) const;
    // One of the 39 records or a record of its own after them.
    bool noArquivo() const { return arquivo.lugar != 0; }

    // The value as text: a box's or a list's text, a check box's 0, 1 or 2, True or
    // False, the selected button's name for a group. The forms alone hold no Texto
    // nor Composto: those are read from the program.
    std::string valor(const Forms& f) const;
    std::string valor(const Program& p) const;
    // Puts a value back as valor gives it. A check box takes "1" and "2", anything
    // else clears it; an option button set to True clears the rest of its group, as
    // clicking it does.
    void atribui(Forms& f, const std::string& v) const;
    void atribui(Program& p, const std::string& v) const;

    // The control of a box, list, tick, option or state, on these forms.
    Alvo alvo(Forms& f) const { return noForm1 ? noForm1(f.Form1) : noForm8(f.Form8); }
    // The buttons of a group, or of an option's group, in the order of the table.
    std::vector<const Controle*> opcoesDoGrupo() const;
};

// Every control, the window's inputs in the order the window compares them.
const std::vector<Controle>& controles();

// The control of that name, or none.
const Controle* controle(std::string_view nome);

// The name the table gives the control at that address of the main window ("Text16",
// "Option7(1)", "Norma") or of "Outros valores" ("Form8.Text1"); empty for a control
// it does not hold (a command button, a box of another dialog). The window names its
// widgets so, and takes a control's name from nowhere else.
std::string_view nomeDoControle(const Form1Model& f, Controle::Alvo controle);
std::string_view nomeDoControle(const Form8Model& f, Controle::Alvo controle);
// The name on the control's own form: "Form8.Text1" is the box Text1 of the dialog
// "Outros valores"; a control of the main window is named as the table names it.
std::string_view nomeNoForm(std::string_view nome);

// Every text box of the main window, by name, in the order of their numbers: Text1,
// Text2, ..., Text7(0) to Text7(7), Text8, ...
std::vector<std::pair<std::string, const TextBox*>> textBoxesOf(const Form1Model& form);

} // namespace pilarix
