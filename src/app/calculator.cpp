#include "app/calculator.h"

#include <algorithm>
#include <utility>

namespace pilarix::app {

std::vector<engine::LoadCase> Project::loadCases() const
{
    std::vector<engine::LoadCase> out;
    out.reserve(cases.size());
    for (const auto& c : cases)
        out.push_back({c.name, c.Nd, c.MdTop});
    return out;
}

bool Calculation::earnsOk(const engine::MethodState& state) const
{
    const bool rules2014 = !result2014 || result2014->failures.empty();
    return result && state.FlagErro == engine::ErrorFlag::None && result->carried && result->arrangementFailures == 0
           && rules2014;
}

namespace {

engine::ConcreteRules concreteRules(RuleSet rules)
{
    return rules == RuleSet::Nbr2023 ? engine::ConcreteRules::Nbr2023 : engine::ConcreteRules::Nbr2014;
}

// ABNT NBR 6118:2014: both directions of every case; the larger area is detailed, and
// the detailed section is checked in the direction of h under the governing case.
void calculate2014(const Project& project, engine::Questions& questions, Calculator& calc, Calculation& out)
{
    engine::Column2014Result r = engine::calculate2014(project.column, project.cases, project.slenderness, questions,
                                                       calc.memory, calc.state, concreteRules(project.rules));
    if (r.cases.size() > 1)
        for (const auto& c : r.cases) {
            // The table of cases shows the direction that needs more steel.
            const bool inB = c.b.asNec > c.h.asNec;
            out.cases.push_back({c.loadCase.name, c.loadCase.Nd, c.loadCase.MdTop, r.detail.design.zone,
                                 r.detail.design.betaX, inB ? c.b.asNec : c.h.asNec,
                                 std::max(c.h.utilisation, c.b.utilisation), c.governing});
        }
    if (r.refusal) {
        // Refused by a rule of 2014 (γn, λ > 90): nothing was designed.
        out.result2014 = std::move(r);
        return;
    }
    if (r.detail.detailed && !r.cases.empty()) {
        const auto& g = r.cases[static_cast<std::size_t>(r.governingCase)];
        engine::ColumnInput governing = project.column;
        governing.Nd = g.loadCase.Nd;
        governing.Md = g.h.slenderness.totalMoment / r.gammaN;
        if (const auto section = engine::detailedSection(governing, r.detail))
            out.verification = engine::verify(*section, g.nSd, g.h.slenderness.totalMoment);
    }
    out.result = r.detail;
    out.result2014 = std::move(r);
}

// Several cases by 2001: each designed from the start, the one needing the most steel
// detailed, every case checked on the detailed section.
void calculateCases(const Project& project, engine::Questions& questions, Calculator& calc, Calculation& out)
{
    engine::CasesResult r = engine::calculateCases(project.column, project.loadCases(), questions, calc.state);
    for (const auto& c : r.cases)
        out.cases.push_back({c.loadCase.name, c.loadCase.Nd, c.loadCase.Md, c.design.design.zone,
                             c.design.design.betaX, c.design.design.asNec, c.utilisation, c.governing});
    out.verification = r.verification;
    // A case the detailed section does not carry fails the calculation, whatever the
    // checks of the governing case said.
    if (!r.failures.empty())
        calc.state.FlagErro = engine::ErrorFlag::Failed;
    out.result = std::move(r.detail);
}

} // namespace

Calculation Calculator::calculate(const Project& project, engine::Questions& questions)
{
    Calculation out;
    if (project.rules2014()) {
        calculate2014(project, questions, *this, out);
        return out;
    }
    if (project.cases.size() > 1) {
        calculateCases(project, questions, *this, out);
        return out;
    }
    out.result = engine::calculate(project.column, questions, memory, state);
    const engine::ColumnResult& r = *out.result;
    if (!r.failure && r.designed && r.detailed)
        out.verification = engine::verify(project.column, r);
    return out;
}

engine::SearchResult Calculator::search(const engine::SearchInput& input) { return engine::search(input, memory, state); }

void Calculator::startFrom(const SolutionRow& solution)
{
    state.Lambda = solution.LambdaC1;
    memory.lambda = solution.LambdaC1;
}

engine::SearchInput searchInputOf(const Project& project, double maxBarsOnWidthFace, double maxBarsOnDepthFace)
{
    engine::SearchInput in;
    in.column = project.column;
    in.maxBarsOnWidthFace = maxBarsOnWidthFace;
    in.maxBarsOnDepthFace = maxBarsOnDepthFace;
    if (project.rules2014()) {
        in.column.rules = engine::RuleSet::Nbr2014;
        in.cases2014 = project.cases;
        in.slenderness2014 = project.slenderness;
        in.concrete2014 = concreteRules(project.rules);
    } else if (project.cases.size() > 1) {
        in.cases = project.loadCases();
    }
    return in;
}

} // namespace pilarix::app
