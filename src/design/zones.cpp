// Reference strain fields, zone bounds, the moment the concrete alone carries, and the solicitation zone.
//
// A field in equilibrium with ν, the bars taking what the concrete does not, has the
// moment μ(βx) = ν·(0.5 - κ) - λ about mid-height. The zones are bounded by this
// moment at the reference fields: the neutral axis at the farthest layer (A), at the
// nearest layer (E) and on either side of mid-height (C).

#include "driver/program.h"

#include <cmath>
#include <cstdint>
#include <string>

namespace pilarix {

namespace {
// Where the values of one reference field are kept.
struct Referencia {
    double* betaX;
    double* eta;
    double* etaLin;
    double* kapa;
    double* lambda;
};

// Evaluates the field at βx and keeps what the zone bounds need of it.
void avaliaReferencia(Program& p, double betaX, const Referencia& r)
{
    *r.betaX = betaX;
    p.BetaX = betaX;
    p.SEpSig11();
    p.SBxTeta07();
    p.SKapa12();
    *r.eta = p.Eta;
    *r.etaLin = p.EtaLin;
    *r.kapa = p.Kapa;
    *r.lambda = p.Lambda;
}
} // namespace

void Program::SConstZ10()
{
    const double P = Precisao;
    avaliaReferencia(*this, MeioD - P, {&BetaXC1, &EtaC1, &EtaLinC1, &KapaC1, &LambdaC1});
    avaliaReferencia(*this, MeioD + P, {&BetaXC2, &EtaC2, &EtaLinC2, &KapaC2, &LambdaC2});
    avaliaReferencia(*this, 1 - Delta, {&BetaXA, &EtaA, &EtaLinA, &KapaA, &LambdaA});
    avaliaReferencia(*this, Delta, {&BetaXE, &EtaE, &EtaLinE, &KapaE, &LambdaE});
}

void Program::Szona15()
{
    // "E" = 1, "C" = 2, "A" = 3, "O" = 4
    static const std::string letras[] = {"", "E", "C", "A", "O"};
    const double nu = Ni;
    const double mu = Mi;
    int zona;
    if (nu >= 0 && nu <= 1) {
        if (mu <= Mi0)
            zona = 4;
        else if (nu > EtaA)
            zona = (mu <= MiA) ? 3 : 2;
        else if (nu <= EtaE)
            zona = (mu <= MiE) ? 1 : 2;
        else
            zona = 2;
    } else if (nu < 0) {
        zona = (mu <= MiE) ? 1 : 2;
    } else {
        zona = (mu <= MiA) ? 3 : 2;
    }
    Zona = letras[zona];
    NZona = static_cast<std::int16_t>(zona);
}

void Program::SNiCrit06()
{
    const double P = Precisao;
    BetaX = MeioD;
    SBxTeta07();
    NiCrit = Eta;
    BetaX = MeioD - P;
    SBxTeta07();
    NiCrit1 = Eta;
    BetaX = MeioD + P;
    SBxTeta07();
    NiCrit2 = Eta;
}

void Program::SMiACEC13()
{
    MiC1 = std::fabs(Ni * (MeioD - KapaC1) - LambdaC1);
    MiC = std::fabs(Ni * (MeioD - KapaC2) - LambdaC2);
    MiA = Ni * (MeioD - KapaA) - LambdaA;
    MiE = Ni * (MeioD - KapaE) - LambdaE;
}

void Program::SMiZero14()
{
    // Outside 0 < ν < 1 the concrete alone cannot balance the force in any field
    // with the neutral axis in or below the section; μ0 keeps its last value.
    if (!(Ni > 0 && Ni < 1))
        return;

    const double P = Precisao;
    const char* etapa = "SMiZero14";
    long passos = 0;

    // Phase 1: the neutral axis inside the section. The march starts from the field
    // βx = 0, where no concrete is shortened (η = 0), so its residual η - ν is -ν.
    BetaX = 0;
    Eta = 0;
    EtaLin = 0;
    Passo = 0.1;
    Resid = -Ni;
    ResidAnt = -Ni;
    for (;;) {
        passoDaMarcha(passos, etapa);
        if (std::fabs(Resid) <= P) {
            Mi0 = MeioD * Eta - EtaLin;
            return;
        }
        const double antes = BetaX;
        BetaX = BetaX + Passo;
        passoNulo(antes, BetaX, etapa);
        if (BetaX > 1 + P)
            break;
        SBxTeta07();
        Resid = Eta - Ni;
        ProdResid = ResidAnt * Resid;
        ResidAnt = Resid;
        if (ProdResid > 0)
            continue;
        // The root was passed or hit: back one step and march on with a tenth of it.
        BetaX = BetaX - Passo;
        SBxTeta07();
        Resid = Eta - Ni;
        ResidAnt = Resid;
        Passo = Passo / 10;
    }

    // Phase 2: the whole section shortened, the field given by the strain e of the
    // least compressed face, from 0 up to the 2 per mille of uniform shortening.
    EpsInfIter = 0;
    BetaX = 1;
    Passo = 0.5;
    SBxTeta07();
    Resid = Eta - Ni;
    ResidAnt = Resid;
    for (;;) {
        passoDaMarcha(passos, etapa);
        if (std::fabs(Resid) <= P)
            break;
        const double antes = EpsInfIter;
        EpsInfIter = EpsInfIter + Passo;
        passoNulo(antes, EpsInfIter, etapa);
        if (EpsInfIter < 2) {
            BetaX = (3 * EpsInfIter - 14) / (7 * EpsInfIter - 14);
            SBxTeta07();
            Resid = Eta - Ni;
            ProdResid = ResidAnt * Resid;
            ResidAnt = Resid;
            if (ProdResid > 0)
                continue;
        }
        EpsInfIter = EpsInfIter - Passo;
        BetaX = (3 * EpsInfIter - 14) / (7 * EpsInfIter - 14);
        SBxTeta07();
        Resid = Eta - Ni;
        ResidAnt = Resid;
        Passo = Passo / 10;
    }
    Mi0 = MeioD * Eta - EtaLin;
}

} // namespace pilarix
