#include "engine/search.h"

#include "engine/catalogue.h"
#include "engine/class_law_design.h"
#include "engine/biaxial_section.h"
#include "engine/interaction.h"
#include "engine/oblique_check.h"
#include "engine/rules2014.h"

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
// Under 2014: both directions of every case, with γn, the minimum moment and the
// second order; they do not depend on the arrangement.
struct Directions2014 {
    double nSd = 0, mH = 0, mB = 0, nd = 0;
    CaseResult2014 both; // the case with both directions' slenderness, for the oblique check
};

std::vector<Directions2014> directions2014(const SearchInput& input, double gammaN)
{
    std::vector<Directions2014> out;
    for (const Case2014& c : input.cases2014) {
        const ColumnInput& column = input.column;
        ColumnSlendernessInput s;
        const double leH = effectiveLength(input.slenderness2014.effectiveLengthH, column.length);
        const double leB = effectiveLength(input.slenderness2014.effectiveLengthB, column.length);
        if (c.Nd > 0) {
            s.base = column.base, s.depth = column.depth, s.Nd = c.Nd, s.fck = column.fck, s.gammaC = column.gammaC;
            s.alongDepth = {column.depth, leH, {c.MdTop, c.MdBase}};
            s.alongBase = {column.base, leB, {c.MyTop, c.MyBase}};
            s.method = input.slenderness2014.method;
            const ColumnSlenderness cs = columnSlenderness(s);
            if (cs.refusal)
                throw CalcError(cs.refusal->text);
            CaseResult2014 both;
            both.loadCase = c;
            both.nSd = cs.Nd;
            both.h.slenderness = cs.alongDepth;
            both.b.slenderness = cs.alongBase;
            out.push_back({cs.Nd, cs.alongDepth.totalMoment, cs.alongBase.totalMoment, c.Nd, both});
        } else {
            CaseResult2014 both;
            both.loadCase = c;
            both.nSd = c.Nd * gammaN;
            both.h.slenderness.MA = std::max(std::fabs(c.MdTop), std::fabs(c.MdBase)) * gammaN;
            both.b.slenderness.MA = std::max(std::fabs(c.MyTop), std::fabs(c.MyBase)) * gammaN;
            out.push_back({both.nSd, both.h.slenderness.MA, both.b.slenderness.MA, c.Nd, both});
        }
    }
    return out;
}

// The largest area of every case and direction for this arrangement (d' from the cover,
// as the candidate's pass starts it).
double area2014(ColumnInput column, const std::vector<Directions2014>& cases, double gammaN, ConcreteRules rules)
{
    double most = 0;
    column.gammaN = gammaN;
    for (const Directions2014& c : cases) {
        for (int turn = 0; turn < 2; ++turn) {
            ColumnInput in = column;
            if (turn == 1) {
                std::swap(in.base, in.depth);
                const double widthFace = in.barsOnWidthFace;
                in.barsOnWidthFace = in.barsOnDepthFace;
                in.barsOnDepthFace = static_cast<int>(widthFace);
            }
            in.Nd = c.nd;
            in.Md = (turn == 0 ? c.mH : c.mB) / gammaN;
            if (in.fck > 500) {
                // Above C50, the class's own law (class_law_design.h), d' at its start.
                const auto a = requiredAreaByClassLaw(in, 3.0, c.nSd, turn == 0 ? c.mH : c.mB, 0, rules);
                if (!a)
                    throw CalcError(checks::beyondAnyArrangement(c.nSd, turn == 0 ? c.mH : c.mB).text);
                most = std::max(most, *a);
                continue;
            }
            Memory fresh;
            const ColumnResult d = design(in, fresh);
            if (d.failure)
                throw CalcError(*d.failure);
            if (d.designed)
                most = std::max(most, d.design.asNec);
        }
    }
    return most;
}

// The candidate's section carries every case in both directions.
bool carries2014(const ColumnInput& column, const MethodState& s, const std::vector<Directions2014>& cases,
                 ConcreteRules rules)
{
    try {
        const Concrete concrete = designConcrete(column.fck, column.gammaC);
        const Steel steel = designSteel(column.steel, column.gammaS, column.Es);
        const ReinforcedSection h = rectangularColumn(column.base, column.depth, s.dLinha, column.barsOnWidthFace,
                                                      column.barsOnDepthFace, s.AsBarra, concrete, steel);
        const ReinforcedSection b = rectangularColumn(column.depth, column.base, s.dLinha, column.barsOnDepthFace,
                                                      static_cast<int>(column.barsOnWidthFace), s.AsBarra, concrete,
                                                      steel);
        // Each direction alone: carried where its moment is within M_Rd at the case's N
        // (the same answer as the utilisation's, at the cost of one search).
        std::vector<std::pair<double, double>> capacities;
        for (const Directions2014& c : cases) {
            const auto x = momentCapacity(h, c.nSd), y = momentCapacity(b, c.nSd);
            if (!x || !y || c.mH > x->mRd || c.mB > y->mRd)
                return false;
            capacities.emplace_back(x->mRd, y->mRd);
        }
        // Both directions together, as the verdict of the arrangement put in will ask.
        // Up to C50 under 2014 the capacities about each axis at N are those of the
        // uniaxial section (the law is the same), which answers most arrangements at once.
        std::vector<CaseResult2014> both;
        for (const Directions2014& c : cases)
            both.push_back(c.both);
        if (column.fck <= 500 && rules == ConcreteRules::Nbr2014 && surelyCarried(both, *column.gammaN, capacities))
            return true;
        const BiaxialSection section = biaxialColumn(column.base, column.depth, s.dLinha, column.barsOnWidthFace,
                                                     column.barsOnDepthFace, s.AsBarra, concrete, steel, rules);
        return checkOblique(section, both, *column.gammaN, 0, false).failures.empty();
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
    const bool rules2014 = column.rules == RuleSet::Nbr2014;
    std::vector<Directions2014> cases2014;
    if (rules2014) {
        const GammaN2014 g = gammaN2014(column.base, column.depth);
        if (g.refusal) {
            r.failure = g.refusal->text;
            return r;
        }
        column.gammaN = g.gammaN;
        try {
            cases2014 = directions2014(input, g.gammaN);
        } catch (const CalcError& e) {
            r.failure = e.what();
            return r;
        }
    }
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
                if (rules2014) {
                    // The governing case's direction of h is the candidate's own
                    // pass; the area is the largest of them all.
                    tried.requiredAreaAtLeast = area2014(tried, cases2014, *column.gammaN, input.concrete2014);
                    const auto g = std::max_element(cases2014.begin(), cases2014.end(),
                                                    [](const auto& a, const auto& b) { return a.mH < b.mH; });
                    if (g != cases2014.end()) {
                        tried.Nd = g->nd;
                        tried.Md = g->mH / *column.gammaN;
                    }
                } else if (severalCases) {
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
                                                        severalCases || rules2014 ? fresh : memory, state);
                    // A solution carries its forces by strain compatibility, every
                    // case of them, whatever the method found.
                    if (c.passedSearch && rules2014 && !carries2014(tried, state, cases2014, input.concrete2014))
                        c.passedSearch = false;
                    else if (c.passedSearch && !rules2014
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
