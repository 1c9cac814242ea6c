#include "engine/zone_method.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <cmath>
#include <string>

namespace pilarix::engine::detail {

namespace {
// The neutral-axis depth at which the farthest layer reaches 10 per mille of
// lengthening while the compressed face reaches 3.5 per mille.
double domain2Limit(double delta) { return 3.5 * (1 - delta) / 13.5; }
} // namespace

// ---- the one march ----
//
// A march steps the parameter x of a field (βx, or the strain of the least
// compressed face) until the residual is within the precision; when the residual
// changes sign, or x passes its limit, it steps back and goes on with a tenth of the
// step. The field it lands on, and so the result, is that of the march: it is the
// method, and no other root finder may replace it.
class March {
public:
    using Evaluate = void (*)(ZoneMethod&);
    using Residual = double (*)(ZoneMethod&);

    March(ZoneMethod& m, const char* stage, double& x, Evaluate evaluate, Residual residual)
        : m_(m), s_(m.s), stage_(stage), x_(&x), evaluate_(evaluate), residual_(residual)
    {
    }

    // Goes on with another variable and field, counting the steps already made.
    void retarget(double& x, Evaluate evaluate)
    {
        x_ = &x;
        evaluate_ = evaluate;
    }

    // False when the residual is within the precision; otherwise one step forward.
    bool advance()
    {
        if (++steps_ > kMarchCap)
            throw MarchFailure(std::string("A busca de ") + stage_ + " não convergiu em " + std::to_string(kMarchCap)
                            + " passos (ν = " + Str(s_.Ni) + ", μ = " + Str(s_.Mi) + ", precisão = " + Str(m_.P)
                            + "). Verifique a precisão em Valores > Outros.");
        if (std::fabs(s_.Resid) <= m_.P)
            return false;
        const double before = *x_;
        *x_ = *x_ + s_.Passo;
        if (before == *x_)
            throw MarchFailure(std::string("A busca de ") + stage_
                            + " não encontrou o equilíbrio da seção: o passo ficou menor que a resolução dos números"
                            + " (ν = " + Str(s_.Ni) + ", μ = " + Str(s_.Mi) + ", δ = " + Str(s_.Delta)
                            + ", precisão = " + Str(m_.P) + ").");
        return true;
    }

    void evaluate() { evaluate_(m_); }

    // The residual of the field just evaluated against the one before it.
    void compare()
    {
        s_.Resid = residual_(m_);
        s_.ProdResid = s_.Resid * s_.ResidAnt;
        s_.ResidAnt = s_.Resid;
    }

    bool keptSign() const { return s_.ProdResid > 0; }

    // Evaluates the field at x and starts the comparison of residuals from it.
    void restart()
    {
        evaluate_(m_);
        s_.Resid = residual_(m_);
        s_.ResidAnt = s_.Resid;
    }

    // Back to the field before the step, and on with a tenth of it.
    void stepBack()
    {
        *x_ = *x_ - s_.Passo;
        restart();
        s_.Passo = s_.Passo / 10;
    }

private:
    ZoneMethod& m_;
    MethodState& s_;
    const char* stage_;
    double* x_;
    Evaluate evaluate_;
    Residual residual_;
    long steps_ = 0;
};

// ---- the fields and residuals of the marches ----

void ZoneMethod::fieldAtBetaX(ZoneMethod& m)
{
    m.fieldFromNeutralAxis();
    m.barResultant();
}

void ZoneMethod::fieldAtLeastStrain(ZoneMethod& m)
{
    m.fieldFromLeastCompressedStrain();
    m.barResultant();
}

// The fields of μ0: the concrete alone.
void ZoneMethod::concreteFieldAtBetaX(ZoneMethod& m) { m.fieldFromNeutralAxis(); }

// A fully shortened section with the strain EpsInfIter at its least compressed face.
void ZoneMethod::concreteFieldShortened(ZoneMethod& m)
{
    m.s.BetaX = (3 * m.s.EpsInfIter - 14) / (7 * m.s.EpsInfIter - 14);
    m.fieldFromNeutralAxis();
}

// The concrete alone against the force: η − ν.
double ZoneMethod::concreteResidual(ZoneMethod& m) { return m.s.Eta - m.s.Ni; }

// The moment about mid-height of the field minus the applied one.
double ZoneMethod::momentResidual(ZoneMethod& m) { return m.s.Ni * (m.s.MeioD - m.s.Kapa) - m.s.Mi - m.s.Lambda; }

// The force the bars must carry by equilibrium of forces, less the force their
// moment about the compressed face requires.
double ZoneMethod::forceMomentResidual(ZoneMethod& m)
{
    m.s.MomAco = m.s.MeioD * m.s.Ni - m.s.Mi - m.s.EtaLin;
    return (m.s.Ni - m.s.Eta) - m.s.MomAco / m.s.Kapa;
}

// ---- the strain field ----

void ZoneMethod::layerStrains()
{
    // The layers were laid out (at most 500, or the layout would have stopped), so
    // the loop runs over the arrays directly: it is the innermost loop of every march.
    const double L = domain2Limit(s.Delta);
    const double bx = s.BetaX;
    const double* yRel = s.YRel.data();
    double* eps = s.Eps.data();
    double* sig = s.Sig.data();
    for (s.Indice = 1; s.Indice <= nAltura_; ++s.Indice) {
        const double y = yRel[s.Indice - 1];
        double e;
        if (bx <= L)
            e = 10 * (bx - y) / (1 - s.Delta - bx);
        else if (bx <= 1)
            e = 3.5 * (bx - y) / bx;
        else
            e = 14 * (bx - y) / (7 * bx - 3);
        eps[s.Indice] = e;
        sig[s.Indice] = steelStress(steel_, e);
    }
}

void ZoneMethod::fieldFromNeutralAxis()
{
    // At βx = L both pivots give the same field, so the boundary may fall on either
    // side here.
    const double L = domain2Limit(s.Delta);
    if (s.BetaX >= L) {
        if (s.BetaX > 1)
            s.EpsC = 14 * s.BetaX / (7 * s.BetaX - 3);
        else
            s.EpsC = 3.5;
        s.Teta = s.EpsC / s.BetaX;
        concreteResultant();
        concreteMoment();
        return;
    }

    s.EpsC = 10 * s.BetaX / (1 - s.Delta - s.BetaX);
    if (s.BetaX > 0) {
        s.Teta = s.EpsC / s.BetaX;
        concreteResultant();
        concreteMoment();
    } else {
        // Nothing of the concrete is shortened.
        s.Teta = (s.EpsC + 10) / (1 - s.Delta);
        s.Eta = 0;
        s.EtaLin = 0;
    }
}

void ZoneMethod::concreteResultant()
{
    // A face shortened beyond 3.5 per mille is past the concrete's ultimate strain.
    if (s.EpsC > 3.5 + P) {
        s.Eta = 0;
        return;
    }
    if (s.Teta == 0) {
        // Uniform strain: the parabola-rectangle diagram is uniform over the depth.
        s.Eta = (s.EpsC <= 2 + P) ? (4 - s.EpsC) * s.EpsC / 4 : 0;
        return;
    }

    s.BetaX = s.EpsC / s.Teta;
    if (s.BetaX <= 0) {
        s.Eta = 0;
        return;
    }
    // Inadmissible fields: more than 2 per mille at 3/7 of the depth in full
    // shortening, more than 10 per mille of lengthening at the farthest layer.
    if (s.BetaX > 1) {
        if (s.EpsC * (s.BetaX - 3.0 / 7.0) / s.BetaX > 2 + P) {
            s.Eta = 0;
            return;
        }
    }
    if (s.BetaX > 0 && s.BetaX <= 1 && s.BetaX < domain2Limit(s.Delta)) {
        if (s.EpsC * (s.BetaX - 1 + s.Delta) / s.BetaX < -(10 + P)) {
            s.Eta = 0;
            return;
        }
    }

    // The top of the section on the rectangle of the diagram or still on its parabola.
    s.PatamarC = (s.EpsC > 2) ? 2 : 1;
    s.EpsInf = (s.EpsC > s.Teta) ? s.EpsC - s.Teta : 0;
    const double e = s.EpsInf;

    // ∫ σc/σcd dε / θ between the strain of the least compressed face (or zero) and
    // that of the compressed face, with σc/σcd = ε − ε²/4 up to 2 per mille.
    if (s.PatamarC == 2)
        s.Eta = (12 * s.EpsC - 8 - (6 - e) * e * e) / (12 * s.Teta);
    else
        s.Eta = ((6 - s.EpsC) * s.EpsC * s.EpsC - (6 - e) * e * e) / (12 * s.Teta);
}

void ZoneMethod::concreteMoment()
{
    const double ec = s.EpsC;
    const double e = s.EpsInf;
    const double th = s.Teta;
    if (s.Eta == 0) {
        s.EtaLin = 0;
    } else if (std::fabs(s.Eta - 1) <= P || s.BetaX > 50) {
        // A uniform block acts at mid-height.
        s.EtaLin = s.Eta / 2;
    } else if (s.PatamarC == 2) {
        s.EtaLin = (16 - 32 * ec + 24 * ec * ec - e * e * (24 * ec - 4 * e * (ec + 4) + 3 * e * e)) / (48 * th * th);
    } else {
        s.EtaLin = ((8 - ec) * ec * ec * ec - e * e * (24 * ec - 16 * e - 4 * ec * e + 3 * e * e)) / (48 * th * th);
    }
}

void ZoneMethod::barResultant()
{
    layerStrains();
    const double* yRel = s.YRel.data();
    const double* bars = s.NBarCam.data();
    const double* sig = s.Sig.data();
    const double total = s.NBarrasTotal;
    double sumY = 0, sum = 0;
    for (long i = 1; i <= nAltura_; ++i) {
        sumY = sumY + yRel[i - 1] * bars[i - 1] * sig[i] / total;
        sum = sum + sig[i] * bars[i - 1] / total;
    }
    s.SigMedY = sumY;
    s.SigMed = sum;

    if (std::fabs(s.SigMed) <= P) {
        // The bars carry no resultant force, only a couple: its line of action is
        // infinitely far. λ keeps the value of the last field that had a resultant.
        s.SigMed = 0;
        s.Kapa = 9.999999e+37;
    } else {
        s.Kapa = s.SigMedY / s.SigMed;
        s.Lambda = s.EtaLin - s.Eta * s.Kapa;
    }
}

void ZoneMethod::fieldFromLeastCompressedStrain()
{
    const double e = s.EpsInfIter;
    if (e <= 0) {
        s.BetaX = 3.5 / (3.5 + std::fabs(e));
        s.EpsC = 3.5;
    } else {
        // The whole section shortened: the field turns about 2 per mille at 3/7 of h.
        s.BetaX = (3 * e - 14) / (7 * e - 14);
        s.EpsC = 14 * s.BetaX / (7 * s.BetaX - 3);
    }
    s.Teta = s.EpsC / s.BetaX;
    concreteResultant();
    concreteMoment();
}

// ---- reference fields, zone bounds and the zone ----
//
// A field in equilibrium with ν, the bars taking what the concrete does not, has the
// moment μ(βx) = ν·(0.5 − κ) − λ about mid-height. The zones are bounded by this
// moment at the reference fields: the neutral axis at the farthest layer (A), at the
// nearest layer (E) and on either side of mid-height (C).

void ZoneMethod::referenceFields()
{
    struct Kept {
        double *betaX, *eta, *etaLin, *kapa, *lambda;
    };
    // Each reference keeps the βx it was given, not the one the concrete resultant
    // rewrites. The bars' strains are those of the rewritten βx: the resultant of the
    // bars takes them after the concrete's.
    auto evaluate = [this](double betaX, Kept k) {
        *k.betaX = betaX;
        s.BetaX = betaX;
        fieldFromNeutralAxis();
        barResultant();
        *k.eta = s.Eta;
        *k.etaLin = s.EtaLin;
        *k.kapa = s.Kapa;
        *k.lambda = s.Lambda;
    };
    evaluate(s.MeioD - P, {&s.BetaXC1, &s.EtaC1, &s.EtaLinC1, &s.KapaC1, &s.LambdaC1});
    evaluate(s.MeioD + P, {&s.BetaXC2, &s.EtaC2, &s.EtaLinC2, &s.KapaC2, &s.LambdaC2});
    evaluate(1 - s.Delta, {&s.BetaXA, &s.EtaA, &s.EtaLinA, &s.KapaA, &s.LambdaA});
    evaluate(s.Delta, {&s.BetaXE, &s.EtaE, &s.EtaLinE, &s.KapaE, &s.LambdaE});
}

void ZoneMethod::criticalForces()
{
    s.BetaX = s.MeioD;
    fieldFromNeutralAxis();
    s.NiCrit = s.Eta;
    s.BetaX = s.MeioD - P;
    fieldFromNeutralAxis();
    s.NiCrit1 = s.Eta;
    s.BetaX = s.MeioD + P;
    fieldFromNeutralAxis();
    s.NiCrit2 = s.Eta;
}

void ZoneMethod::zoneBoundMoments()
{
    s.MiC1 = std::fabs(s.Ni * (s.MeioD - s.KapaC1) - s.LambdaC1);
    s.MiC = std::fabs(s.Ni * (s.MeioD - s.KapaC2) - s.LambdaC2);
    s.MiA = s.Ni * (s.MeioD - s.KapaA) - s.LambdaA;
    s.MiE = s.Ni * (s.MeioD - s.KapaE) - s.LambdaE;
}

void ZoneMethod::concreteOnlyMoment()
{
    // Outside 0 < ν < 1 the concrete alone cannot balance the force in any field
    // with the neutral axis in or below the section; μ0 keeps its last value.
    if (!(s.Ni > 0 && s.Ni < 1))
        return;

    // Phase 1: the neutral axis inside the section. The march starts from the field
    // βx = 0, where no concrete is shortened (η = 0), so its residual η − ν is −ν.
    s.BetaX = 0;
    s.Eta = 0;
    s.EtaLin = 0;
    s.Passo = 0.1;
    s.Resid = -s.Ni;
    s.ResidAnt = -s.Ni;
    March march(*this, "SMiZero14", s.BetaX, concreteFieldAtBetaX, concreteResidual);
    for (;;) {
        if (!march.advance()) {
            s.Mi0 = s.MeioD * s.Eta - s.EtaLin;
            return;
        }
        if (s.BetaX > 1 + P)
            break;
        march.evaluate();
        march.compare();
        if (march.keptSign())
            continue;
        // The root was passed or hit: back one step and on with a tenth of it.
        march.stepBack();
    }

    // Phase 2: the whole section shortened, the field given by the strain e of the
    // least compressed face, from 0 up to the 2 per mille of uniform shortening.
    s.EpsInfIter = 0;
    s.BetaX = 1;
    s.Passo = 0.5;
    fieldFromNeutralAxis();
    s.Resid = concreteResidual(*this);
    s.ResidAnt = s.Resid;
    march.retarget(s.EpsInfIter, concreteFieldShortened);
    while (march.advance()) {
        if (s.EpsInfIter < 2) {
            march.evaluate();
            march.compare();
            if (march.keptSign())
                continue;
        }
        march.stepBack();
    }
    s.Mi0 = s.MeioD * s.Eta - s.EtaLin;
}

void ZoneMethod::classifyZone()
{
    const double nu = s.Ni;
    const double mu = s.Mi;
    Zone z;
    if (nu >= 0 && nu <= 1) {
        if (mu <= s.Mi0)
            z = Zone::O;
        else if (nu > s.EtaA)
            z = (mu <= s.MiA) ? Zone::A : Zone::C;
        else if (nu <= s.EtaE)
            z = (mu <= s.MiE) ? Zone::E : Zone::C;
        else
            z = Zone::C;
    } else if (nu < 0) {
        z = (mu <= s.MiE) ? Zone::E : Zone::C;
    } else {
        z = (mu <= s.MiA) ? Zone::A : Zone::C;
    }
    s.Zona = z;
}

// ---- the reinforcement ratio ----

void ZoneMethod::ratioFromMoment()
{
    s.MomAco = s.MeioD * s.Ni - s.Mi - s.EtaLin;
    s.Rho = s.SigCd * s.MomAco / s.SigMedY;
}

void ZoneMethod::ratioFromForce() { s.Rho = s.SigCd * (s.Ni - s.Eta) / s.SigMed; }

// The whole section at 2 per mille: the concrete carries σcd over the whole area and
// the bars the stress of the steel at that strain.
void ZoneMethod::uniformShortening()
{
    s.BetaX = 10000;
    s.SigMed = s.SigS2;
    s.Eta = 1;
    s.Rho = s.SigCd * (s.Ni - 1) / s.SigS2;
}

void ZoneMethod::zoneE()
{
    // From the field with 10 per mille at the farthest layer and the yield strain in
    // lengthening at the nearest one, up to the neutral axis at the nearest layer.
    const double d = s.Delta;
    s.BetaXIni = (10 * d - (1 - d) * s.EpYd) / (10 - s.EpYd);
    s.BetaX = s.BetaXIni;
    s.BetaXMax = d;
    s.Passo = 0.1;
    marchForceMomentResidual();
    ratioFromMoment();
}

bool ZoneMethod::zoneC()
{
    criticalField();
    if (s.BetaX == 0.5) {
        // Near βx = 0.5 the symmetric bars carry a pure couple: the moment alone
        // gives the ratio, from a field the method takes without a march.
        s.BetaX = 0.5;
        fieldAtBetaX(*this);
        ratioFromMoment();
        return false;
    }

    if (s.Ni > s.NiCrit) {
        s.BetaXIni = s.MeioD + P + P / 1000;
        s.BetaXMax = 1 - s.Delta;
    } else {
        s.BetaXIni = s.Delta;
        s.BetaXMax = s.MeioD - P;
    }
    s.BetaX = s.BetaXIni;
    s.Passo = 0.1;
    marchMomentResidual();

    // A bar resultant beyond the section's depth: the force residual is the better
    // guide there.
    if (s.SigMed == 0 || std::fabs(s.SigMedY) > std::fabs(s.SigMed)) {
        s.Passo = 0.1;
        s.BetaX = s.BetaX - 0.1;
        marchForceMomentResidual();
        ratioFromMoment();
    } else {
        ratioFromForce();
    }
    return true;
}

bool ZoneMethod::zoneA()
{
    // A moment this small in a section so compressed is taken as none (a fixed
    // threshold of the method, not the user's precision).
    if (std::fabs(s.Mi) < 0.005) {
        uniformShortening();
        return false;
    }
    // From the field with 3.5 per mille at the top and none at the farthest layer,
    // towards uniform shortening.
    s.EpsInfIni = -3.5 * s.Delta / (1 - s.Delta);
    s.EpsInfIter = s.EpsInfIni;
    s.EpsInfMax = 2.0;
    s.Passo = 0.2;
    marchLeastCompressedStrain();
    ratioFromForce();
    return true;
}

void ZoneMethod::reinforcementRatio()
{
    if (s.Ni > 1 && s.Mi == 0) {
        uniformShortening();
    } else if (s.Ni < 0 && s.Mi == 0) {
        // Uniform lengthening: the concrete is cracked through and every bar yields.
        s.BetaX = -10000;
        s.SigMed = -s.fyd;
        s.Rho = s.SigCd * s.Ni / s.SigMed;
    } else {
        bool marched = false;
        switch (s.Zona) {
        case Zone::C:
            marched = zoneC();
            break;
        case Zone::A:
            marched = zoneA();
            break;
        case Zone::O:
            // The concrete alone carries (ν, μ): no search, no steel.
            break;
        default:
            zoneE();
            marched = true;
            break;
        }
        if (marched)
            checkEquilibrium();
    }
    if (s.Rho <= 0)
        s.Rho = 0;
}

// A march that stopped on the field where the bars have no resultant (κ is the
// "infinitely far" marker), or whose last residual is still beyond the precision,
// has not balanced the section: its ratio would be that of a field out of
// equilibrium (with two rows both yielding it can be zero while the section needs
// steel). It counts as a march that cannot end, and strain compatibility gives the
// area instead.
void ZoneMethod::checkEquilibrium()
{
    if (s.SigMed != 0 && std::fabs(s.Resid) <= P)
        return;
    throw MarchFailure("A busca do método das zonas terminou fora do equilíbrio da seção (resíduo = " + Str(s.Resid)
                       + (s.SigMed == 0 ? ", barras sem resultante" : "") + ", ν = " + Str(s.Ni) + ", μ = "
                       + Str(s.Mi) + ", precisão = " + Str(P) + ").");
}

void ZoneMethod::criticalField()
{
    s.BetaX = 0;
    if (s.Ni < s.NiCrit1 && s.Mi > s.MiC1)
        s.BetaX = 0.5;
    if (s.Ni > s.NiCrit2 && s.Mi > s.MiC)
        s.BetaX = 0.5;
}

void ZoneMethod::marchMomentResidual()
{
    March march(*this, "SProc_BK19", s.BetaX, fieldAtBetaX, momentResidual);

    // The march starts from the residual of the field it is given.
    fieldAtBetaX(*this);
    if (s.SigMed == 0)
        return;
    s.Resid = momentResidual(*this);
    s.ResidAnt = s.Resid;
    while (march.advance()) {
        if (s.BetaX <= s.BetaXMax) {
            fieldAtBetaX(*this);
            if (s.SigMed == 0)
                return;
            march.compare();
            if (std::fabs(s.Resid) <= P)
                return;
            if (march.keptSign())
                continue;
        }
        march.stepBack();
    }
}

void ZoneMethod::marchForceMomentResidual()
{
    March march(*this, "SProc_AK20", s.BetaX, fieldAtBetaX, forceMomentResidual);

    march.restart();
    while (march.advance()) {
        if (s.BetaX <= s.BetaXMax) {
            fieldAtBetaX(*this);
            if (std::fabs(s.SigMed) > std::fabs(s.SigMedY)) {
                // The bars' resultant has come back inside the section: the moment
                // residual takes over from the field before this step.
                s.BetaX = s.BetaX - s.Passo;
                marchMomentResidual();
                return;
            }
            march.compare();
            if (march.keptSign())
                continue;
        }
        march.stepBack();
    }
}

void ZoneMethod::marchLeastCompressedStrain()
{
    March march(*this, "SProc_BC17", s.EpsInfIter, fieldAtLeastStrain, momentResidual);

    march.restart();
    while (march.advance()) {
        if (s.EpsInfIter < s.EpsInfMax + P) {
            fieldAtLeastStrain(*this);
            march.compare();
            if (march.keptSign())
                continue;
        }
        march.stepBack();
    }
}

} // namespace pilarix::engine::detail
