// A column under several load cases: the governing one, the verification of them all,
// and cases that do not reach one another.

#include "engine/load_cases.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace pilarix::engine;

namespace {
ColumnInput column()
{
    ColumnInput in;
    in.dLinha.typed = 4.125;
    return in;
}

const std::vector<LoadCase> kCases{{"topo", 40000, 1000000}, {"base", 60000, 400000}, {"vento", 20000, 1500000}};
} // namespace

TEST(EngineLoadCases, TheCaseNeedingMostSteelIsDetailedAndEveryCaseIsVerified)
{
    FixedAnswers answers;
    const CasesResult r = calculateCases(column(), kCases, answers);
    ASSERT_EQ(r.cases.size(), 3u);
    EXPECT_EQ(r.governing, 2);
    for (const auto& c : r.cases) {
        EXPECT_EQ(c.governing, c.loadCase.name == "vento");
        EXPECT_LE(c.design.design.asNec, r.cases[2].design.design.asNec);
        EXPECT_GT(c.utilisation, 0);
        EXPECT_LE(c.utilisation, 1);
    }
    EXPECT_TRUE(r.ok());
    // The detailed column is the governing case's own calculation.
    Memory fresh;
    ColumnInput alone = column();
    alone.Nd = kCases[2].Nd;
    alone.Md = kCases[2].Md;
    EXPECT_EQ(r.detail.design.asNec, calculate(alone, answers, fresh).design.asNec);
}

TEST(EngineLoadCases, CasesDoNotReachOneAnotherWhateverTheirOrder)
{
    FixedAnswers answers;
    const CasesResult a = calculateCases(column(), kCases, answers);
    std::vector<LoadCase> reversed(kCases.rbegin(), kCases.rend());
    const CasesResult b = calculateCases(column(), reversed, answers);
    for (std::size_t i = 0; i < kCases.size(); ++i) {
        const auto& x = a.cases[i];
        const auto& y = b.cases[kCases.size() - 1 - i];
        EXPECT_EQ(x.design.design.asNec, y.design.design.asNec) << x.loadCase.name;
        EXPECT_EQ(x.design.design.zone, y.design.design.zone) << x.loadCase.name;
        EXPECT_EQ(x.utilisation, y.utilisation) << x.loadCase.name;
    }
    EXPECT_EQ(b.cases[static_cast<std::size_t>(b.governing)].loadCase.name, "vento");
}

TEST(EngineLoadCases, ACaseTheSectionDoesNotCarryFailsTheColumnNamingIt)
{
    // 10 mm bars fixed by the engineer: 6.4 cm² carry "base" but neither "topo" nor
    // "vento"; each case not carried is its own check, in the order of the cases.
    ColumnInput in = column();
    in.fixedBarIndex = 4;
    FixedAnswers answers;
    const CasesResult r = calculateCases(in, kCases, answers);
    ASSERT_EQ(r.failures.size(), 2u);
    EXPECT_EQ(r.failures[0].id, CheckId::CaseNotCarried);
    EXPECT_NE(r.failures[0].text.find("\"topo\""), std::string::npos) << r.failures[0].text;
    EXPECT_NE(r.failures[1].text.find("\"vento\""), std::string::npos) << r.failures[1].text;
    EXPECT_LE(r.cases[1].utilisation, 1);
    EXPECT_FALSE(r.ok());
}
