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

// The marches of μ0 look for the field whose concrete alone balances ν.
void campoBx(Program& p) { p.SBxTeta07(); }

// The field of a fully shortened section with the strain EpsInfIter at its least
// compressed face.
void campoEncurtado(Program& p)
{
    p.BetaX = (3 * p.EpsInfIter - 14) / (7 * p.EpsInfIter - 14);
    p.SBxTeta07();
}

// Evaluates the field and takes η - ν as the residual.
void residuoZero(Program& p, void (*campo)(Program&))
{
    campo(p);
    p.Resid = p.Eta - p.Ni;
}

// The same, compared with the residual before: true when it kept its sign.
bool mantemSinal(Program& p, void (*campo)(Program&))
{
    residuoZero(p, campo);
    p.ProdResid = p.ResidAnt * p.Resid;
    p.ResidAnt = p.Resid;
    return p.ProdResid > 0;
}

// False when the residual is within the precision; otherwise one step forward of x.
bool avancaZero(Program& p, double& x, long& passos, const char* etapa)
{
    p.passoDaMarcha(passos, etapa);
    if (std::fabs(p.Resid) <= p.Precisao)
        return false;
    const double antes = x;
    x = x + p.Passo;
    p.passoNulo(antes, x, etapa);
    return true;
}

// Back to the field before the step, and on with a tenth of it.
void recuaZero(Program& p, double& x, void (*campo)(Program&))
{
    x = x - p.Passo;
    residuoZero(p, campo);
    p.ResidAnt = p.Resid;
    p.Passo = p.Passo / 10;
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
        if (!avancaZero(*this, BetaX, passos, etapa)) {
            Mi0 = MeioD * Eta - EtaLin;
            return;
        }
        if (BetaX > 1 + Precisao)
            break;
        if (mantemSinal(*this, campoBx))
            continue;
        // The root was passed or hit: back one step and march on with a tenth of it.
        recuaZero(*this, BetaX, campoBx);
    }

    // Phase 2: the whole section shortened, the field given by the strain e of the
    // least compressed face, from 0 up to the 2 per mille of uniform shortening.
    EpsInfIter = 0;
    BetaX = 1;
    Passo = 0.5;
    residuoZero(*this, campoBx);
    ResidAnt = Resid;
    while (avancaZero(*this, EpsInfIter, passos, etapa)) {
        if (EpsInfIter < 2 && mantemSinal(*this, campoEncurtado))
            continue;
        recuaZero(*this, EpsInfIter, campoEncurtado);
    }
    Mi0 = MeioD * Eta - EtaLin;
}

} // namespace pilarix
