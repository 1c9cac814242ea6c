#include "cli/controls_by_name.h"

#include "window/control_table.h"

#include <algorithm>
#include <optional>

namespace pilarix {

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

} // namespace pilarix
