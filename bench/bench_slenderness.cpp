// One direction's slenderness and second order by ABNT NBR 6118:2014, and a whole
// column's: closed formulas, so a few dozen nanoseconds; a caller may run them for
// every load case and every candidate of the search.

#include "engine/slenderness.h"

#include <benchmark/benchmark.h>

namespace {

using namespace pilarix;

// The 20 cm direction of a 20 x 50 cm column, ℓe = 280 cm, Nd = 1400 kN, no end
// moments: λ = 48.4 > λ1 = 35, so the second order is worked out.
void BM_DirectionSlenderness(benchmark::State& state, engine::SecondOrderMethod method)
{
    const engine::DirectionInput in{20, 280, {0, 0}};
    engine::DirectionSlenderness d;
    for (auto _ : state) {
        d = engine::directionSlenderness(in, 140000, 0.6533, method);
        benchmark::DoNotOptimize(d);
    }
    state.counters["Md,tot"] = d.totalMoment;
}
BENCHMARK_CAPTURE(BM_DirectionSlenderness, Curvature, engine::SecondOrderMethod::ApproximateCurvature);
BENCHMARK_CAPTURE(BM_DirectionSlenderness, Stiffness, engine::SecondOrderMethod::ApproximateStiffness);

void BM_ColumnSlenderness(benchmark::State& state)
{
    engine::ColumnSlendernessInput in;
    in.base = 20;
    in.depth = 50;
    in.Nd = 140000;
    in.fck = 300;
    in.alongBase.effectiveLength = in.alongDepth.effectiveLength = 280;
    engine::ColumnSlenderness s;
    for (auto _ : state) {
        s = engine::columnSlenderness(in);
        benchmark::DoNotOptimize(s);
    }
    state.counters["Md,tot"] = s.alongBase.totalMoment;
}
BENCHMARK(BM_ColumnSlenderness);

} // namespace
