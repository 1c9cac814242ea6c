#include "engine/failure.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <cfenv>

namespace pilarix::engine {

std::string describe(const ColumnSummary& s)
{
    return "b = " + Str(s.base) + " cm, h = " + Str(s.depth) + " cm, barras nas faces: " + Str(s.barsOnWidthFace)
           + " x " + Str(s.barsOnDepthFace) + ", d' = " + Str(s.dLinha) + " cm, Nd = " + Str(s.Nd)
           + " kgf, Md = " + Str(s.Md) + " kgf.cm, fck = " + Str(s.fck) + " kgf/cm2, precisão = "
           + Str(s.precision);
}

void startFloatingPointWatch() { std::feclearexcept(FE_ALL_EXCEPT); }

void checkFloatingPoint(const char* stage, const ColumnSummary& s)
{
    const int raised = std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
    if (raised == 0)
        return;
    const char* what = (raised & FE_DIVBYZERO) ? "divisão por zero"
                       : (raised & FE_OVERFLOW) ? "estouro de capacidade"
                                                : "operação inválida (raiz de número negativo ou 0/0)";
    throw CalcError(std::string("Erro de cálculo em ") + stage + ": " + what + ". Dados: " + describe(s) + ".");
}

} // namespace pilarix::engine
