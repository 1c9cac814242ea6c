#include "cli/controls_by_name.h"

#include "window/control_table.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace pilarix {

namespace {

// The number of a box the program numbers, "Text7(3)" as 7 and 3, "Text16" as 16 and
// -1; none for any other name.
std::optional<std::pair<int, int>> numeroDaCaixa(std::string_view nome)
{
    constexpr std::string_view prefixo = "Text";
    if (nome.substr(0, prefixo.size()) != prefixo)
        return std::nullopt;
    nome.remove_prefix(prefixo.size());
    int n = 0, i = -1;
    auto [fim, erro] = std::from_chars(nome.data(), nome.data() + nome.size(), n);
    if (erro != std::errc() || fim == nome.data())
        return std::nullopt;
    const std::string_view resto(fim, static_cast<std::size_t>(nome.data() + nome.size() - fim));
    if (!resto.empty() && (resto.front() != '(' || resto.back() != ')'
                           || std::from_chars(resto.data() + 1, resto.data() + resto.size() - 1, i).ec != std::errc()))
        return std::nullopt;
    return std::pair{n, i};
}

} // namespace

bool setControlByName(Program& p, const std::string& name, const std::string& value, std::string& error)
{
    auto desconhecido = [&] {
        error = "controle desconhecido: " + name;
        return false;
    };
    const Controle* c = controle(name);
    if (!c)
        return desconhecido();
    using Tipo = Controle::Tipo;
    switch (c->tipo) {
    case Tipo::Caixa:
    case Tipo::Texto: // the heading of the report: any text
        break;
    case Tipo::Lista:
        // The rule set by its year too, as --norma takes it.
        if (c->lista == &lists::norma && (value == "2001" || value == "2014" || value == "2023")) {
            c->atribui(p, lists::norma[value == "2001" ? 0 : value == "2014" ? 1 : 2]);
            return true;
        }
        if (std::find(c->lista->begin(), c->lista->end(), value) == c->lista->end()) {
            error = "\"" + value + "\" não está na lista de " + name;
            return false;
        }
        break;
    case Tipo::Marca:
        if (value != "0" && value != "1" && value != "2") {
            error = name + " aceita 0, 1 ou 2, não \"" + value + "\"";
            return false;
        }
        break;
    case Tipo::Opcao:
        if (value != "True" && value != "False") {
            error = name + " aceita True ou False, não \"" + value + "\"";
            return false;
        }
        break;
    // A state, a group or the values the window sets through its dialogs have no
    // control of that name.
    case Tipo::Habilitado:
    case Tipo::Grupo:
    case Tipo::Composto:
        return desconhecido();
    }
    c->atribui(p, value);
    return true;
}

std::vector<std::pair<std::string, const TextBox*>> textBoxesOf(const Form1Model& form)
{
    auto& f = const_cast<Form1Model&>(form);
    std::vector<std::pair<std::pair<int, int>, const Controle*>> numeradas;
    for (const auto& c : controles())
        if (const auto n = numeroDaCaixa(c.nome); n && c.tipo == Controle::Tipo::Caixa && c.noForm1)
            numeradas.emplace_back(*n, &c);
    // numeric order: Text1, Text2, ..., Text7(0..7), Text8, ...
    std::stable_sort(numeradas.begin(), numeradas.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::pair<std::string, const TextBox*>> out;
    for (const auto& [numero, c] : numeradas)
        out.emplace_back(c->nome, std::get<TextBox*>(c->noForm1(f)));
    return out;
}

} // namespace pilarix
