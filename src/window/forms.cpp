#include "window/forms.h"

#include "engine/catalogue.h"

namespace pilarix {

namespace lists {
const std::vector<std::string> forca{"Kgf", "Tf", "N", "KN"};
const std::vector<std::string> momento{"Kgf.mm", "Kgf.cm", "Kgf.m", "Tf.mm", "Tf.cm", "Tf.m",
                                       "N.mm",   "N.cm",   "N.m",   "KN.mm", "KN.cm", "KN.m"};
const std::vector<std::string> tensao{"MPa",   "Kgf/mm2", "Kgf/cm2", "Kgf/m2", "Tf/mm2", "Tf/cm2", "Tf/m2",
                                      "N/mm2", "N/cm2",   "N/m2",    "KN/mm2", "KN/cm2", "KN/m2"};
const std::vector<std::string> aco{"Aço CA-25A", "Aço CA-50A", "Aço CA-60A",
                                   "Aço CA-25B", "Aço CA-50B", "Aço CA-60B"};
const std::vector<std::string> agressividade{"I", "II", "III", "IV"};
const std::vector<std::string> norma{"Projeto de revisão da NB1 / 2001", "ABNT NBR 6118:2014", "ABNT NBR 6118:2023"};
const std::vector<std::string> segundaOrdem{"curvatura", "rigidez"};
namespace {
// The bar lists take their labels from the catalogue: stirrups are bars 1 to 4,
// longitudinal bars 4 to 11.
std::vector<std::string> rotulos(int primeira, int ultima, bool virgula)
{
    std::vector<std::string> v;
    for (int i = primeira; i <= ultima; ++i)
        v.emplace_back(virgula ? engine::bar(i).labelComma : engine::bar(i).label);
    return v;
}
} // namespace
const std::vector<std::string> estribo = rotulos(1, engine::kLastStirrupBar, false);
const std::vector<std::string> estriboDigitado = [] {
    std::vector<std::string> v{""};
    v.insert(v.end(), estribo.begin(), estribo.end());
    return v;
}();
const std::vector<std::string> longitudinal = rotulos(engine::kFirstLongitudinalBar, engine::kBarCount, false);
const std::vector<std::string> estriboVirgula = rotulos(1, engine::kLastStirrupBar, true);
const std::vector<std::string> longitudinalVirgula = rotulos(engine::kFirstLongitudinalBar, engine::kBarCount, true);
} // namespace lists

namespace {
TextBox box(std::string text)
{
    TextBox t;
    t.Text = std::move(text);
    return t;
}
ComboBox combo(const std::vector<std::string>& list, std::string text)
{
    return ComboBox{list, std::move(text), true};
}
} // namespace

Form1Model::Form1Model()
{
    Text1 = box("20");
    Text2 = box("50");
    Text23 = box("300");
    Text4 = box("2");
    Text5 = box("4");
    Text16 = box("400");
    Text17 = box("10000");
    Text18 = box("20");
    Text20 = box("21000");
    Text21 = box("1.5");
    Text22 = box("1.15");
    Text6 = box("5");
    Combo4 = combo(lists::forca, "KN");
    Combo5 = combo(lists::momento, "KN.cm");
    Combo6 = combo(lists::tensao, "MPa");
    Combo7 = combo(lists::tensao, "KN/cm2");
    Combo1 = combo(lists::aco, "Aço CA-50A");
    Combo2 = combo(lists::agressividade, "II");
    Combo3 = combo(lists::estribo, "5 mm");
    EstriboDiametro = combo(lists::estriboDigitado, "");
    Norma = combo(lists::norma, lists::norma[0]);
    SegundaOrdem = combo(lists::segundaOrdem, "curvatura");

    Check3.Caption = "d' automático f(cobrimento)";
    Check2.Caption = "Automático";
    Check2.Value = 1;
    Check5.Caption = "Mesmo tipo de aço";

    Option1.Caption = "dc = 10mm (&obras decorrentes)";
    Option2.Caption = "dc = 5mm (controle &rígido)";
    Option1.Value = true;
    Option3.Caption = "&Pré-def.";
    Option5.Caption = "Mais econômico";
    Option6.Caption = "Definir m&anualmente";
    Option3.Value = true;
    Option7[0].Caption = "&45     ou semi-circ.";
    Option7[1].Caption = "&90";
    Option7[0].Value = true;

    const char* bars[8] = {"10", "12,5", "16", "20", "22,5", "25", "32", "40"};
    for (int i = 0; i < 8; ++i) {
        Text7[i] = box(bars[i]);
        Text7[i].ForeColor = kInactiveCaptionText;
    }

    Command1.Caption = "&Calcula";
    Command2.Caption = "+";
    Command3.Caption = "-";
    Command4.Caption = "+";
    Command5.Caption = "-";
    Command13.Caption = "-";
    Command14.Caption = "-";
    Command15.Caption = "+";
    Command16.Caption = "+";
    Command6.Caption = "&Sai";
    Command7.Caption = "Valores &padrão";
    Command8.Caption = "Calcula &melhor solução";
    Command9.Caption = ">";
    Command10.Caption = "<";
    Command11.Caption = "&Outras soluções";
    Command17.Caption = "estimrar &d'";
    Command9.Visible = Command10.Visible = Command11.Visible = false;
}

Form5Model::Form5Model()
{
    Combo1 = combo(lists::estriboVirgula, "5 mm");
    Combo2 = combo(lists::longitudinalVirgula, "10 mm (3/8'')");
}

Form7Model::Form7Model()
{
    Option1[4].Caption = "Utilizar a solução que proporcione menos quantidade de aço por metro";
    for (int i = 0; i < 4; ++i)
        Option1[i].Enabled = false;
}

Form8Model::Form8Model()
{
    Combo1 = combo(lists::estribo, "10 mm (3/8'')");
    Combo3 = combo(lists::longitudinal, "40 mm");
    Text1 = box("0.0001");
}

} // namespace pilarix
