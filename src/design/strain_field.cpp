// The plane strain field of the ultimate limit state, identified by the relative neutral-axis depth.
//
// Strains in per mille, shortening positive; depths as fractions of h from the most
// compressed face; forces over b·h·σcd and moments over b·h²·σcd. The ultimate
// fields turn about three pivots (NBR 6118, 17.2.2): 10 per mille of lengthening at
// the farthest layer, 3.5 per mille of shortening at the compressed face, and 2 per
// mille at 3/7 of the depth when the whole section is shortened.

#include "driver/program.h"

#include <cmath>

namespace pilarix {

namespace {
// The neutral-axis depth at which the farthest layer reaches 10 per mille of
// lengthening while the compressed face reaches 3.5 per mille.
double limiteDominio2(double delta) { return 3.5 * (1 - delta) / 13.5; }
} // namespace

void Program::SEpSig11()
{
    const double L = limiteDominio2(Delta);
    for (Indice = 1; Indice <= nAltura; ++Indice) {
        const double y = YRel(Indice - 1);
        double e;
        if (BetaX <= L)
            e = 10 * (BetaX - y) / (1 - Delta - BetaX);
        else if (BetaX <= 1)
            e = 3.5 * (BetaX - y) / BetaX;
        else
            e = 14 * (BetaX - y) / (7 * BetaX - 3);
        Eps(Indice) = e;
        SigSd05();
    }
}

void Program::SBxTeta07()
{
    // At βx = L both pivots give the same field, so the boundary may fall on either
    // side here.
    const double L = limiteDominio2(Delta);
    if (BetaX >= L) {
        if (BetaX > 1)
            EpsC = 14 * BetaX / (7 * BetaX - 3);
        else
            EpsC = 3.5;
        Teta = EpsC / BetaX;
        SEta08();
        SEtalin09();
        return;
    }

    EpsC = 10 * BetaX / (1 - Delta - BetaX);
    if (BetaX > 0) {
        Teta = EpsC / BetaX;
        SEta08();
        SEtalin09();
    } else {
        // Nothing of the concrete is shortened.
        Teta = (EpsC + 10) / (1 - Delta);
        Eta = 0;
        EtaLin = 0;
    }
}

void Program::SEta08()
{
    const double P = Precisao;

    // A face shortened beyond 3.5 per mille is past the concrete's ultimate strain.
    if (EpsC > 3.5 + P) {
        Eta = 0;
        return;
    }
    if (Teta == 0) {
        // Uniform strain: the parabola-rectangle diagram is uniform over the depth.
        Eta = (EpsC <= 2 + P) ? (4 - EpsC) * EpsC / 4 : 0;
        return;
    }

    BetaX = EpsC / Teta;
    if (BetaX <= 0) {
        Eta = 0;
        return;
    }
    // Inadmissible fields: more than 2 per mille at 3/7 of the depth in full
    // shortening, more than 10 per mille of lengthening at the farthest layer.
    if (BetaX > 1) {
        if (EpsC * (BetaX - 3.0 / 7.0) / BetaX > 2 + P) {
            Eta = 0;
            return;
        }
    }
    if (BetaX > 0 && BetaX <= 1 && BetaX < limiteDominio2(Delta)) {
        if (EpsC * (BetaX - 1 + Delta) / BetaX < -(10 + P)) {
            Eta = 0;
            return;
        }
    }

    // The top of the section on the rectangle of the diagram or still on its parabola.
    PatamarC = (EpsC > 2) ? 2 : 1;
    EpsInf = (EpsC > Teta) ? EpsC - Teta : 0;
    const double e = EpsInf;

    // ∫ σc/σcd dε / θ between the strain of the least compressed face (or zero) and
    // the strain of the compressed face, σc/σcd = ε - ε²/4 up to 2 per mille.
    if (PatamarC == 2)
        Eta = (12 * EpsC - 8 - (6 - e) * e * e) / (12 * Teta);
    else
        Eta = ((6 - EpsC) * EpsC * EpsC - (6 - e) * e * e) / (12 * Teta);
}

void Program::SEtalin09()
{
    const double P = Precisao;
    const double ec = EpsC;
    const double e = EpsInf;
    if (Eta == 0) {
        EtaLin = 0;
    } else if (std::fabs(Eta - 1) <= P || BetaX > 50) {
        // A uniform block acts at mid-height.
        EtaLin = Eta / 2;
    } else if (PatamarC == 2) {
        EtaLin = (16 - 32 * ec + 24 * ec * ec - e * e * (24 * ec - 4 * e * (ec + 4) + 3 * e * e)) / (48 * Teta * Teta);
    } else {
        EtaLin = ((8 - ec) * ec * ec * ec - e * e * (24 * ec - 16 * e - 4 * ec * e + 3 * e * e)) / (48 * Teta * Teta);
    }
}

void Program::SKapa12()
{
    SigMedY = 0;
    SigMed = 0;
    SEpSig11();
    for (long i = 1; i <= nAltura; ++i) {
        SigMedY = SigMedY + YRel(i - 1) * NBarCam(i - 1) * Sig(i) / NBarrasTotal;
        SigMed = SigMed + Sig(i) * NBarCam(i - 1) / NBarrasTotal;
    }

    if (std::fabs(SigMed) <= Precisao) {
        // The bars carry no resultant force, only a couple: its line of action is
        // infinitely far. λ keeps the value of the last field that had a resultant.
        SigMed = 0;
        Kapa = 9.999999e+37;
    } else {
        Kapa = SigMedY / SigMed;
        Lambda = EtaLin - Eta * Kapa;
    }
}

void Program::SEc1Bx18()
{
    const double e = EpsInfIter;
    if (e <= 0) {
        BetaX = 3.5 / (3.5 + std::fabs(e));
        EpsC = 3.5;
    } else {
        // The whole section shortened: the field turns about 2 per mille at 3/7 of h.
        BetaX = (3 * e - 14) / (7 * e - 14);
        EpsC = 14 * BetaX / (7 * BetaX - 3);
    }
    Teta = EpsC / BetaX;
    SEta08();
    SEtalin09();
}

} // namespace pilarix
