// The check of the detailed section by strain compatibility, on the default column:
// 20 x 50 cm, 8 bars of 12.5 mm (2 on the width, 4 on the depth), d' = 4.125 cm,
// fck 20 MPa, γc 1.4, CA-50A, γs 1.15. Targets: the whole curve within 1 ms, one
// utilisation within 100 µs; the steel strain compatibility needs is reported.

#include "engine/catalogue.h"
#include "engine/interaction.h"

#include <benchmark/benchmark.h>

#include <optional>

namespace {

using namespace pilarix::engine;

ReinforcedSection pilarPadrao()
{
    return rectangularColumn(20, 50, 4.125, 2, 4, bar(5).area, designConcrete(200, 1.4),
                             designSteel(SteelGrade::CA50A, 1.15, 2100000));
}

// Nd = 56 tf, Md = 14 tf·m: a little beyond what the eight bars carry. The results are
// kept in their structs: DoNotOptimize on a bare double loses it with this GCC.
constexpr double kNd = 56000, kMd = 1400000;

void BM_Verificacao_Curva(benchmark::State& state)
{
    const ReinforcedSection s = pilarPadrao();
    std::size_t pontos = 0;
    for (auto _ : state) {
        const InteractionCurve c = interactionCurve(s);
        pontos = c.points.size();
        benchmark::DoNotOptimize(c.points.data());
    }
    state.counters["pontos"] = static_cast<double>(pontos);
}
BENCHMARK(BM_Verificacao_Curva)->Unit(benchmark::kMicrosecond);

void BM_Verificacao_Utilizacao(benchmark::State& state)
{
    const ReinforcedSection s = pilarPadrao();
    Utilisation u;
    for (auto _ : state) {
        u = utilisation(s, kNd, kMd);
        benchmark::DoNotOptimize(u);
    }
    state.counters["utilizacao"] = u.ratio;
}
BENCHMARK(BM_Verificacao_Utilizacao)->Unit(benchmark::kMicrosecond);

void BM_Verificacao_MRd(benchmark::State& state)
{
    const ReinforcedSection s = pilarPadrao();
    std::optional<MomentCapacity> c;
    for (auto _ : state) {
        c = momentCapacity(s, kNd);
        benchmark::DoNotOptimize(c);
    }
    state.counters["MRd"] = c ? c->mRd : -1;
}
BENCHMARK(BM_Verificacao_MRd)->Unit(benchmark::kMicrosecond);

void BM_Verificacao_AsCompat(benchmark::State& state)
{
    const ReinforcedSection s = pilarPadrao();
    std::optional<double> as;
    for (auto _ : state) {
        as = requiredSteelArea(s, kNd, kMd);
        benchmark::DoNotOptimize(as);
    }
    state.counters["As"] = as.value_or(-1);
}
BENCHMARK(BM_Verificacao_AsCompat)->Unit(benchmark::kMicrosecond);

} // namespace
