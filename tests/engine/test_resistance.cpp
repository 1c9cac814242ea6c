// The detailed section by strain compatibility: layout, ultimate planes, forces of a
// plane, interaction curve, capacities, utilisation and the steel it needs (AsCompat).

#include "base/calc_error.h"
#include "engine/interaction.h"
#include "support/tolerance.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

namespace {

// 20 x 50 cm, fck 200 kgf/cm², γc 1.4, γs 1.15, Es 2 100 000 kgf/cm².
const double kSigcd = 0.85 * 200 / 1.4; // 121.43 kgf/cm²
Steel steel(SteelGrade g) { return designSteel(g, 1.15, 2100000); }

// Two rows of two 1.25 cm² bars at d' = 4 cm: the section worked by hand.
ReinforcedSection handSection(SteelGrade g = SteelGrade::CA50A)
{
    return {20, 50, designConcrete(200, 1.4), steel(g), {{4, 2.5}, {46, 2.5}}};
}

// The program's default column: 8 bars of 12.5 mm (2 on the width, 4 on the depth).
ReinforcedSection defaultColumn(SteelGrade g = SteelGrade::CA50A, double nBase = 2)
{
    return rectangularColumn(20, 50, 4.125, nBase, 4, 1.25, designConcrete(200, 1.4), steel(g));
}

// The slow way, to check the closed form against: 20 000 strips of concrete.
SectionForces forcesByStrips(const ReinforcedSection& s, const StrainPlane& p)
{
    const double h = s.depth, dy = h / 20000;
    auto strain = [&](double y) { return p.top + (p.bottom - p.top) * y / h; };
    SectionForces f;
    auto add = [&](double force, double y) { f.n += force, f.m += force * (h / 2 - y); };
    for (double y = dy / 2; y < h; y += dy) {
        const double e = std::clamp(strain(y), 0.0, 2.0);
        add(s.concrete.sigcd * s.width * dy * (e - e * e / 4), y);
    }
    for (const BarRow& r : s.rows)
        add(r.area * steelStress(s.steel, strain(r.depth)), r.depth);
    return f;
}

TEST(EngineResistance, PerimeterLayoutAsRows)
{
    const ReinforcedSection s = defaultColumn(SteelGrade::CA50A, 3);
    const double y[] = {4.125, 4.125 + 41.75 / 3, 45.875 - 41.75 / 3, 45.875}, area[] = {3.75, 2.5, 2.5, 3.75};
    ASSERT_EQ(s.rows.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(s.rows[i].depth, y[i], 1e-12) << i;
        EXPECT_EQ(s.rows[i].area, area[i]) << i;
        EXPECT_EQ(s.rows[i].depth + s.rows[3 - i].depth, 50) << i; // no moment from rounding at uniform strain
    }
}

TEST(EngineResistance, BadDataIsAMessage)
{
    const Concrete c = designConcrete(200, 1.4);
    const Steel a = steel(SteelGrade::CA50A);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ReinforcedSection outside = handSection();
    outside.rows[1].depth = 50.5;
    for (const auto& [name, call] : std::vector<std::pair<const char*, std::function<void()>>>{
             {"b zero", [&] { rectangularColumn(0, 50, 4, 2, 2, 1.25, c, a); }},
             {"d' h/2", [&] { rectangularColumn(20, 50, 25, 2, 2, 1.25, c, a); }},
             {"nBase 2.5", [&] { rectangularColumn(20, 50, 4, 2.5, 2, 1.25, c, a); }},
             {"nAltura 1", [&] { rectangularColumn(20, 50, 4, 2, 1, 1.25, c, a); }},
             {"concreto sem fck", [&] { rectangularColumn(20, 50, 4, 2, 2, 1.25, Concrete{}, a); }},
             {"camada fora da seção", [&] { checkSection(outside); }},
             {"plano NaN", [&] { planeForces(handSection(), {nan, 1}); }},
             {"N NaN", [&] { utilisation(handSection(), nan, 1); }},
             {"nada a escalar", [&] { requiredSteelArea({20, 50, c, a, {}}, -1000, 0); }}})
        EXPECT_THROW(call(), CalcError) << name;
}

// Hand section: farthest row d = 46 cm; pivot B starts at x23 = 3.5·46/13.5.
double tOfX(double x) { return 1 + (x - 3.5 * 46 / 13.5) / (50 - 3.5 * 46 / 13.5); }

TEST(EngineResistance, UltimatePlanesAndDomains)
{
    // CA-50A: the farthest row yields (domain 3) while x ≤ 3.5·46/(3.5 + 2.0704) = 28.90 cm.
    struct Row { const char* name; double t, top, bottom; Domain domain; };
    for (const Row& r : std::vector<Row>{{"tração uniforme", 0, -10, -10, Domain::D1},
                                         {"topo 0, -10 em d", 10 / 13.5, 0, -10 * 50 / 46.0, Domain::D1},
                                         {"fim do domínio 2", 1, 3.5, 3.5 - 13.5 * 50 / 46, Domain::D2},
                                         {"x = 28.8", tOfX(28.8), 3.5, 3.5 * (28.8 - 50) / 28.8, Domain::D3},
                                         {"x = 29", tOfX(29), 3.5, 3.5 * (29 - 50) / 29.0, Domain::D4},
                                         {"linha neutra na base", 2, 3.5, 0, Domain::D4a},
                                         {"domínio 5, base 1", 2.5, 2.75, 1, Domain::D5},
                                         {"além do fim", 7, 2, 2, Domain::D5}}) {
        const StrainPlane p = ultimatePlane(handSection(), r.t);
        EXPECT_NEAR(p.top, r.top, 1e-12) << r.name;
        EXPECT_NEAR(p.bottom, r.bottom, 1e-12) << r.name;
        EXPECT_EQ(domainOf(handSection(), r.t), r.domain) << r.name;
    }
}

TEST(EngineResistance, ConcreteInClosedForm)
{
    // The parabola–rectangle block over a neutral axis x carries 17/21·σcd·b·x with its
    // centroid at 99/238·x from the compressed face.
    auto block = [](double x, double sign) {
        const double n = 17.0 / 21 * kSigcd * 20 * x;
        return SectionForces{n, sign * n * (25 - 99.0 / 238 * x)};
    };
    struct Row { const char* name; StrainPlane plane; SectionForces expected; };
    for (const Row& r : std::vector<Row>{{"x = 20", {3.5, 3.5 * (20 - 50) / 20.0}, block(20, 1)},
                                         {"x = 35", {3.5, 3.5 * (35 - 50) / 35.0}, block(35, 1)},
                                         {"x = h, base comprimida", {0, 3.5}, block(50, -1)},
                                         {"uniforme 2.5", {2.5, 2.5}, {kSigcd * 1000, 0}},
                                         {"toda tracionada", {-1, -5}, {0, 0}}}) {
        const SectionForces f = planeForces({20, 50, designConcrete(200, 1.4), steel(SteelGrade::CA50A), {}}, r.plane);
        EXPECT_NEAR_REL(f.n, r.expected.n, 1e-13) << r.name;
        EXPECT_NEAR_REL(f.m, r.expected.m, 1e-13) << r.name;
    }
}

TEST(EngineInteraction, AxialCapacities)
{
    // Uniform 2 ‰: the concrete at σcd, the bars at σs(2 ‰) (CA-50A still elastic:
    // 4200 < fyd = 4347.8; CA-60B on its curve, below fyd); uniform −10 ‰: the bars at fyd.
    struct Row { const char* name; SteelGrade grade; double sigma2, fyd; };
    const Steel b60 = steel(SteelGrade::CA60B);
    ASSERT_LT(b60.sigS2, b60.fyd);
    for (const Row& r : std::vector<Row>{{"CA-50A", SteelGrade::CA50A, 4200, 5000 / 1.15},
                                         {"CA-60B", SteelGrade::CA60B, b60.sigS2, 6000 / 1.15}}) {
        const AxialCapacity c = axialCapacity(handSection(r.grade));
        EXPECT_NEAR_REL(c.nRdMax, kSigcd * 1000 + 5 * r.sigma2, 1e-14) << r.name;
        EXPECT_NEAR_REL(c.nRdMin, -5 * r.fyd, 1e-14) << r.name;
    }
}

TEST(EngineInteraction, BalancedPointByHand)
{
    // 3.5 ‰ at the top, −εyd = −4347.83/2.1e6 = −2.0704 ‰ at d = 46 cm:
    //   x  = 3.5·46/(3.5 + 2.0704)                       = 28.9028 cm
    //   Nc = 17/21·121.4286·20·x                         = 56 822.52 kgf, at 99/238·x = 12.0226 cm
    //   top bars: 3.5·(1 − 4/x) = 3.016 ‰ > εyd, so both rows carry 2.5·4347.83 = 10 869.57 kgf
    //   N  = Nc (the bars cancel)
    //   M  = Nc·(25 − 12.0226) + 10 869.57·21 + 10 869.57·21 = 1 193 930.6 kgf·cm
    const std::optional<MomentCapacity> c = momentCapacity(handSection(), 56822.5237);
    ASSERT_TRUE(c);
    EXPECT_NEAR_REL(c->mRd, 1193930.59, 1e-7);
    EXPECT_NEAR(c->plane.top, 3.5, 1e-12);
    EXPECT_NEAR(c->plane.top + (c->plane.bottom - c->plane.top) * 46 / 50, -2.0703934, 1e-6);
    EXPECT_FALSE(momentCapacity(handSection(), -21739.2));
    EXPECT_FALSE(momentCapacity(handSection(), 142428.6));
}

// An ultimate plane holds a pivot: 10 ‰ of lengthening at the row farthest from the
// more compressed face, 3.5 ‰ at that face, or 2 ‰ at 3h/7 from it.
bool isUltimate(StrainPlane p, double near, double far)
{
    if (p.bottom > p.top) // the bottom is the more compressed face: look from below
        std::swap(p.top, p.bottom), far = 50 - near;
    auto at = [&](double y) { return p.top + (p.bottom - p.top) * y / 50; };
    return std::fabs(at(far) + 10) < 1e-9 || std::fabs(p.top - 3.5) < 1e-9 || std::fabs(at(50 * 3 / 7.0) - 2) < 1e-9;
}

TEST(EngineInteraction, CurveWindsOnceSymmetricAndInEquilibrium)
{
    for (const SteelGrade g : {SteelGrade::CA50A, SteelGrade::CA60B}) {
        const ReinforcedSection s = defaultColumn(g);
        const InteractionCurve c = interactionCurve(s);
        const std::vector<CurvePoint>& p = c.points;
        ASSERT_GE(p.size(), 200u);
        EXPECT_EQ(p.front().n, c.nRdMin);
        EXPECT_EQ(c.nRdMax, axialCapacity(s).nRdMax);
        // The polygon winds once, clockwise. It is not strictly convex: where domain 2
        // starts, the first concrete (lever arm near h/2) adds moment faster than the top
        // bars did (h/2 − d'), and domain 5 has a shallower dent of its own; the dents
        // reach about 0.5 % of M_Rd,max, the counter-turns 0.05 rad in all.
        double clockwise = 0, counter = 0;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const CurvePoint &a = p[i], &b = p[(i + 1) % p.size()], &d = p[(i + 2) % p.size()];
            const double ux = (b.n - a.n) / c.nRdMax, uy = (b.m - a.m) / 1e6;
            const double vx = (d.n - b.n) / c.nRdMax, vy = (d.m - b.m) / 1e6;
            const double turn = std::atan2(ux * vy - uy * vx, ux * vx + uy * vy);
            (turn < 0 ? clockwise : counter) += turn;
            EXPECT_TRUE(isUltimate(a.plane, 4.125, 45.875)) << i;
            const SectionForces f = forcesByStrips(s, a.plane);
            EXPECT_NEAR(a.n, f.n, 1e-7 * c.nRdMax) << i;
            EXPECT_NEAR(a.m, f.m, 1e-7 * c.nRdMax * 50) << i;
            // Both sides lie on the capacity at their N: the negative one is the mirror.
            if (a.n > c.nRdMin && a.n < c.nRdMax) {
                EXPECT_NEAR(std::fabs(a.m), momentCapacity(s, a.n)->mRd, 1e-6 * c.nRdMax) << i;
            }
        }
        EXPECT_NEAR(clockwise + counter, -2 * std::numbers::pi, 1e-9);
        EXPECT_LT(counter, 0.06);
    }
}

TEST(EngineInteraction, ClassBCarriesNoMoreThanClassA)
{
    const ReinforcedSection a = defaultColumn(SteelGrade::CA50A), b = defaultColumn(SteelGrade::CA50B);
    const AxialCapacity cb = axialCapacity(b);
    EXPECT_LE(cb.nRdMax, axialCapacity(a).nRdMax);
    // Class B's stresses are a fine staircase (single-precision constant): M to a few 1e-7.
    for (double n = cb.nRdMin; n <= cb.nRdMax; n += (cb.nRdMax - cb.nRdMin) / 100)
        EXPECT_LE(momentCapacity(b, n)->mRd, momentCapacity(a, n)->mRd * (1 + 1e-6)) << n;
}

TEST(EngineInteraction, UtilisationAlongARay)
{
    const ReinforcedSection s = defaultColumn();
    const double m30 = momentCapacity(s, 30000)->mRd, m90 = momentCapacity(s, 90000)->mRd;
    const double inf = std::numeric_limits<double>::infinity();
    struct Row { const char* name; double n, m, ratio; };
    for (const Row& r : std::vector<Row>{{"no contorno", 30000, m30, 1},
                                         {"metade", 15000, m30 / 2, 0.5},
                                         {"momento negativo, 3x", 270000, -3 * m90, 3},
                                         {"compressão simples", 0.8 * 163428.571429, 0, 0.8},
                                         {"tração simples", 1.5 * -43478.2608696, 0, 1.5},
                                         {"nada", 0, 0, 0}}) {
        const Utilisation u = utilisation(s, r.n, r.m);
        EXPECT_NEAR(u.ratio, r.ratio, 1e-9 * r.ratio) << r.name;
        EXPECT_NEAR_REL(u.mRd * r.ratio, r.m, 1e-9) << r.name;
    }
    // Without bars: nothing in tension, and no eccentricity beyond h/2 (50 cm here).
    EXPECT_EQ(utilisation({20, 50, s.concrete, s.steel, {}}, -1000, 0).ratio, inf);
    EXPECT_EQ(utilisation({20, 50, s.concrete, s.steel, {}}, 1000, 50000).ratio, inf);
}

TEST(EngineInteraction, RequiredSteelArea)
{
    const ReinforcedSection s = defaultColumn();
    struct Row { const char* name; double n, m; std::optional<double> as; };
    for (const Row& r : std::vector<Row>{
             {"tração: N/fyd", -30000, 0, 30000 / (5000 / 1.15)},
             {"compressão: (N − σcd·Ac)/σs(2 ‰)", 150000, 0, (150000 - kSigcd * 1000) / 4200},
             {"o concreto basta", 60000, 0, 0.0},
             {"o M_Rd da própria armadura: 8 x 1.25", 50000, momentCapacity(s, 50000)->mRd, 10.0},
             {"nem As = b·h basta", 1e7, 0, std::nullopt}}) {
        const std::optional<double> as = requiredSteelArea(s, r.n, r.m);
        ASSERT_EQ(as.has_value(), r.as.has_value()) << r.name;
        if (!as)
            continue;
        EXPECT_NEAR(*as, *r.as, 2e-7) << r.name;
        if (*as == 0)
            continue; // else on the boundary, and a hair less is not enough
        EXPECT_NEAR(utilisation(withSteelArea(s, *as), r.n, r.m).ratio, 1, 1e-6) << r.name;
        EXPECT_GT(utilisation(withSteelArea(s, *as - 1e-4), r.n, r.m).ratio, 1) << r.name;
    }
}

} // namespace
