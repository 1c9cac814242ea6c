#pragma once
// The forms of the program as plain data: every control with its caption, list and
// default, as the window shows it at start (before "Padrão.txt" is loaded).

#include "window/controls.h"

#include <array>
#include <string>

namespace pilarix {

// "Pilarix Normal", the main window.
struct Form1Model {
    Form1Model();

    std::string Caption = "Pilarix Normal";

    // "Dimensões"
    TextBox Text1, Text2, Text23, Text31, Text32;
    // "Arranjo"
    TextBox Text4, Text5, Text3;
    CheckBox Check3;
    CommandButton Command2, Command3, Command4, Command5;     // bars per face + / -
    CommandButton Command13, Command14, Command15, Command16; // base and depth - / +
    CommandButton Command17;                                 // "estimrar &d'"
    // "Esforços e Resistências"
    TextBox Text16, Text17, Text18, Text20, Text21, Text22;
    ComboBox Combo4, Combo5, Combo6, Combo7, Combo1;
    // "Cobrimento"
    OptionButton Option1, Option2;
    ComboBox Combo2;
    CheckBox Check1; // correct the cover without asking
    // "Bitola (mm)"
    std::array<TextBox, 8> Text7;
    CheckBox Check2;
    // "Estribos"
    OptionButton Option3, Option5, Option6;
    ComboBox Combo3;
    // With "Definir manualmente": the stirrup the engineer types, its diameter (the
    // list of Combo3 after an empty entry) and its spacing in cm. Either empty, the
    // calculation asks "Escolha dos estribos" as it always did.
    ComboBox EstriboDiametro;
    TextBox EstriboEspacamento;
    CheckBox Check5;
    // "Ganchos": element 0 is the 45° hook, element 1 the right-angle hook
    std::array<OptionButton, 2> Option7;
    // drawing
    TextBox Text6; // "Escala"
    bool Image1Visible = true;  // the picture shown before any result
    bool CotasVisiveis = false; // the dimension labels of the drawing
    // results
    TextBox Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text19;
    TextBox Text25, Text26, Text27, Text28, Text29, Text30;
    // The rule set, and what ABNT NBR 6118:2014 adds: the moments of the base (direction
    // of h) and of both ends in the direction of b, in Md's unit and signed as Md
    // (equal signs tension the same face); the effective lengths (cm, empty: the
    // column's length); the method of the local second order.
    ComboBox Norma, SegundaOrdem;
    TextBox MdBase, MyTopo, MyBase, LeH, LeB;
    // buttons
    CommandButton Command1;  // "&Calcula"
    CommandButton Command6;  // "&Sai"
    CommandButton Command7;  // "Valores &padrão"
    CommandButton Command8;  // "Calcula &melhor solução"
    CommandButton Command9;  // next solution
    CommandButton Command10; // previous solution
    CommandButton Command11; // "&Outras soluções"
};

// "Mensagem de erro".
struct Form2Model {
    std::string Caption = "Mensagem de erro";
    Label Label1; // the message
    Label Label2; // the clause of the standard
    CommandButton Command1{"Continuar"};
};

// "Cobrimento", the cover question.
struct Form4Model {
    std::string Caption = "Cobrimento";
    Label Label1{"Cobrimento"};
    Label Label2; // the message
    Label Label3; // the clause; it also tells the first button which correction to run
    CommandButton Command2{"&1 - Utilizar cobrimento mínimo"};
    CommandButton Command1{"&2 - Ignorar"};
};

// "Estimativa de d'".
struct Form5Model {
    Form5Model();
    std::string Caption = "Estimativa de d'";
    ComboBox Combo1; // "Estribo"
    ComboBox Combo2; // "Barras longitudinais"
    TextBox Text1;   // "Cobrimento (mm)"
    TextBox Text2;   // the estimate, mm
    CommandButton Command4{"&Calcula"};
    CommandButton Command2{"Calcula e &aceita"};
    CommandButton Command3{"&Volta"};
    // diameters last matched by the lists, mm (0 before any match)
    double DiamEstriboMm = 0, DiamLongMm = 0;
};

// "Escolha dos estribos".
struct Form7Model {
    Form7Model();
    std::string Caption = "Escolha dos estribos";
    std::string FrameCaption = "Estribos";
    Label Label1, Label2;
    std::array<OptionButton, 5> Option1;
    CommandButton Command1{"OK"};
};

// "Outros valores".
struct Form8Model {
    Form8Model();
    std::string Caption = "Outros valores";
    ComboBox Combo1; // "Diâmetro máximo dos estribos"
    ComboBox Combo3; // "Diâmetro máximo das barras longitudinais"
    TextBox Text2;   // "Diâmetro máximo do agregado graúdo (cm)"
    TextBox Text1;   // "Precisão"
    CommandButton Command1{"&Voltar"};
    static constexpr const char* Nota =
        "OBS: Valores muito alto ou muito baixo de precisão podem causar travamento do programa. "
        "O valor padrão é de 0,0001";
};

// "Soluções", the list of stored arrangements.
struct Form11Model {
    static constexpr int kRows = 40;
    struct Row {
        OptionButton Option;
        std::string Peso, nBase, nAltura, DiamEstriboMm, Estribo; // the five boxes of a row
    };
    std::string Caption = "Soluções";
    std::array<Row, kRows> Rows;
    int RowsShown = 0;
};

// Every form of the program.
struct Forms {
    Form1Model Form1;
    Form2Model Form2;
    Form4Model Form4;
    Form5Model Form5;
    Form7Model Form7;
    Form8Model Form8;
    Form11Model Form11;
};

// Fixed list contents, shared by the forms and the files.
namespace lists {
extern const std::vector<std::string> forca;       // Combo4
extern const std::vector<std::string> momento;     // Combo5
extern const std::vector<std::string> tensao;      // Combo6, Combo7
extern const std::vector<std::string> aco;         // Combo1
extern const std::vector<std::string> agressividade; // Combo2
extern const std::vector<std::string> norma;         // Norma: the 2001 project, ABNT NBR 6118:2014 and :2023
extern const std::vector<std::string> segundaOrdem;  // SegundaOrdem: "curvatura", "rigidez"
extern const std::vector<std::string> estribo;     // Combo3, Form8.Combo1
extern const std::vector<std::string> estriboDigitado; // EstriboDiametro: "" and then estribo
extern const std::vector<std::string> longitudinal; // Form8.Combo3
extern const std::vector<std::string> estriboVirgula;      // Form5.Combo1
extern const std::vector<std::string> longitudinalVirgula; // Form5.Combo2
} // namespace lists

} // namespace pilarix
