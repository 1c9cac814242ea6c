// Moments about both axes at a fixed N, as a verification of one column runs them:
// the whole contour, and the utilisation of one point (a search on the angle of the
// neutral axis, each step a search on the plane for N).

#include "engine/biaxial.h"

#include <benchmark/benchmark.h>

namespace {

using namespace pilarix::engine;

// The window's defaults: 20 x 50 cm, 2 x 4 bars of 12.5 mm, fck 20 MPa, CA-50A.
BiaxialSection defaults()
{
    return biaxialColumn(20, 50, 4.125, 2, 4, 1.25, designConcrete(200, 1.4), designSteel(SteelGrade::CA50A, 1.15, 2100000));
}

// A wall-like 40 x 120 cm with 4 x 20 bars of 20 mm, C40, CA-50A.
BiaxialSection wall()
{
    return biaxialColumn(40, 120, 4, 4, 20, 3.15, designConcrete(400, 1.4), designSteel(SteelGrade::CA50A, 1.15, 2100000));
}

void contour(benchmark::State& state, const BiaxialSection& s, double nSd)
{
    MomentContour c;
    for (auto _ : state) {
        c = momentContour(s, nSd);
        benchmark::DoNotOptimize(c);
    }
    state.counters["pontos"] = static_cast<double>(c.points.size());
}

void utilisation(benchmark::State& state, const BiaxialSection& s, double nSd, double mx, double my)
{
    BiaxialUtilisation u;
    for (auto _ : state) {
        u = utilisationAtN(s, nSd, mx, my);
        benchmark::DoNotOptimize(u);
    }
    state.counters["razao"] = u.ratio;
}

void BM_Contour_20x50(benchmark::State& state) { contour(state, defaults(), 40000); }
BENCHMARK(BM_Contour_20x50)->Unit(benchmark::kMicrosecond);

void BM_Contour_40x120(benchmark::State& state) { contour(state, wall(), 300000); }
BENCHMARK(BM_Contour_40x120)->Unit(benchmark::kMicrosecond);

void BM_Utilisation_20x50(benchmark::State& state) { utilisation(state, defaults(), 40000, 1.0e6, 0.4e6); }
BENCHMARK(BM_Utilisation_20x50)->Unit(benchmark::kMicrosecond);

void BM_Utilisation_40x120(benchmark::State& state) { utilisation(state, wall(), 300000, 9.0e6, 2.0e6); }
BENCHMARK(BM_Utilisation_40x120)->Unit(benchmark::kMicrosecond);

} // namespace
