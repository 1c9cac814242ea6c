#pragma once
// The engine's questions asked in the window's own dialogs, through its dialog port:
// the cover question in "Cobrimento", the stirrup choice in "Escolha dos estribos",
// a failed check in "Mensagem de erro". Each is kept, with its answer, among the
// messages of the calculation.

#include "engine/questions.h"

namespace pilarix {

class Program;

class PerguntasDaJanela : public engine::Questions {
public:
    explicit PerguntasDaJanela(Program& p) : p_(p) {}
    engine::CoverAnswer askCover(const engine::CoverQuestion& q) override;
    int chooseStirrup(const engine::StirrupQuestion& q) override;
    void tell(const engine::Check& c) override;

private:
    Program& p_;
};

} // namespace pilarix
