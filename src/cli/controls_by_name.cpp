#include "cli/controls_by_name.h"

#include <map>

namespace pilarix {

namespace {

std::map<std::string, TextBox*> textBoxMap(Form1Model& f)
{
    std::map<std::string, TextBox*> m{
        {"Text1", &f.Text1},   {"Text2", &f.Text2},   {"Text3", &f.Text3},   {"Text4", &f.Text4},
        {"Text5", &f.Text5},   {"Text6", &f.Text6},   {"Text8", &f.Text8},   {"Text9", &f.Text9},
        {"Text10", &f.Text10}, {"Text11", &f.Text11}, {"Text12", &f.Text12}, {"Text13", &f.Text13},
        {"Text14", &f.Text14}, {"Text15", &f.Text15}, {"Text16", &f.Text16}, {"Text17", &f.Text17},
        {"Text18", &f.Text18}, {"Text19", &f.Text19}, {"Text20", &f.Text20}, {"Text21", &f.Text21},
        {"Text22", &f.Text22}, {"Text23", &f.Text23}, {"Text25", &f.Text25}, {"Text26", &f.Text26},
        {"Text27", &f.Text27}, {"Text28", &f.Text28}, {"Text29", &f.Text29}, {"Text30", &f.Text30},
        {"Text31", &f.Text31}, {"Text32", &f.Text32},
    };
    for (int i = 0; i < 8; ++i)
        m["Text7(" + std::to_string(i) + ")"] = &f.Text7[static_cast<std::size_t>(i)];
    return m;
}

struct OptionRef {
    OptionButton* button;
    std::vector<OptionButton*> group;
};

std::map<std::string, OptionRef> optionMap(Form1Model& f)
{
    std::vector<OptionButton*> cover{&f.Option1, &f.Option2};
    std::vector<OptionButton*> stirrup{&f.Option3, &f.Option5, &f.Option6};
    std::vector<OptionButton*> hook{&f.Option7[0], &f.Option7[1]};
    return {
        {"Option1", {&f.Option1, cover}},       {"Option2", {&f.Option2, cover}},
        {"Option3", {&f.Option3, stirrup}},     {"Option5", {&f.Option5, stirrup}},
        {"Option6", {&f.Option6, stirrup}},     {"Option7(0)", {&f.Option7[0], hook}},
        {"Option7(1)", {&f.Option7[1], hook}},
    };
}

} // namespace

bool setControlByName(Program& p, const std::string& name, const std::string& value, std::string& error)
{
    auto& f = p.Form1;
    auto texts = textBoxMap(f);
    texts["Form8.Text1"] = &p.Form8.Text1;
    texts["Form8.Text2"] = &p.Form8.Text2;
    // ABNT NBR 6118:2014: not among the 39 records, saved after them.
    for (auto [nome, caixa] : {std::pair{"MdBase", &f.MdBase}, std::pair{"MyTopo", &f.MyTopo},
                               std::pair{"MyBase", &f.MyBase}, std::pair{"LeH", &f.LeH}, std::pair{"LeB", &f.LeB},
                               std::pair{"EstriboEspacamento", &f.EstriboEspacamento}})
        texts[nome] = caixa;
    // The rule set by its year too, as --norma takes it.
    if (name == "Norma" && (value == "2001" || value == "2014" || value == "2023")) {
        f.Norma.Text = lists::norma[value == "2001" ? 0 : value == "2014" ? 1 : 2];
        return true;
    }
    if (auto it = texts.find(name); it != texts.end()) {
        it->second->Text = value;
        return true;
    }

    const std::map<std::string, ComboBox*> combos{
        {"Combo1", &f.Combo1}, {"Combo2", &f.Combo2}, {"Combo3", &f.Combo3},
        {"Combo4", &f.Combo4}, {"Combo5", &f.Combo5}, {"Combo6", &f.Combo6},
        {"Combo7", &f.Combo7}, {"Form8.Combo1", &p.Form8.Combo1}, {"Form8.Combo3", &p.Form8.Combo3},
        {"Norma", &f.Norma}, {"SegundaOrdem", &f.SegundaOrdem}, {"EstriboDiametro", &f.EstriboDiametro},
    };
    if (auto it = combos.find(name); it != combos.end()) {
        if (!it->second->contains(value)) {
            error = "\"" + value + "\" não está na lista de " + name;
            return false;
        }
        it->second->Text = value;
        return true;
    }

    const std::map<std::string, CheckBox*> checks{
        {"Check1", &f.Check1}, {"Check2", &f.Check2}, {"Check3", &f.Check3}, {"Check5", &f.Check5}};
    if (auto it = checks.find(name); it != checks.end()) {
        if (value != "0" && value != "1" && value != "2") {
            error = name + " aceita 0, 1 ou 2, não \"" + value + "\"";
            return false;
        }
        it->second->Value = value[0] - '0';
        return true;
    }

    auto options = optionMap(f);
    if (auto it = options.find(name); it != options.end()) {
        if (value == "True") {
            for (auto* o : it->second.group)
                o->Value = false;
            it->second.button->Value = true;
        } else if (value == "False") {
            it->second.button->Value = false;
        } else {
            error = name + " aceita True ou False, não \"" + value + "\"";
            return false;
        }
        return true;
    }

    // The heading of the report: any text.
    const std::map<std::string, std::string*> work{{"Obra", &p.Obra.obra},
                                                   {"Cliente", &p.Obra.cliente},
                                                   {"Pilar", &p.Obra.pilar},
                                                   {"Engenheiro", &p.Obra.engenheiro},
                                                   {"Revisao", &p.Obra.revisao}};
    if (auto it = work.find(name); it != work.end()) {
        *it->second = value;
        return true;
    }

    error = "controle desconhecido: " + name;
    return false;
}

std::vector<std::pair<std::string, const TextBox*>> textBoxesOf(const Form1Model& form)
{
    auto& f = const_cast<Form1Model&>(form);
    std::vector<std::pair<std::string, const TextBox*>> out;
    const auto all = textBoxMap(f);
    // numeric order: Text1, Text2, ..., Text7(0..7), Text8, ...
    for (int n = 1; n <= 32; ++n) {
        if (n == 7) {
            for (int i = 0; i < 8; ++i) {
                const std::string key = "Text7(" + std::to_string(i) + ")";
                out.emplace_back(key, all.at(key));
            }
            continue;
        }
        const std::string key = "Text" + std::to_string(n);
        if (auto it = all.find(key); it != all.end())
            out.emplace_back(key, it->second);
    }
    return out;
}

} // namespace pilarix
