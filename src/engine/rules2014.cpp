#include "engine/rules2014.h"

#include "base/calc_error.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace pilarix::engine {

namespace {
// Values computed from the same numbers in two ways (a multiple of the axis spacing
// against 20 φt, a cover from d' against c_nom) are compared with this allowance, so
// that a detail exactly at its limit is never refused for a last-bit difference.
constexpr double kLengthTolerance = 1e-9;

bool below(double value, double limit) { return value < limit - kLengthTolerance; }
bool above(double value, double limit) { return value > limit + kLengthTolerance; }

void require(bool ok, const std::string& what)
{
    if (!ok)
        throw CalcError(what);
}

// Tabela 7.2, columns: c_nom for Δc = 10 mm is 25, 30, 40 and 50 mm for classes I to IV;
// c_min is that less 10 mm, and c_nom = c_min + Δc.
double minimumCover2014(ExposureClass exposure)
{
    switch (exposure) {
    case ExposureClass::I:
        return 1.5;
    case ExposureClass::II:
        return 2.0;
    case ExposureClass::III:
        return 3.0;
    case ExposureClass::IV:
        return 4.0;
    }
    throw CalcError("Classe de agressividade ambiental fora de I a IV.");
}

double stirrupSpacingByBar(SteelGrade grade, double barDiameter)
{
    switch (grade) {
    case SteelGrade::CA25A:
    case SteelGrade::CA25B:
        return 24 * barDiameter;
    case SteelGrade::CA50A:
    case SteelGrade::CA50B:
    case SteelGrade::CA60A:
    case SteelGrade::CA60B:
        return 12 * barDiameter;
    }
    return 12 * barDiameter;
}
} // namespace

GammaN2014 gammaN2014(double base, double depth)
{
    require(base > 0 && depth > 0, "As dimensões da seção devem ser maiores que zero.");
    GammaN2014 g;
    g.smallerSide = std::min(base, depth);
    g.area = base * depth;
    if (g.smallerSide < 14)
        g.refusal = checks2014::sideBelowMinimum(g.smallerSide);
    else if (g.area < 360)
        g.refusal = checks2014::areaBelowMinimum(g.area);
    // A straight line between the rows of Tabela 13.1 (1.25 at 14 cm, 1.0 at 19 cm),
    // not steps by whole centimetres.
    if (g.smallerSide < 19)
        g.gammaN = 1.95 - 0.05 * g.smallerSide;
    return g;
}

Detailing2014Limits detailingLimits2014(const Detailing2014Input& in)
{
    require(in.base > 0 && in.depth > 0, "As dimensões da seção devem ser maiores que zero.");
    require(in.barDiameter > 0, "O diâmetro da barra longitudinal deve ser maior que zero.");
    require(in.stirrupDiameter > 0, "O diâmetro do estribo deve ser maior que zero.");
    require(in.aggregate >= 0, "O diâmetro máximo do agregado não pode ser negativo.");
    require(in.deltaC >= 0.5, "A tolerância de execução Δc deve ser de pelo menos 0,5 cm.");
    require(in.gammaS > 0, "GamaS (coeficiente de minoração do aço) deve ser maior que zero.");

    Detailing2014Limits l;
    const double b = std::min(in.base, in.depth);
    const double Ac = in.base * in.depth;
    const double fyd = characteristicYield(in.steel) / in.gammaS;

    l.asMin = std::max(0.15 * in.Nd / fyd, 0.004 * Ac);
    l.asMax = 0.04 * Ac;

    l.minimumBar = 1.0;
    l.maximumBar = b / 8;

    l.minimumFree = std::max({2.0, in.barDiameter, 1.2 * in.aggregate});
    l.maximumAxis = std::min(2 * b, 40.0);

    l.minimumStirrup = std::max(0.5, in.barDiameter / 4);
    l.maximumStirrupSpacing = std::min({20.0, b, stirrupSpacingByBar(in.steel, in.barDiameter)});

    l.nominalCover = minimumCover2014(in.exposure) + in.deltaC;
    l.maximumAggregate = 1.2 * l.nominalCover;
    l.tieReach = 20 * in.stirrupDiameter;
    return l;
}

FaceTies2014 faceTies2014(double faceLength, double dLinha, int bars, double stirrupDiameter)
{
    require(bars >= 2, "Uma face deve ter pelo menos duas barras, uma em cada canto.");
    require(stirrupDiameter > 0, "O diâmetro do estribo deve ser maior que zero.");
    FaceTies2014 t;
    t.axisSpacing = (faceLength - 2 * dLinha) / (bars - 1);
    t.reach = 20 * stirrupDiameter;
    t.held.resize(static_cast<std::size_t>(bars));
    for (int i = 0; i < bars; ++i) {
        // The k-th bar from the nearer corner, k·s along the face from it.
        const int k = std::min(i, bars - 1 - i);
        const bool held = k == 0 || (k <= 2 && !above(k * t.axisSpacing, t.reach));
        t.held[static_cast<std::size_t>(i)] = held;
        if (!held)
            ++t.notHeld;
    }
    return t;
}

Detailing2014Check checkDetailing2014(const Detailing2014Input& in, const Arrangement2014& a)
{
    require(a.barsOnWidthFace >= 2 && a.barsOnDepthFace >= 2,
            "Cada face deve ter pelo menos duas barras, uma em cada canto.");
    Detailing2014Check c;
    const Detailing2014Limits& l = c.limits = detailingLimits2014(in);
    auto& f = c.failures;
    const double b = std::min(in.base, in.depth);

    if (below(a.providedArea, l.asMin))
        f.push_back(checks2014::steelBelowMinimum(a.providedArea, l.asMin));
    if (above(a.providedArea, l.asMax))
        f.push_back(checks2014::steelAboveMaximum(a.providedArea, l.asMax));

    if (below(in.barDiameter, l.minimumBar))
        f.push_back(checks2014::barBelowMinimum(in.barDiameter));
    if (above(in.barDiameter, l.maximumBar))
        f.push_back(checks2014::barAboveEighthOfSide(in.barDiameter, b));

    c.axisWidth = (in.base - 2 * a.dLinha) / (a.barsOnWidthFace - 1);
    c.axisDepth = (in.depth - 2 * a.dLinha) / (a.barsOnDepthFace - 1);
    c.freeWidth = c.axisWidth - in.barDiameter;
    c.freeDepth = c.axisDepth - in.barDiameter;
    const double freeSpacing = std::min(c.freeWidth, c.freeDepth);
    const double axisSpacing = std::max(c.axisWidth, c.axisDepth);
    if (below(freeSpacing, l.minimumFree))
        f.push_back(checks2014::freeSpacingBelowMinimum(freeSpacing, l.minimumFree));
    if (above(axisSpacing, l.maximumAxis))
        f.push_back(checks2014::axisSpacingAboveMaximum(axisSpacing, l.maximumAxis));

    if (below(in.stirrupDiameter, l.minimumStirrup))
        f.push_back(checks2014::stirrupBelowMinimum(in.stirrupDiameter, l.minimumStirrup));
    if (above(a.stirrupSpacing, l.maximumStirrupSpacing))
        f.push_back(checks2014::stirrupSpacingAboveMaximum(a.stirrupSpacing, l.maximumStirrupSpacing));

    if (below(a.cover, l.nominalCover))
        f.push_back(checks2014::coverBelowNominal(a.cover, l.nominalCover));
    if (below(l.nominalCover, in.barDiameter))
        f.push_back(checks2014::coverBelowBarDiameter(l.nominalCover, in.barDiameter));
    if (above(in.aggregate, l.maximumAggregate))
        f.push_back(checks2014::aggregateAboveCover(in.aggregate, l.nominalCover));

    c.widthFace = faceTies2014(in.base, a.dLinha, a.barsOnWidthFace, in.stirrupDiameter);
    c.depthFace = faceTies2014(in.depth, a.dLinha, a.barsOnDepthFace, in.stirrupDiameter);
    // Each face of width and of depth appears twice around the section.
    const int notHeld = 2 * (c.widthFace.notHeld + c.depthFace.notHeld);
    if (notHeld > 0)
        f.push_back(checks2014::supplementaryStirrupsNeeded(notHeld, l.tieReach));
    return c;
}

} // namespace pilarix::engine
