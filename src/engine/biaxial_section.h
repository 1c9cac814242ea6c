#pragma once
// The detailed section with every bar at its own place, for moments about both axes
// together (flexão composta oblíqua, Item 17.2.5 da ABNT NBR 6118:2014):
//
//   biaxialColumn(b, h, d', nBase, nAltura, bar area, concrete, steel, rules)
//                                  the program's perimeter layout, bar by bar
//   checkSection(section)          a CalcError naming the first value that is not a section
//   compressedDirection(angle)     the unit vector toward the most compressed side
//   ultimatePlane(section, angle, t)   the ultimate plane of domain parameter t whose
//                                  shortening grows toward the direction `angle`
//   planeForces(section, plane)    N, Mx and My of any plane
//
// Axes and signs. x runs across the width b (toward the right face), y up the depth h
// (toward the top face, the face at depth 0 of resistance.h), both from the centre of
// the rectangle; a bar at depth d of resistance.h has y = h/2 − d.
//   N  positive in compression;
//   Mx = Σ σ·y dA, the moment about the axis parallel to b (bending in the direction
//      of h): the program's M, positive when it compresses the top face;
//   My = Σ σ·x dA, the moment about the axis parallel to h (bending in the direction
//      of b), positive when it compresses the right face (x = +b/2).
// Angles are in turns (1 = 360°), measured in the (Mx, My) plane from +Mx toward +My:
// the plane of angle 0 shortens the top face most, that of 1/4 the right face. For
// a layout symmetric about both axes the moment of the plane of angle a points along a
// when a is a multiple of 1/4, and near it otherwise.
// Units as resistance.h: cm, cm², kgf, kgf·cm, kgf/cm²; strains in ‰, shortening positive.

#include "engine/concrete_law.h"
#include "engine/materials.h"

#include <vector>

namespace pilarix::engine {

struct PlacedBar {
    double x = 0, y = 0; // cm, from the centre of the rectangle
    double area = 0;     // cm²
};

struct BiaxialSection {
    double width = 0, depth = 0; // b (along x) and h (along y), cm
    ConcreteLaw concrete;
    Steel steel;
    std::vector<PlacedBar> bars; // the gross concrete area is not reduced by the bars
};

// nAltura bars on each face of depth h and nBase on each face of width b, the four
// corners shared: 2·nBase + 2·(nAltura − 2) bars of barArea, at d' from the faces
// (centre of the bar), equally spaced. Same inputs and limits as rectangularColumn,
// whose rows are these bars summed across the width. Mirror images are exact, so
// that a uniform strain leaves no moment from rounding.
BiaxialSection biaxialColumn(double b, double h, double dLinha, double nBase, int nAltura, double barArea,
                             const Concrete& concrete, const Steel& steel,
                             ConcreteRules rules = ConcreteRules::Nbr2014);

void checkSection(const BiaxialSection& section);

struct Direction {
    double x = 0, y = 0;
};
// (sin 2πa, cos 2πa), exact at the quarter turns; NaN raises CalcError.
Direction compressedDirection(double angle);

// A plane strain over the section: ε(x, y) = centre + perX·x + perY·y (‰, cm).
struct StrainField {
    double centre = 0, perX = 0, perY = 0;
    double at(double x, double y) const { return centre + perX * x + perY * y; }
};

// The ultimate planes of one direction, as resistance.h's across the depth measured
// along it: H = b·|sin| + h·|cos| from the most compressed corner to the opposite one,
// and d the farthest bar from that corner (H without bars, or when every bar is at
// the corner itself):
//   t in [0, 1]  pivot A: 10 ‰ of lengthening at d, the corner from −10 ‰ to εcu;
//   t in [1, 2]  pivot B: εcu at the corner, the neutral axis from εcu·d/(εcu + 10)
//                to H;
//   t in [2, 3]  pivot C: εc2 at (εcu − εc2)/εcu·H, the opposite corner from 0 to εc2.
// t is clamped to [0, 3]: 0 is the uniform lengthening of 10 ‰, 3 the uniform
// shortening of εc2, whatever the angle.
struct BiaxialPlane {
    double angle = 0; // turns
    double t = 0;
    double corner = 0;   // ‰ at the most compressed corner
    double opposite = 0; // ‰ at the opposite corner
    StrainField field;
};

BiaxialPlane ultimatePlane(const BiaxialSection& section, double angle, double t);

struct BiaxialForces {
    double n = 0, mx = 0, my = 0; // kgf, kgf·cm about the centre
};

BiaxialForces planeForces(const BiaxialSection& section, const StrainField& plane);

namespace detail {

// One direction of the ultimate planes with the depth of every bar along it worked
// out once; for searches that have checked the section.
class PlaneFamily {
public:
    PlaneFamily(const BiaxialSection& section, double angle);
    double angle() const { return angle_; }
    BiaxialPlane plane(double t) const;
    BiaxialForces forces(double t) const;

private:
    // The strains at the corner and at the opposite corner of parameter t.
    void strains(double t, double& corner, double& opposite) const;

    const BiaxialSection& s_;
    double angle_;
    Direction v_;
    double uTop_, H_, d_;
    std::vector<double> barDepth_;
};

} // namespace detail

} // namespace pilarix::engine
