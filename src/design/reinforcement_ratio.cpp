// The reinforcement ratio that puts the section in equilibrium, by zone.
//
// A field βx and a ratio ρ balance (ν, μ) when
//   ν = η + ρ·σs,med/σcd                      (forces)
//   0.5·ν - μ = η' + ρ·σs,med·κ/σcd           (moments about the compressed face)
// The searches march the field with a fixed step, step back when the residual
// changes sign and go on with a tenth of the step: the field they land on, and so the
// ratio, is that of the march.

#include "driver/program.h"

#include <cmath>

namespace pilarix {

namespace {
void avaliaCampoBx(Program& p)
{
    p.SBxTeta07();
    p.SKapa12();
}

void avaliaCampoEps(Program& p)
{
    p.SEc1Bx18();
    p.SKapa12();
}

// The moment about mid-height of the field minus the applied one.
double residuoMomento(Program& p) { return p.Ni * (p.MeioD - p.Kapa) - p.Mi - p.Lambda; }

// The force the bars must carry by equilibrium of forces, less the force their
// moment about the compressed face requires.
double residuoForcaMomento(Program& p)
{
    p.MomAco = p.MeioD * p.Ni - p.Mi - p.EtaLin;
    return (p.Ni - p.Eta) - p.MomAco / p.Kapa;
}

// A march steps the parameter x of the field (βx, or the strain of the least compressed
// face) until the residual is within the precision; when the residual changes sign,
// or x passes its limit, it steps back and goes on with a tenth of the step.
struct Marcha {
    const char* etapa;
    double& x;
    void (*avalia)(Program&);
    double (*residuo)(Program&);
    long passos = 0;
};

// False when the residual is within the precision; otherwise one step forward.
bool avanca(Program& p, Marcha& m)
{
    p.passoDaMarcha(m.passos, m.etapa);
    if (std::fabs(p.Resid) <= p.Precisao)
        return false;
    const double antes = m.x;
    m.x = m.x + p.Passo;
    p.passoNulo(antes, m.x, m.etapa);
    return true;
}

// The residual of the field just evaluated, and whether it kept its sign.
void comparaResiduo(Program& p, Marcha& m)
{
    p.Resid = m.residuo(p);
    p.ProdResid = p.Resid * p.ResidAnt;
    p.ResidAnt = p.Resid;
}

// Evaluates the field at x and starts the comparison of residuals from it.
void recomeca(Program& p, Marcha& m)
{
    m.avalia(p);
    p.Resid = m.residuo(p);
    p.ResidAnt = p.Resid;
}

// Back to the field before the step, and on with a tenth of it.
void recua(Program& p, Marcha& m)
{
    m.x = m.x - p.Passo;
    recomeca(p, m);
    p.Passo = p.Passo / 10;
}

void rhoPeloMomento(Program& p)
{
    p.MomAco = p.MeioD * p.Ni - p.Mi - p.EtaLin;
    p.Rho = p.SigCd * p.MomAco / p.SigMedY;
}

void rhoPelaForca(Program& p) { p.Rho = p.SigCd * (p.Ni - p.Eta) / p.SigMed; }

// The whole section at 2 per mille: the concrete carries σcd over the whole area and
// the bars the stress of the steel at that strain.
void encurtamentoUniforme(Program& p)
{
    p.BetaX = 10000;
    p.SigMed = p.SigS2;
    p.Eta = 1;
    p.Rho = p.SigCd * (p.Ni - 1) / p.SigS2;
}

void zonaE(Program& p)
{
    // From the field with 10 per mille at the farthest layer and the yield strain in
    // lengthening at the nearest one, up to the neutral axis at the nearest layer.
    const double d = p.Delta;
    p.BetaXIni = (10 * d - (1 - d) * p.EpYd) / (10 - p.EpYd);
    p.BetaX = p.BetaXIni;
    p.BetaXMax = d;
    p.Passo = 0.1;
    p.SProc_AK20();
    rhoPeloMomento(p);
}

void zonaC(Program& p)
{
    const double P = p.Precisao;
    p.Critico21();
    if (p.BetaX == 0.5) {
        // Near βx = 0.5 the symmetric bars carry a pure couple: the moment alone
        // gives the ratio.
        p.BetaX = 0.5;
        avaliaCampoBx(p);
        rhoPeloMomento(p);
        return;
    }

    if (p.Ni > p.NiCrit) {
        p.BetaXIni = p.MeioD + P + P / 1000;
        p.BetaXMax = 1 - p.Delta;
    } else {
        p.BetaXIni = p.Delta;
        p.BetaXMax = p.MeioD - P;
    }
    p.BetaX = p.BetaXIni;
    p.Passo = 0.1;
    p.SProc_BK19();

    // A bar resultant beyond the section's depth: the force residual is the better
    // guide there.
    if (p.SigMed == 0 || std::fabs(p.SigMedY) > std::fabs(p.SigMed)) {
        p.Passo = 0.1;
        p.BetaX = p.BetaX - 0.1;
        p.SProc_AK20();
        rhoPeloMomento(p);
    } else {
        rhoPelaForca(p);
    }
}

void zonaA(Program& p)
{
    // A moment this small in a section so compressed is taken as none (a fixed
    // threshold of the method, not the user's precision).
    if (std::fabs(p.Mi) < 0.005) {
        encurtamentoUniforme(p);
        return;
    }
    // From the field with 3.5 per mille at the top and none at the farthest layer,
    // towards uniform shortening.
    p.EpsInfIni = -3.5 * p.Delta / (1 - p.Delta);
    p.EpsInfIter = p.EpsInfIni;
    p.EpsInfMax = 2.0;
    p.Passo = 0.2;
    p.SProc_BC17();
    rhoPelaForca(p);
}
} // namespace

void Program::SRO16()
{
    if (Ni > 1 && Mi == 0) {
        encurtamentoUniforme(*this);
    } else if (Ni < 0 && Mi == 0) {
        // Uniform lengthening: the concrete is cracked through and every bar yields.
        BetaX = -10000;
        SigMed = -fyd;
        Rho = SigCd * Ni / SigMed;
    } else {
        switch (NZona) {
        case 2:
            zonaC(*this);
            break;
        case 3:
            zonaA(*this);
            break;
        case 4:
            // The concrete alone carries (ν, μ): no search, no steel.
            break;
        default:
            zonaE(*this);
            break;
        }
    }
    if (Rho <= 0)
        Rho = 0;
}

void Program::Critico21()
{
    BetaX = 0;
    if (Ni < NiCrit1 && Mi > MiC1)
        BetaX = 0.5;
    if (Ni > NiCrit2 && Mi > MiC)
        BetaX = 0.5;
}

void Program::SProc_BK19()
{
    Marcha m{"SProc_BK19", BetaX, avaliaCampoBx, residuoMomento};

    // The march starts from the residual of the field it is given.
    avaliaCampoBx(*this);
    if (SigMed == 0)
        return;
    Resid = residuoMomento(*this);
    ResidAnt = Resid;
    while (avanca(*this, m)) {
        if (BetaX <= BetaXMax) {
            avaliaCampoBx(*this);
            if (SigMed == 0)
                return;
            comparaResiduo(*this, m);
            if (std::fabs(Resid) <= Precisao)
                return;
            if (ProdResid > 0)
                continue;
        }
        recua(*this, m);
    }
}

void Program::SProc_AK20()
{
    Marcha m{"SProc_AK20", BetaX, avaliaCampoBx, residuoForcaMomento};

    recomeca(*this, m);
    while (avanca(*this, m)) {
        if (BetaX <= BetaXMax) {
            avaliaCampoBx(*this);
            if (std::fabs(SigMed) > std::fabs(SigMedY)) {
                // The bars' resultant has come back inside the section: the moment
                // residual takes over from the field before this step.
                BetaX = BetaX - Passo;
                SProc_BK19();
                return;
            }
            comparaResiduo(*this, m);
            if (ProdResid > 0)
                continue;
        }
        recua(*this, m);
    }
}

void Program::SProc_BC17()
{
    Marcha m{"SProc_BC17", EpsInfIter, avaliaCampoEps, residuoMomento};

    recomeca(*this, m);
    while (avanca(*this, m)) {
        if (EpsInfIter < EpsInfMax + Precisao) {
            avaliaCampoEps(*this);
            comparaResiduo(*this, m);
            if (ProdResid > 0)
                continue;
        }
        recua(*this, m);
    }
}

} // namespace pilarix
