// Moments about both axes by strain compatibility: the concrete law by class, the
// section bar by bar, the moment contour at N, the utilisation at fixed N, the
// envelope of the minimum moments and the simplified interaction of 17.2.5.2.

#include "base/calc_error.h"
#include "engine/biaxial.h"
#include "engine/interaction.h"
#include "support/tolerance.h"

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

namespace {

Steel steel(SteelGrade g) { return designSteel(g, 1.15, 2100000); }

struct Layout {
    const char* name;
    double b, h, dLinha, nBase;
    int nAltura;
    double barArea, fck;
    SteelGrade grade;
};

const std::vector<Layout> kLayouts{
    {"20x50 2x4 12.5 CA-50A", 20, 50, 4.125, 2, 4, 1.25, 200, SteelGrade::CA50A},
    {"20x50 3x4 CA-50B", 20, 50, 4.125, 3, 4, 1.25, 250, SteelGrade::CA50B},
    {"30x30 3x3 20 CA-60A", 30, 30, 4.5, 3, 3, 3.15, 300, SteelGrade::CA60A},
    {"40x120 4x20 CA-25B", 40, 120, 4, 4, 20, 2.0, 400, SteelGrade::CA25B},
    {"25x60 2x2 CA-60B", 25, 60, 5, 2, 2, 5.0, 500, SteelGrade::CA60B},
    {"50x20 5x2 CA-50A", 50, 20, 3.5, 5, 2, 0.8, 200, SteelGrade::CA50A},
};

BiaxialSection biaxial(const Layout& l, ConcreteRules rules = ConcreteRules::Nbr2014, double fck = 0)
{
    return biaxialColumn(l.b, l.h, l.dLinha, l.nBase, l.nAltura, l.barArea, designConcrete(fck > 0 ? fck : l.fck, 1.4),
                         steel(l.grade), rules);
}
ReinforcedSection upright(const Layout& l)
{
    return rectangularColumn(l.b, l.h, l.dLinha, l.nBase, l.nAltura, l.barArea, designConcrete(l.fck, 1.4),
                             steel(l.grade));
}
// The same layout turned a quarter: b and h swapped, and the bars of the faces with them.
ReinforcedSection turned(const Layout& l)
{
    return rectangularColumn(l.h, l.b, l.dLinha, l.nAltura, static_cast<int>(l.nBase), l.barArea,
                             designConcrete(l.fck, 1.4), steel(l.grade));
}

const BiaxialSection& defaultSection()
{
    static const BiaxialSection s = biaxial(kLayouts[0]);
    return s;
}

} // namespace

TEST(EngineBiaxial, ConcreteLawByClass)
{
    // ABNT NBR 6118:2014, 8.2.10.1: n, εc2 and εcu from its formulas, to the two decimals
    // they are quoted with (tolerance 0.005); ηc = (40/fck)^(1/3) of the 2023 rules to 1e-4.
    struct Row { const char* name; double fckMpa, n, epsC2, epsCu, etaC2023; };
    for (const Row& r : std::vector<Row>{{"C20", 20, 2, 2, 3.5, 1},
                                         {"C40", 40, 2, 2, 3.5, 1},
                                         {"C50", 50, 2, 2, 3.5, 0.9283},
                                         {"C55", 55, 1.75, 2.20, 3.13, 0.8993},
                                         {"C60", 60, 1.59, 2.29, 2.88, 0.8736},
                                         {"C70", 70, 1.44, 2.42, 2.66, 0.8298},
                                         {"C80", 80, 1.40, 2.52, 2.60, 0.7937},
                                         {"C90", 90, 1.40, 2.60, 2.60, 0.7631}}) {
        const Concrete c = designConcrete(r.fckMpa * kKgfCm2PerMpa, 1.4);
        const ConcreteLaw law = concreteLaw(c);
        EXPECT_NEAR(law.n, r.n, 0.005) << r.name;
        EXPECT_NEAR(law.epsC2, r.epsC2, 0.005) << r.name;
        EXPECT_NEAR(law.epsCu, r.epsCu, 0.005) << r.name;
        EXPECT_LE(law.epsC2, law.epsCu) << r.name; // C90: the formula's 2.6005 ‰ stops at εcu
        EXPECT_EQ(law.etaC, 1) << r.name;
        EXPECT_NEAR(concreteLaw(c, ConcreteRules::Nbr2023).etaC, r.etaC2023, 1e-4) << r.name;
        if (r.fckMpa <= 50) { // exactly the law of resistance.cpp: the pivot C at 3h/7
            EXPECT_EQ(law.pivotCDepth(), (3.5 - 2) / 3.5) << r.name;
        }
    }
    EXPECT_THROW(concreteLaw(designConcrete(950, 1.4)), CalcError);
    EXPECT_THROW(concreteLaw(designConcrete(0, 1.4)), CalcError);
}

TEST(EngineBiaxial, ReducesToTheUniaxialCheck)
{
    // With one moment zero the contour is interaction.h's M_Rd at N: about x the
    // layout itself, about y the layout turned a quarter. From tension to 0.95 N_Rd,max.
    for (const Layout& l : kLayouts) {
        const BiaxialSection s = biaxial(l);
        const AxialRange r = axialRange(s);
        const AxialCapacity ux = axialCapacity(upright(l));
        EXPECT_NEAR_REL(r.nRdMax, ux.nRdMax, 1e-12) << l.name;
        EXPECT_NEAR_REL(r.nRdMin, ux.nRdMin, 1e-12) << l.name;
        for (const double k : {-0.9, -0.3, 0.0, 0.2, 0.5, 0.8, 0.95}) {
            const double n = k < 0 ? -k * r.nRdMin : k * r.nRdMax;
            const double mx = momentCapacity(upright(l), n)->mRd, my = momentCapacity(turned(l), n)->mRd;
            const AxisCapacities a = axisCapacities(s, n);
            ASSERT_TRUE(a.inRange) << l.name << " " << k;
            EXPECT_NEAR_REL(a.mRdxx, mx, 1e-9) << l.name << " N = " << n;
            EXPECT_NEAR_REL(a.mRdyy, my, 1e-9) << l.name << " N = " << n;
            EXPECT_NEAR_REL(utilisationAtN(s, n, 0.7 * mx, 0).ratio, 0.7, 1e-9) << l.name << " N = " << n;
            EXPECT_NEAR_REL(utilisationAtN(s, n, 0, -1.3 * my).ratio, 1.3, 1e-9) << l.name << " N = " << n;
        }
    }
}

TEST(EngineBiaxial, ContourSymmetricClosedAndInEquilibrium)
{
    for (const Layout& l : kLayouts) {
        const BiaxialSection s = biaxial(l);
        const AxialRange r = axialRange(s);
        for (const double n : {0.5 * r.nRdMin, 0.3 * r.nRdMax, 0.7 * r.nRdMax}) {
            const MomentContour c = momentContour(s, n);
            ASSERT_TRUE(c.inRange);
            ASSERT_GE(c.points.size(), 72u) << l.name;
            double scale = 0, turn = 0;
            for (std::size_t i = 0; i < c.points.size(); ++i) {
                const ContourPoint& p = c.points[i];
                const ContourPoint& q = c.points[(i + 1) % c.points.size()];
                scale = std::max(scale, std::hypot(p.mx, p.my));
                const double gap = std::atan2(p.mx * q.my - p.my * q.mx, p.mx * q.mx + p.my * q.my);
                EXPECT_GT(gap, 0) << l.name << " ponto " << i; // counter-clockwise
                EXPECT_LE(gap, 2 * std::numbers::pi / 72 * (1 + 1e-6)) << l.name << " ponto " << i;
                turn += gap;
            }
            EXPECT_NEAR(turn, 2 * std::numbers::pi, 1e-9) << l.name; // winds once round the origin
            // The plane of every point carries N (through the general planeForces), and
            // the mirror images of the 5° grid are points of the contour.
            for (std::size_t i = 0; i < c.points.size(); i += 5) {
                const ContourPoint& p = c.points[i];
                const BiaxialForces f = planeForces(s, ultimatePlane(s, p.angle, p.t).field);
                // Class B stresses rise in steps of a few thousandths of kgf/cm² (materials.h):
                // N then jumps across N_Sd by up to a few parts in 10⁸.
                EXPECT_NEAR(f.n, n, (s.steel.classB ? 1e-7 : 1e-11) * r.nRdMax) << l.name << " ponto " << i;
                EXPECT_NEAR(f.mx, p.mx, 1e-9 * scale) << l.name << " ponto " << i;
                EXPECT_NEAR(f.my, p.my, 1e-9 * scale) << l.name << " ponto " << i;
            }
            auto at = [&](double angle) {
                for (const ContourPoint& p : c.points)
                    if (std::fabs(p.angle - angle) < 1e-12)
                        return p;
                ADD_FAILURE() << "sem ponto no ângulo " << angle;
                return ContourPoint{};
            };
            for (int k = 1; k < 18; ++k) {
                const ContourPoint p = at(k / 72.0), mirrorX = at((72 - k) / 72.0), mirrorY = at((36 - k) / 72.0);
                EXPECT_NEAR(mirrorX.mx, p.mx, 1e-9 * scale) << l.name << " " << k;
                EXPECT_NEAR(mirrorX.my, -p.my, 1e-9 * scale) << l.name << " " << k;
                EXPECT_NEAR(mirrorY.mx, -p.mx, 1e-9 * scale) << l.name << " " << k;
                EXPECT_NEAR(mirrorY.my, p.my, 1e-9 * scale) << l.name << " " << k;
            }
        }
    }
}

TEST(EngineBiaxial, ConcreteInClosedFormAgainstStrips)
{
    // An oblique plane over 20 x 50 cm cut into 400 x 1000 cells: the parabola of C30
    // (n = 2) and of C70 (n = 1.44), neutral axis across a corner, across the section,
    // and the plateau reaching in. Tolerance 2e-5 of the uniform-shortening force.
    struct Row { const char* name; double fck; StrainField plane; };
    for (const Row& r : std::vector<Row>{{"C30 canto", 300, {-1.0, 0.05, 0.07}},
                                         {"C30 atravessa", 300, {1.2, 0.04, 0.09}},
                                         {"C70 atravessa", 700, {1.2, 0.04, 0.09}},
                                         {"C70 patamar", 700, {2.0, -0.06, 0.05}},
                                         {"C90 quase uniforme", 900, {2.3, 0.001, -0.002}}}) {
        BiaxialSection s{20, 50, concreteLaw(designConcrete(r.fck, 1.4)), steel(SteelGrade::CA50A), {}};
        const BiaxialForces f = planeForces(s, r.plane);
        BiaxialForces g;
        const int nx = 400, ny = 1000;
        const double dx = 20.0 / nx, dy = 50.0 / ny;
        for (int i = 0; i < nx; ++i)
            for (int j = 0; j < ny; ++j) {
                const double x = -10 + (i + 0.5) * dx, y = -25 + (j + 0.5) * dy;
                const double force = s.concrete.stress(r.plane.at(x, y)) * dx * dy;
                g.n += force, g.mx += force * y, g.my += force * x;
            }
        const double scale = s.concrete.peak() * 1000;
        EXPECT_NEAR(f.n, g.n, 2e-5 * scale) << r.name;
        EXPECT_NEAR(f.mx, g.mx, 2e-5 * scale * 25) << r.name;
        EXPECT_NEAR(f.my, g.my, 2e-5 * scale * 10) << r.name;
    }
}

TEST(EngineBiaxial, UtilisationIsOneOnTheContour)
{
    const BiaxialSection s = biaxial(kLayouts[3]); // 40 x 120, 48 bars of class B
    const AxialRange r = axialRange(s);
    for (const double n : {0.4 * r.nRdMin, 0.25 * r.nRdMax, 0.85 * r.nRdMax}) {
        const MomentContour c = momentContour(s, n);
        for (std::size_t i = 0; i < c.points.size(); i += 7) {
            const ContourPoint& p = c.points[i];
            EXPECT_NEAR(utilisationAtN(s, n, p.mx, p.my).ratio, 1, 1e-9) << "N = " << n << ", ponto " << i;
            EXPECT_NEAR(utilisationAtN(s, n, 0.5 * p.mx, 0.5 * p.my).ratio, 0.5, 1e-9) << "N = " << n;
        }
    }
}

TEST(EngineBiaxial, CornerAndEdgeColumns)
{
    // A corner column: both moments large. An edge column: the moment of its frame
    // about x and the minimum moment about y, M1d,min = N·(1.5 + 0.03·h) (11.3.3.4.3).
    const BiaxialSection& s = defaultSection();
    struct Row { const char* name; double n, mx, my; };
    const double n = 60000;
    const AxisCapacities cap = axisCapacities(s, n);
    for (const Row& r : std::vector<Row>{{"pilar de canto", n, 0.6 * cap.mRdxx, -0.6 * cap.mRdyy},
                                         {"pilar de extremidade", n, 0.8 * cap.mRdxx, n * (1.5 + 0.03 * 20)},
                                         {"canto tracionado", -15000, -1.0e5, 0.9e5}}) {
        const BiaxialUtilisation u = utilisationAtN(s, r.n, r.mx, r.my);
        ASSERT_TRUE(u.nCarried && u.boundary) << r.name;
        // The boundary lies on the ray, in the same direction, carrying N.
        const ContourPoint& p = *u.boundary;
        EXPECT_NEAR(p.mx * r.my - p.my * r.mx, 0, 1e-9 * std::hypot(p.mx, p.my) * std::hypot(r.mx, r.my)) << r.name;
        EXPECT_GT(p.mx * r.mx + p.my * r.my, 0) << r.name;
        EXPECT_NEAR(planeForces(s, ultimatePlane(s, p.angle, p.t).field).n, r.n, 1e-9 * std::fabs(r.n)) << r.name;
        // Against the polygon of the contour: where the ray crosses one of its chords,
        // which lie inside the curve, a little short of it.
        const MomentContour c = momentContour(s, r.n);
        const double dx = r.mx / std::hypot(r.mx, r.my), dy = r.my / std::hypot(r.mx, r.my);
        double chord = 0;
        for (std::size_t i = 0; i < c.points.size(); ++i) {
            const ContourPoint& a = c.points[i];
            const ContourPoint& b = c.points[(i + 1) % c.points.size()];
            const double ca = dx * a.my - dy * a.mx, cb = dx * b.my - dy * b.mx;
            if (ca <= 0 && cb > 0) {
                const double w = ca / (ca - cb);
                chord = dx * (a.mx + w * (b.mx - a.mx)) + dy * (a.my + w * (b.my - a.my));
            }
        }
        const double radius = std::hypot(r.mx, r.my) / u.ratio;
        EXPECT_LE(chord, radius * (1 + 1e-9)) << r.name;
        EXPECT_GE(chord, radius * 0.99) << r.name;
    }
    // Both moments at 60 %: the corner column is not carried, the exact check more
    // lenient than the sum of the two ratios and stricter than either alone.
    const double corner = utilisationAtN(s, n, 0.6 * cap.mRdxx, 0.6 * cap.mRdyy).ratio;
    EXPECT_GT(corner, 0.6);
    EXPECT_LT(corner, 1.2);
    const SimplifiedInteraction si = simplifiedInteraction(s, n, 0.6 * cap.mRdxx, -0.6 * cap.mRdyy);
    EXPECT_NEAR(si.value, 2 * std::pow(0.6, 1.2), 1e-9);
    EXPECT_NEAR_REL(si.mRdyy, cap.mRdyy, 1e-9); // the symmetric layout: the same on both sides
}

TEST(EngineBiaxial, EnvelopeOfTheMinimumMoments)
{
    const BiaxialSection& s = defaultSection();
    const double n = 50000;
    const AxisCapacities cap = axisCapacities(s, n);
    struct Row { const char* name; double a, b; };
    for (const Row& r : std::vector<Row>{{"mínimos de 20 x 50", n * (1.5 + 0.03 * 50), n * (1.5 + 0.03 * 20)},
                                         {"metade das capacidades", 0.5 * cap.mRdxx, 0.5 * cap.mRdyy},
                                         {"círculo grande", 1.2 * cap.mRdyy, 1.2 * cap.mRdyy}}) {
        const EnvelopeMargin e = minimumMomentMargin(s, n, r.a, r.b);
        ASSERT_TRUE(e.inRange) << r.name;
        // The ellipse's own point in that direction, divided by the margin, is on the
        // contour: its utilisation is 1/margin.
        const double beta = 2 * std::numbers::pi * e.direction;
        const double re = 1 / std::hypot(std::cos(beta) / r.a, std::sin(beta) / r.b);
        EXPECT_NEAR(utilisationAtN(s, n, re * std::cos(beta), re * std::sin(beta)).ratio, 1 / e.margin, 1e-7)
            << r.name;
        // No direction of a fine fan does worse.
        for (int k = 0; k < 360; ++k) {
            const double t = 2 * std::numbers::pi * k / 360;
            const double rk = 1 / std::hypot(std::cos(t) / r.a, std::sin(t) / r.b);
            EXPECT_LE(utilisationAtN(s, n, rk * std::cos(t), rk * std::sin(t)).ratio, 1 / e.margin * (1 + 1e-7))
                << r.name << " " << k;
        }
        // Along the axes the margin is the capacity over the semi-axis.
        EXPECT_LE(e.margin, std::min(cap.mRdxx / r.a, cap.mRdyy / r.b) * (1 + 1e-9)) << r.name;
    }
    EXPECT_LT(minimumMomentMargin(s, n, 1.2 * cap.mRdyy, 1.2 * cap.mRdyy).margin, 1); // a circle past M_Rd,yy
}

TEST(EngineBiaxial, OutsideTheAxialRangeAndBadData)
{
    const BiaxialSection& s = defaultSection();
    const AxialRange r = axialRange(s);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double n : {r.nRdMin * 1.001, r.nRdMax * 1.001}) {
        EXPECT_FALSE(momentContour(s, n).inRange) << n;
        EXPECT_TRUE(momentContour(s, n).points.empty()) << n;
        EXPECT_EQ(utilisationAtN(s, n, 0, 0).ratio, std::numeric_limits<double>::infinity()) << n;
        EXPECT_FALSE(axisCapacities(s, n).inRange) << n;
        EXPECT_FALSE(minimumMomentMargin(s, n, 1, 1).inRange) << n;
    }
    EXPECT_EQ(utilisationAtN(s, 30000, 0, 0).ratio, 0);
    BiaxialSection offCentre = s;
    offCentre.bars.pop_back();
    const Concrete c = designConcrete(200, 1.4);
    const Steel a = steel(SteelGrade::CA50A);
    for (const auto& [name, call] : std::vector<std::pair<const char*, std::function<void()>>>{
             {"b zero", [&] { biaxialColumn(0, 50, 4, 2, 2, 1.25, c, a); }},
             {"d' além de b/2", [&] { biaxialColumn(8, 50, 4, 2, 2, 1.25, c, a); }},
             {"nBase 1", [&] { biaxialColumn(20, 50, 4, 1, 2, 1.25, c, a); }},
             {"barra fora", [&] { checkSection(BiaxialSection{20, 50, concreteLaw(c), a, {{10.5, 0, 1}}}); }},
             {"N NaN", [&] { utilisationAtN(s, nan, 1, 1); }},
             {"My NaN", [&] { momentContour(s, 1000), utilisationAtN(s, 1000, 1, nan); }},
             {"ângulo NaN", [&] { ultimatePlane(s, nan, 1); }},
             {"semieixo zero", [&] { minimumMomentMargin(s, 1000, 0, 1); }},
             {"armadura fora do centro", [&] { utilisationAtN(offCentre, 1000, 1, 1); }}})
        EXPECT_THROW(call(), CalcError) << name;
}
