#pragma once
// Puts a Program into the state the driver leaves before the zone stages, for a
// section given directly by its reduced quantities, so that the design stages can be
// run and examined one by one.

#include "driver/program.h"

#include <string>

namespace pilarix::test {

struct SecaoDeProjeto {
    std::string aco = "Aço CA-50A";
    double fck = 200;      // kgf/cm²
    double gamaC = 1.4;
    double gamaS = 1.15;
    double Es = 2100000;   // kgf/cm²
    double base = 20, altura = 50, dLinha = 3;
    double nBase = 2;
    int nAltura = 4;
    double precisao = 0.0001;
};

// The driver's steps from d' to the bar layers, with γn = 1.
inline void preparaSecao(Program& p, const SecaoDeProjeto& s)
{
    p.Form1.Combo1.Text = s.aco;
    p.Fck = s.fck;
    p.GamaC = s.gamaC;
    p.GamaS = s.gamaS;
    p.Es = s.Es;
    p.Base = s.base;
    p.Altura = s.altura;
    p.dLinha = s.dLinha;
    p.nBase = s.nBase;
    p.nAltura = static_cast<std::int16_t>(s.nAltura);
    p.Precisao = s.precisao;
    p.GamaN = 1;

    p.fcd = p.Fck / p.GamaC;
    p.SigCd = 0.85 * p.fcd;
    p.Ac = p.Altura * p.Base;
    p.MeiaAltura = p.Altura / 2;
    p.MeioD = 0.5;
    p.Aço04();
    p.Delta = p.Delta2 = p.DeltaD = p.dLinha / p.Altura;
    p.SArran1R03();
}

// The zone stages and the ratio for (ν, μ), in the driver's order.
inline void dimensiona(Program& p, double nu, double mu)
{
    p.Ni = nu;
    p.Mi = mu;
    p.Rho = 0;
    p.SNiCrit06();
    p.SConstZ10();
    p.SMiACEC13();
    p.SMiZero14();
    p.Szona15();
    if (p.Ni == 0 && p.Mi == 0)
        p.Rho = 0;
    else
        p.SRO16();
}

} // namespace pilarix::test
