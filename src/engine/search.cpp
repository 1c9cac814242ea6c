#include "engine/search.h"

#include "engine/catalogue.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace pilarix::engine {

namespace {
// Room for the whole list is taken at once when it is modest; past this the list
// grows as solutions come.
constexpr double kReserveLimit = 1 << 16;

// The case of `cases` needing the most steel for this arrangement (the first of
// equal ones), each designed from a fresh start.
const LoadCase& governingCase(ColumnInput column, const std::vector<LoadCase>& cases)
{
    std::size_t g = 0;
    double most = -1;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        column.Nd = cases[i].Nd;
        column.Md = cases[i].Md;
        Memory fresh;
        const ColumnResult d = design(column, fresh);
        if (d.designed && !d.failure && d.design.asNec > most) {
            most = d.design.asNec;
            g = i;
        }
    }
    return cases[g];
}

// The candidate's detailed section carries every case.
bool carriesEveryCase(const ColumnInput& column, const MethodState& s, const std::vector<LoadCase>& cases)
{
    try {
        const ReinforcedSection section =
            rectangularColumn(column.base, column.depth, s.dLinha, column.barsOnWidthFace, column.barsOnDepthFace,
                              s.AsBarra, designConcrete(column.fck, column.gammaC),
                              designSteel(column.steel, column.gammaS, column.Es));
        for (const double u : caseUtilisations(section, s.GamaN, cases))
            if (!(u <= 1))
                return false;
        return true;
    } catch (const CalcError&) {
        return false;
    }
}
} // namespace

double countCandidates(const SearchInput& input)
{
    // The loops below run from 2 up to each maximum in steps of one.
    auto counts = [](double maximum) { return maximum >= 2 ? std::floor(maximum - 2) + 1 : 0.0; };
    return counts(input.maxBarsOnDepthFace) * counts(input.maxBarsOnWidthFace)
           * std::max(0.0, std::floor(input.column.maxStirrupIndex));
}

SearchResult search(const SearchInput& input, Memory& memory, MethodState& state)
{
    SearchResult r;
    ColumnInput column = input.column;
    column.dLinha.automatic = true;
    const double sMax = column.maxStirrupIndex;
    const double candidates = countCandidates(input);
    if (input.candidateLimit > 0 && candidates > input.candidateLimit) {
        r.beyondLimit = candidates;
        return r;
    }
    // Told about once every 256 arrangements: the call costs nothing beside them.
    constexpr long kProgressEvery = 256;
    std::vector<Solution>& found = r.found;
    found.reserve(static_cast<std::size_t>(std::min(candidates, kReserveLimit)));
    try {
        for (double na = 2; na <= input.maxBarsOnDepthFace; ++na) {
            for (double nb = 2; nb <= input.maxBarsOnWidthFace; ++nb) {
                column.barsOnDepthFace = CInt16(na, "número de barras na altura");
                column.barsOnWidthFace = nb;
                // The governing case depends on the bars, not on the stirrup: it is
                // found once for the stirrups tried with them.
                const bool severalCases = input.cases.size() >= 2;
                ColumnInput tried = column;
                if (severalCases) {
                    const LoadCase& g = governingCase(column, input.cases);
                    tried.Nd = g.Nd;
                    tried.Md = g.Md;
                }
                for (double s = 1; s <= sMax; ++s) {
                    r.lastBarsOnDepthFace = column.barsOnDepthFace;
                    r.lastBarsOnWidthFace = nb;
                    r.lastStirrupIndex = static_cast<int>(s);
                    r.last.reset();
                    const Bar& stirrup = bar(static_cast<int>(s));
                    Memory fresh;
                    ColumnResult c = calculateCandidate(tried, {stirrup.diameter, stirrup.mass},
                                                        severalCases ? fresh : memory, state);
                    // A solution carries its forces by strain compatibility, every
                    // case of them, whatever the method found.
                    if (c.passedSearch
                        && !carriesEveryCase(tried, state,
                                             severalCases ? input.cases
                                                          : std::vector<LoadCase>{{{}, tried.Nd, tried.Md}}))
                        c.passedSearch = false;
                    ++r.candidates;
                    if (input.progress && r.candidates % kProgressEvery == 0
                        && !input.progress(static_cast<double>(r.candidates), candidates)) {
                        r.cancelled = true;
                        r.found.clear();
                        return r;
                    }
                    if (c.dLinhaText)
                        r.dLinhaText = c.dLinhaText;
                    if (c.failure) {
                        // The same data would fail every candidate: the search stops.
                        r.failure = c.failure;
                        return r;
                    }
                    if (c.passedSearch)
                        found.push_back({state.PesoLong, nb, static_cast<double>(column.barsOnDepthFace),
                                         static_cast<int>(s), state.DiamEstribo, state.dLinha, state.LambdaC1});
                    r.last = std::move(c);
                }
            }
        }
    } catch (const CalcError& e) {
        r.failure = e.what();
        return r;
    }
    r.solutions = found;
    std::stable_sort(r.solutions.begin(), r.solutions.end(),
                     [](const Solution& a, const Solution& b) { return a.weight < b.weight; });
    return r;
}

SearchResult search(const SearchInput& input, Memory& memory)
{
    MethodState state;
    return search(input, memory, state);
}

} // namespace pilarix::engine
