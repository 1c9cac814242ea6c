// A column under several load cases in the window: the main window's Nd and Md are
// the first case, the cases table holds the others in the same units.

#include "window/program.h"

#include "base/number_text.h"
#include "app/units.h"

#include <cmath>

namespace pilarix {

std::vector<engine::LoadCase> Program::casosDeCarga()
{
    std::vector<engine::LoadCase> casos{{NomeDoCaso1, Nd, Md}};
    // The factors of the units Ler02 read Nd and Md in; a unit the lists do not hold
    // reads as Ler02 read it.
    const double fn = unitFactor(Form1.Combo4.Text).value_or(Nd != 0 ? Nd / Val(Form1.Text16.Text) : 1);
    const double fm = unitFactor(Form1.Combo5.Text).value_or(Md != 0 ? Md / Val(Form1.Text17.Text) : 1);
    for (const auto& c : OutrosCasos)
        casos.push_back({c.nome, Val(c.nd) * fn, Val(c.md) * fm});
    return casos;
}

void Program::calculaCasos(engine::Questions& perguntas)
{
    const auto casos = casosDeCarga();
    engine::CasesResult r = engine::calculateCases(Entrada, casos, perguntas, metodo);
    for (const auto& c : r.cases)
        ResultadosDosCasos.push_back({c.loadCase.name, c.loadCase.Nd, c.loadCase.Md, c.design.design.zone,
                                      c.design.design.betaX, c.design.design.asNec, c.utilisation, c.governing});
    Verificacao = r.verification;
    // A case the detailed section does not carry fails the calculation, whatever the
    // checks of the governing case said.
    if (!r.failures.empty())
        metodo.FlagErro = engine::ErrorFlag::Failed;
    Resultado = std::move(r.detail);
}

} // namespace pilarix
