#pragma once
// One dialog shown while the program ran: what it said, the clause of the standard
// it named, and the answer it got. The window keeps those of its last calculation
// (the "Mensagens" of the report); the command line lists them in its JSON.

#include "engine/checks.h"

#include <optional>
#include <string>
#include <vector>

namespace pilarix {

struct DialogRecord {
    enum class Kind { Error, Cover, Stirrup, Notice };
    Kind kind = Kind::Notice;
    std::string janela;   // the dialog's caption ("aviso" for a notice)
    std::string mensagem; // the text it showed
    std::string item;     // the clause of the standard (error and cover dialogs)
    std::string botao1;   // the first button of the cover dialog
    std::vector<std::string> opcoes; // the options of the stirrup choice
    int resposta = 0;     // the answer given (cover and stirrup choice)
    std::string respostaTexto; // the answer as the dialog words it (its button or option)
    // The check an error dialog told, where a check of the calculation was its cause:
    // what a front knows the message by, rather than by its words.
    std::optional<engine::CheckId> check;
};

} // namespace pilarix
