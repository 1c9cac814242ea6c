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

bool floatingPointFault()
{
#if defined(__x86_64__) && defined(__SSE2__)
    // Double arithmetic on x86-64 runs on SSE: its status register holds the flags
    // (invalid 0x1, divide by zero 0x4, overflow 0x8); the x87 unit is asked too, for
    // the few library routines that use it.
    unsigned short x87 = 0;
    __asm__ volatile("fnstsw %0" : "=am"(x87));
    return ((__builtin_ia32_stmxcsr() | x87) & 0x0D) != 0;
#else
    return std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW) != 0;
#endif
}

void checkFloatingPoint(const char* stage, const ColumnSummary& s)
{
    if (!floatingPointFault())
        return;
    const int raised = std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
    if (raised == 0)
        return;
    const char* what = (raised & FE_DIVBYZERO) ? "divisão por zero"
                       : (raised & FE_OVERFLOW) ? "estouro de capacidade"
                                                : "operação inválida (raiz de número negativo ou 0/0)";
    throw CalcError(std::string("Erro de cálculo em ") + stage + ": " + what + ". Dados: " + describe(s) + ".");
}

} // namespace pilarix::engine
