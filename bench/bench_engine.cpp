// The engine's calculation of one column and the search for the lightest
// arrangement, as a caller of the engine runs them: values in, a result out, a
// fresh start of the method each time.

#include "engine/column.h"
#include "engine/column2014.h"
#include "engine/load_cases.h"
#include "engine/search.h"

#include <benchmark/benchmark.h>

namespace {

using namespace pilarix;

// The window's defaults: 20 x 50 cm, 2 x 4 bars, 400 kN, 10000 kN.cm, fck 20 MPa,
// CA-50A, d' as the cover settles it (4.125 cm).
engine::ColumnInput defaults()
{
    engine::ColumnInput in;
    in.dLinha.typed = 4.125;
    return in;
}

void calculateColumn(benchmark::State& state, const engine::ColumnInput& in)
{
    engine::FixedAnswers answers;
    engine::ColumnResult r;
    for (auto _ : state) {
        engine::Memory memory;
        r = engine::calculate(in, answers, memory);
        benchmark::DoNotOptimize(r);
    }
    state.counters["AsNec"] = r.design.asNec;
    state.SetLabel(std::string(r.ok() ? "Ok" : "erro") + ", " + std::to_string(r.passes) + " passe(s)");
}

void BM_Calculate_Defaults(benchmark::State& state) { calculateColumn(state, defaults()); }
BENCHMARK(BM_Calculate_Defaults);

// As the window starts: d' empty, so the cover corrects it and the pass runs again.
void BM_Calculate_DefaultsFromEmptyDLinha(benchmark::State& state)
{
    engine::ColumnInput in = defaults();
    in.dLinha.typed = 0;
    calculateColumn(state, in);
}
BENCHMARK(BM_Calculate_DefaultsFromEmptyDLinha);

// A wall-like section with 20 bars on each depth face, in zone C: the marches run over
// 20 layers.
void BM_Calculate_40x120_20Bars_ZoneC(benchmark::State& state)
{
    engine::ColumnInput in = defaults();
    in.base = 40;
    in.depth = 120;
    in.dLinha.typed = 4;
    in.barsOnDepthFace = 20;
    in.Nd = 300000;
    in.Md = 9000000;
    calculateColumn(state, in);
}
BENCHMARK(BM_Calculate_40x120_20Bars_ZoneC);

void searchSection(benchmark::State& state, double b, double h)
{
    engine::SearchInput in;
    in.column = defaults();
    in.column.base = b;
    in.column.depth = h;
    // The bars that fit on a face, 5 cm apart, with d' empty (as Ler02 counts them).
    in.maxBarsOnWidthFace = static_cast<double>(static_cast<int>(b / 5 + 1 + 0.5));
    in.maxBarsOnDepthFace = static_cast<double>(static_cast<int>(h / 5 + 1));
    engine::SearchResult r;
    for (auto _ : state) {
        engine::Memory memory;
        r = engine::search(in, memory);
        benchmark::DoNotOptimize(r);
    }
    state.counters["candidatos"] = static_cast<double>(r.candidates);
    state.counters["solucoes"] = static_cast<double>(r.solutions.size());
    if (!r.solutions.empty())
        state.SetLabel("melhor " + std::to_string(static_cast<int>(r.solutions[0].barsOnWidthFace)) + " x "
                       + std::to_string(static_cast<int>(r.solutions[0].barsOnDepthFace)) + ", "
                       + std::to_string(r.solutions[0].weight) + " kg");
}

void BM_Search_Defaults(benchmark::State& state) { searchSection(state, 20, 50); }
BENCHMARK(BM_Search_Defaults)->Unit(benchmark::kMillisecond);

void BM_Search_40x120(benchmark::State& state) { searchSection(state, 40, 120); }
BENCHMARK(BM_Search_40x120)->Unit(benchmark::kMillisecond);

void BM_Search_100x500(benchmark::State& state) { searchSection(state, 100, 500); }
BENCHMARK(BM_Search_100x500)->Unit(benchmark::kMillisecond);

} // namespace

namespace {
// A column under ten load cases: every case designed, the governing one detailed and
// verified in full (curve, M_Rd, AsCompat), the utilisation of every case.
void BM_Calculate_TenLoadCases(benchmark::State& state)
{
    std::vector<engine::LoadCase> cases;
    for (int i = 0; i < 10; ++i)
        cases.push_back({"caso " + std::to_string(i + 1), 20000.0 + 6000 * i, 1500000.0 - 100000 * i});
    engine::FixedAnswers answers;
    engine::CasesResult r;
    for (auto _ : state) {
        r = engine::calculateCases(defaults(), cases, answers);
        benchmark::DoNotOptimize(r);
    }
    state.SetLabel("governa " + r.cases[static_cast<std::size_t>(r.governing)].loadCase.name + (r.ok() ? ", Ok" : ", erro"));
}
BENCHMARK(BM_Calculate_TenLoadCases)->Unit(benchmark::kMicrosecond);
} // namespace

namespace {
// ABNT NBR 6118:2014, the window's defaults: the minimum moment and the slenderness in
// both directions, both designs, the detail and both directions verified.
// Target: at most twice BM_Calculate_Defaults.
void calculate2014(benchmark::State& state, bool oblique)
{
    const std::vector<engine::Case2014> cases{{"1", 40000, 1000000, 0, 0, 0}};
    engine::Slenderness2014Input s;
    s.oblique = oblique;
    engine::FixedAnswers answers;
    engine::Column2014Result r;
    for (auto _ : state) {
        engine::Memory memory;
        engine::MethodState m;
        r = engine::calculate2014(defaults(), cases, s, answers, memory, m);
        benchmark::DoNotOptimize(r);
    }
    state.SetLabel(std::string(r.ok() ? "Ok" : "erro") + ", governa " + r.governingDirection);
}
void BM_Calculate2014_Defaults(benchmark::State& state) { calculate2014(state, false); }
BENCHMARK(BM_Calculate2014_Defaults);

// The same with both directions together (contour, points, minimum envelope).
// Target: within 0.5 ms.
void BM_Calculate2014_DefaultsWithOblique(benchmark::State& state) { calculate2014(state, true); }
BENCHMARK(BM_Calculate2014_DefaultsWithOblique)->Unit(benchmark::kMicrosecond);

// The 40 x 120 search under 2014, both directions together in every solution.
// Targets: at most three times BM_Search_40x120, and within 100 ms.
void BM_Search2014_40x120(benchmark::State& state)
{
    engine::SearchInput in;
    in.column = defaults();
    in.column.base = 40;
    in.column.depth = 120;
    in.column.rules = engine::RuleSet::Nbr2014;
    in.cases2014 = {{"1", 40000, 1000000, 0, 0, 0}};
    in.maxBarsOnWidthFace = static_cast<double>(static_cast<int>(40 / 5 + 1 + 0.5));
    in.maxBarsOnDepthFace = static_cast<double>(static_cast<int>(120 / 5 + 1));
    engine::SearchResult r;
    for (auto _ : state) {
        engine::Memory memory;
        r = engine::search(in, memory);
        benchmark::DoNotOptimize(r);
    }
    state.counters["soluções"] = static_cast<double>(r.solutions.size());
}
BENCHMARK(BM_Search2014_40x120)->Unit(benchmark::kMillisecond);
} // namespace
