#include "engine/column2014.h"

#include "engine/biaxial.h"
#include "engine/class_law_design.h"
#include "engine/clauses2014.h"
#include "engine/interaction.h"
#include "engine/rules2014.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <cmath>
#include <utility>

namespace pilarix::engine {

double effectiveLength(double given, double columnLength) { return given > 0 ? given : columnLength; }

namespace {

// The same column turned a quarter: b and h change places, and so do the faces.
ColumnInput turned(ColumnInput in)
{
    std::swap(in.base, in.depth);
    const double widthFace = in.barsOnWidthFace;
    in.barsOnWidthFace = in.barsOnDepthFace;
    in.barsOnDepthFace = static_cast<int>(widthFace);
    return in;
}

// Both directions of one case. A column in tension has no minimum moment and no
// second order: each direction keeps its larger end moment.
ColumnSlenderness slendernessOf(const ColumnInput& column, const Case2014& c, const Slenderness2014Input& s,
                                double gammaN)
{
    const double leH = effectiveLength(s.effectiveLengthH, column.length);
    const double leB = effectiveLength(s.effectiveLengthB, column.length);
    if (c.Nd > 0) {
        ColumnSlendernessInput in;
        in.base = column.base;
        in.depth = column.depth;
        in.Nd = c.Nd;
        in.fck = column.fck;
        in.gammaC = column.gammaC;
        in.alongDepth = {column.depth, leH, {c.MdTop, c.MdBase}};
        in.alongBase = {column.base, leB, {c.MyTop, c.MyBase}};
        in.method = s.method;
        return columnSlenderness(in);
    }
    ColumnSlenderness r;
    r.gammaN = gammaN;
    r.Nd = c.Nd * gammaN;
    r.nu = r.Nd / (column.base * column.depth * column.fck / column.gammaC);
    auto plain = [&](double side, double le, double top, double bottom) {
        DirectionSlenderness d;
        d.side = side;
        d.effectiveLength = le;
        d.MA = std::max(std::fabs(top), std::fabs(bottom)) * gammaN;
        d.firstOrderMoment = d.totalMoment = d.MA;
        return d;
    };
    r.alongDepth = plain(column.depth, leH, c.MdTop, c.MdBase);
    r.alongBase = plain(column.base, leB, c.MyTop, c.MyBase);
    return r;
}

// Above C50 (fck in kgf/cm²): the class's own concrete law, by strain compatibility.
constexpr double kZonesMethodUpTo = 500;

// The design of one direction by solicitation zones at d' (typed, or found from the
// cover), the forces with γn as 2014 gives it; above C50 by strain compatibility
// with the law of the class (the same section turned for the direction of b: Mx).
double designedArea(ColumnInput in, double gammaN, double moment, ConcreteRules rules)
{
    if (in.fck > kZonesMethodUpTo) {
        const double dLinha = in.dLinha.automatic || in.dLinha.typed <= 0 ? 3.0 : in.dLinha.typed;
        const auto area = requiredAreaByClassLaw(in, dLinha, in.Nd * gammaN, moment, 0, rules);
        if (!area)
            throw CalcError(checks::beyondAnyArrangement(in.Nd * gammaN, moment).text);
        return *area;
    }
    in.gammaN = gammaN;
    in.Md = moment / gammaN;
    Memory fresh;
    const ColumnResult d = design(in, fresh);
    if (d.failure)
        throw CalcError(*d.failure);
    return d.designed ? d.design.asNec : 0;
}

// Every case in both directions at the d' of `column`; the index of the case and the
// direction needing the most steel (the first of equal ones, h before b).
void designCases(const ColumnInput& column, Column2014Result& r, ConcreteRules rules)
{
    double most = -1;
    for (std::size_t i = 0; i < r.cases.size(); ++i) {
        CaseResult2014& c = r.cases[i];
        ColumnInput in = column;
        in.Nd = c.loadCase.Nd;
        c.h.asNec = designedArea(in, r.gammaN, c.h.slenderness.totalMoment, rules);
        c.b.asNec = designedArea(turned(in), r.gammaN, c.b.slenderness.totalMoment, rules);
        for (const auto& [area, direction] : {std::pair{c.h.asNec, 'h'}, std::pair{c.b.asNec, 'b'}})
            if (area > most) {
                most = area;
                r.governingCase = static_cast<int>(i);
                r.governingDirection = direction;
            }
    }
    r.asNec = most;
}

// The governing case's calculation may move d' (the cover); the cases are then
// designed again at that d' and, where more steel is needed, detailed again.
constexpr int kRounds = 3;

} // namespace

Column2014Result calculate2014(const ColumnInput& given, const std::vector<Case2014>& cases,
                               const Slenderness2014Input& slenderness, Questions& questions, Memory& memory,
                               MethodState& state, ConcreteRules concrete)
{
    Column2014Result r;
    Questions2014 told(questions);
    ColumnInput column = given;
    column.rules = RuleSet::Nbr2014;

    // A rule of 2014 that does not apply to these data: told, and nothing designed.
    auto refuse = [&](const Check2014& why) {
        r.refusal = fromCheck2014(why);
        told.tell(*r.refusal);
        return r;
    };
    const GammaN2014 g = gammaN2014(column.base, column.depth);
    if (g.refusal)
        return refuse(*g.refusal);
    r.gammaN = g.gammaN;
    column.gammaN = g.gammaN;

    for (const Case2014& c : cases) {
        CaseResult2014 cr;
        cr.loadCase = c;
        const ColumnSlenderness s = slendernessOf(column, c, slenderness, r.gammaN);
        if (s.refusal)
            return refuse(*s.refusal);
        cr.nSd = s.Nd;
        cr.nu = s.nu;
        cr.h.slenderness = s.alongDepth;
        cr.b.slenderness = s.alongBase;
        r.cases.push_back(std::move(cr));
    }
    if (r.cases.empty())
        return r;

    if (column.fck > kZonesMethodUpTo) {
        r.failures.clear();
        const Check note{CheckId::Rule2014,
                         "Concreto acima de C50: a armadura de cada direção vem da compatibilidade de deformações "
                         "com o diagrama tensão-deformação da classe, não do método das zonas de solicitação.",
                         "Item 8.2.10.1 da ABNT NBR 6118:2014", true};
        told.tell(note);
    }
    try {
        designCases(column, r, concrete);
    } catch (const CalcError& e) {
        r.detail.failure = e.what();
        return r;
    }
    for (int round = 1; round <= kRounds; ++round) {
        const CaseResult2014& g = r.cases[static_cast<std::size_t>(r.governingCase)];
        ColumnInput in = column;
        in.Nd = g.loadCase.Nd;
        in.Md = g.h.slenderness.totalMoment / r.gammaN;
        in.requiredAreaAtLeast = r.asNec;
        Memory fresh = memory;
        r.detail = calculate(in, told, fresh, state);
        memory = fresh;
        if (!r.detail.designed || r.detail.failure || !r.detail.detailed)
            break;
        if (!column.dLinha.automatic && r.detail.design.dLinha == column.dLinha.typed)
            break;
        // d' as the detail ended with it: the areas there.
        ColumnInput settled = column;
        settled.dLinha = {false, r.detail.design.dLinha};
        const double before = r.asNec;
        try {
            designCases(settled, r, concrete);
        } catch (const CalcError& e) {
            r.detail.failure = e.what();
            return r;
        }
        if (r.asNec <= before || round == kRounds)
            break;
    }
    r.cases[static_cast<std::size_t>(r.governingCase)].governing = true;
    if (!r.detail.detailed || !r.detail.bar)
        return r;

    // Every case in both directions on the section as detailed; the governing case's
    // direction of h is the detail's own check, told already.
    try {
        const ReinforcedSection alongH =
            rectangularColumn(column.base, column.depth, r.detail.design.dLinha, column.barsOnWidthFace,
                              column.barsOnDepthFace, r.detail.bar->barArea, r.detail.design.concrete,
                              r.detail.design.steel);
        const ReinforcedSection alongB =
            rectangularColumn(column.depth, column.base, r.detail.design.dLinha, column.barsOnDepthFace,
                              static_cast<int>(column.barsOnWidthFace), r.detail.bar->barArea,
                              r.detail.design.concrete, r.detail.design.steel);
        // Above C50, and with ηc of 2023 above C40, the concrete is the class's own:
        // each direction is then checked on the section bar by bar, at its N.
        const bool ownLaw = column.fck > kZonesMethodUpTo || (concrete == ConcreteRules::Nbr2023 && column.fck > 400);
        std::optional<BiaxialSection> barByBar;
        if (ownLaw)
            barByBar = biaxialColumn(column.base, column.depth, r.detail.design.dLinha, column.barsOnWidthFace,
                                     column.barsOnDepthFace, r.detail.bar->barArea, r.detail.design.concrete,
                                     r.detail.design.steel, concrete);
        for (std::size_t i = 0; i < r.cases.size(); ++i) {
            CaseResult2014& c = r.cases[i];
            if (barByBar) {
                c.h.utilisation = utilisationAtN(*barByBar, c.nSd, c.h.slenderness.totalMoment, 0).ratio;
                c.b.utilisation = utilisationAtN(*barByBar, c.nSd, 0, c.b.slenderness.totalMoment).ratio;
            } else {
                c.h.utilisation = utilisation(alongH, c.nSd, c.h.slenderness.totalMoment).ratio;
                c.b.utilisation = utilisation(alongB, c.nSd, c.b.slenderness.totalMoment).ratio;
            }
            const bool own = static_cast<int>(i) == r.governingCase;
            struct Seen {
                const Direction2014* d;
                const char* name;
            };
            for (const Seen& x : {Seen{&c.h, "h"}, Seen{&c.b, "b"}}) {
                if (x.d->utilisation <= 1 || (own && x.d == &c.h))
                    continue;
                r.failures.push_back(checks::directionNotCarried(c.loadCase.name, x.name, c.nSd,
                                                                 x.d->slenderness.totalMoment, x.d->utilisation));
                told.tell(r.failures.back());
            }
        }
    } catch (const CalcError& e) {
        r.failures.push_back(checks::sectionNotVerified(e.what()));
        told.tell(r.failures.back());
    }

    // The bars held against buckling (18.2.4): by a corner of the stirrup, at most two
    // within 20 φt of it; by a supplementary stirrup the calculation placed; or within
    // 20 φt of a bar so tied, as a tie's hook holds its neighbours like a corner.
    {
        const double d = r.detail.design.dLinha, reach = 20 * r.detail.stirrup.diameter;
        auto unheld = [&](double faceLength, int bars, const VbArray<TieFlag, 1, 500>& flags) {
            const FaceTies2014 t = faceTies2014(faceLength, d, bars, r.detail.stirrup.diameter);
            auto tied = [&](int i) { return i >= 0 && i < bars && i < 500 && flags(i + 1) == TieFlag::Tie; };
            int n = 0;
            for (int i = 0; i < bars; ++i) {
                bool held = t.held[static_cast<std::size_t>(i)] || tied(i);
                for (int k = 1; !held && k <= 2 && k * t.axisSpacing <= reach + 1e-9; ++k)
                    held = tied(i - k) || tied(i + k);
                n += held ? 0 : 1;
            }
            return n;
        };
        const int n = unheld(column.base, static_cast<int>(column.barsOnWidthFace), state.SupH)
                      + unheld(column.depth, column.barsOnDepthFace, state.SupV);
        if (n > 0) {
            r.failures.push_back(fromCheck2014(checks2014::supplementaryStirrupsNeeded(n, reach)));
            told.tell(r.failures.back());
        }
    }

    // The nominal cover is at least the bar (7.4.7.5), a rule of 2014's own.
    if (r.detail.cover.nominal + 1e-9 < r.detail.bar->diameter) {
        r.failures.push_back(
            fromCheck2014(checks2014::coverBelowBarDiameter(r.detail.cover.nominal, r.detail.bar->diameter)));
        told.tell(r.failures.back());
    }
    // Both directions together: every case at its sections, and the envelope of the
    // minimum moments.
    if (slenderness.oblique) {
        try {
            r.oblique = checkOblique(column, r, concrete);
            for (const Check& c : r.oblique->failures) {
                r.failures.push_back(c);
                told.tell(c);
            }
        } catch (const CalcError& e) {
            r.failures.push_back(checks::sectionNotVerified(e.what()));
            told.tell(r.failures.back());
        }
    }
    for (Check& c : r.detail.checks)
        c = with2014Clause(c);
    return r;
}

} // namespace pilarix::engine
