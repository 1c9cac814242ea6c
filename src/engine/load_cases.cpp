#include "engine/load_cases.h"

#include "base/calc_error.h"

#include <cmath>
#include <limits>

namespace pilarix::engine {

namespace {
ColumnInput withForces(ColumnInput in, const LoadCase& c)
{
    in.Nd = c.Nd;
    in.Md = c.Md;
    return in;
}
} // namespace

std::vector<double> caseUtilisations(const ReinforcedSection& section, double gammaN,
                                     const std::vector<LoadCase>& cases)
{
    std::vector<double> u;
    u.reserve(cases.size());
    for (const auto& c : cases) {
        try {
            u.push_back(utilisation(section, c.Nd * gammaN, c.Md * gammaN).ratio);
        } catch (const CalcError&) {
            u.push_back(std::numeric_limits<double>::quiet_NaN());
        }
    }
    return u;
}

namespace {
// Every case designed from a fresh start (no μ0 or λ of one case reaches another) at
// the d' of `column`; the index of the one needing the most steel (the first of
// equal ones).
int designCases(const ColumnInput& column, const std::vector<LoadCase>& cases, std::vector<CaseResult>& out)
{
    out.clear();
    int governing = 0;
    double most = -1;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        Memory fresh;
        CaseResult c{cases[i], design(withForces(column, cases[i]), fresh), std::nan(""), false};
        if (c.design.designed && !c.design.failure && c.design.design.asNec > most) {
            most = c.design.design.asNec;
            governing = static_cast<int>(i);
        }
        out.push_back(std::move(c));
    }
    return governing;
}

// The design of the governing case may move d' (the cover correction); the cases are
// then compared again at that d', and where another one needs more steel it is
// detailed instead. Two rounds settle it in practice; three are allowed.
constexpr int kGoverningRounds = 3;
} // namespace

CasesResult calculateCases(const ColumnInput& column, const std::vector<LoadCase>& cases, Questions& questions,
                           MethodState& state)
{
    CasesResult r;
    if (cases.empty())
        return r;
    r.governing = designCases(column, cases, r.cases);
    for (int round = 1; round <= kGoverningRounds; ++round) {
        Memory fresh;
        r.detail = calculate(withForces(column, cases[static_cast<std::size_t>(r.governing)]), questions, fresh, state);
        if (!r.detail.designed || r.detail.failure)
            break;
        // d' as the cases were designed with: nothing to compare again.
        if (!column.dLinha.automatic && r.detail.design.dLinha == column.dLinha.typed)
            break;
        ColumnInput settled = column;
        settled.dLinha = {false, r.detail.design.dLinha};
        const int again = designCases(settled, cases, r.cases);
        if (again == r.governing || round == kGoverningRounds)
            break;
        r.governing = again;
    }
    r.cases[static_cast<std::size_t>(r.governing)].governing = true;

    const ColumnInput governing = withForces(column, cases[static_cast<std::size_t>(r.governing)]);
    r.verification = verify(governing, r.detail);
    const auto section = detailedSection(governing, r.detail);
    if (!section)
        return r;
    const auto u = caseUtilisations(*section, r.detail.design.gammaN, cases);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        r.cases[i].utilisation = u[i];
        if (!(u[i] <= 1)) {
            const double g = r.detail.design.gammaN;
            r.failures.push_back(checks::caseNotCarried(cases[i].name, cases[i].Nd * g, cases[i].Md * g, u[i]));
            // The governing case's own calculation has told it already, with the
            // area the section needs.
            if (static_cast<int>(i) != r.governing)
                questions.tell(r.failures.back());
        }
    }
    return r;
}

CasesResult calculateCases(const ColumnInput& column, const std::vector<LoadCase>& cases, Questions& questions)
{
    MethodState state;
    return calculateCases(column, cases, questions, state);
}

} // namespace pilarix::engine
