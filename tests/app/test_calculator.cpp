// The calculator and the record: the verdict a calculation earns, what it keeps of
// several cases and of a refusal by the 2014 rules, what the search is given, and
// which row of the search's list the record says is on show.

#include "app/calculation_record.h"
#include "app/calculator.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

engine::ColumnInput defaultColumn() // 20 x 50 cm, 2 x 4 bars, C20, CA-50A, d' 4 cm
{
    engine::ColumnInput in;
    in.dLinha.typed = 4;
    in.Nd = 40000;   // kgf (400 kN)
    in.Md = 1000000; // kgf·cm (100 kN·m)
    return in;
}

app::Project projectOf(std::vector<engine::Case2014> cases, app::RuleSet rules = app::RuleSet::Nbr2001)
{
    app::Project p;
    p.rules = rules;
    p.column = defaultColumn();
    p.column.Nd = cases.front().Nd;
    p.column.Md = cases.front().MdTop;
    p.cases = std::move(cases);
    return p;
}

} // namespace

TEST(Calculation, EarnsOkOnlyWhereEveryRuleHolds)
{
    struct Row {
        const char* name;
        std::function<void(app::Calculation&, engine::MethodState&)> spoil;
        bool ok;
    };
    const std::vector<Row> rows{
        {"everything holds", [](app::Calculation&, engine::MethodState&) {}, true},
        {"a check of the method failed", [](app::Calculation&, engine::MethodState& s) { s.FlagErro = engine::ErrorFlag::Failed; }, false},
        {"a wall, not a column", [](app::Calculation&, engine::MethodState& s) { s.FlagErro = engine::ErrorFlag::Wall; }, false},
        {"the detailed section does not carry a case", [](app::Calculation& c, engine::MethodState&) { c.result->carried = false; }, false},
        {"the final arrangement breaks a rule", [](app::Calculation& c, engine::MethodState&) { c.result->arrangementFailures = 1; }, false},
        {"a rule of 2014 failed",
         [](app::Calculation& c, engine::MethodState&) {
             c.result2014.emplace();
             c.result2014->failures.push_back(engine::Check{});
         },
         false},
        {"nothing was designed", [](app::Calculation& c, engine::MethodState&) { c.result.reset(); }, false},
    };
    for (const auto& row : rows) {
        app::Calculation c;
        c.result.emplace();
        engine::MethodState state;
        state.FlagErro = engine::ErrorFlag::None;
        row.spoil(c, state);
        EXPECT_EQ(c.earnsOk(state), row.ok) << row.name;
    }
}

TEST(Calculator, SeveralCasesDetailTheOneNeedingMostSteelAndCheckThemAll)
{
    app::Calculator calc;
    engine::FixedAnswers answers;
    const auto c = calc.calculate(projectOf({{"topo", 40000, 1000000}, {"vento", 60000, 2000000}}), answers);
    ASSERT_TRUE(c.result && c.result->detailed);
    ASSERT_EQ(c.cases.size(), 2u);
    EXPECT_FALSE(c.cases[0].governing);
    EXPECT_TRUE(c.cases[1].governing) << "vento needs more steel";
    EXPECT_GT(c.cases[1].asNec, c.cases[0].asNec);
    ASSERT_TRUE(c.verification);
    for (const auto& k : c.cases)
        EXPECT_TRUE(k.utilisation > 0 && k.utilisation <= 1) << k.name << " " << k.utilisation;
}

TEST(Calculator, WhatEachRuleSetKeeps)
{
    struct Row {
        const char* name;
        app::Project project;
        bool designed, verified, result2014, refused;
    };
    app::Project narrow = projectOf({{"1", 40000, 1000000}}, app::RuleSet::Nbr2014);
    narrow.column.base = 12; // below 14 cm and 360 cm²: no γn applies, the column is refused
    narrow.column.depth = 12;
    const std::vector<Row> rows{
        {"one case by 2001", projectOf({{"1", 40000, 1000000}}), true, true, false, false},
        {"one case by 2014", projectOf({{"1", 40000, 1000000}}, app::RuleSet::Nbr2014), true, true, true, false},
        {"one case by 2023", projectOf({{"1", 40000, 1000000}}, app::RuleSet::Nbr2023), true, true, true, false},
        {"a section 2014 refuses", narrow, false, false, true, true},
    };
    for (const auto& row : rows) {
        app::Calculator calc;
        engine::FixedAnswers answers;
        const auto c = calc.calculate(row.project, answers);
        EXPECT_EQ(c.result.has_value(), row.designed) << row.name;
        EXPECT_EQ(c.verification.has_value(), row.verified) << row.name;
        EXPECT_EQ(c.result2014.has_value(), row.result2014) << row.name;
        EXPECT_EQ(c.result2014 && c.result2014->refusal.has_value(), row.refused) << row.name;
    }
}

TEST(Calculator, TheSearchGetsEveryCaseUnderItsRuleSet)
{
    const auto two = std::vector<engine::Case2014>{{"a", 40000, 1000000}, {"b", 50000, 500000}};
    const auto in2001 = app::searchInputOf(projectOf(two), 3, 6);
    EXPECT_EQ(in2001.maxBarsOnWidthFace, 3);
    EXPECT_EQ(in2001.maxBarsOnDepthFace, 6);
    ASSERT_EQ(in2001.cases.size(), 2u);
    EXPECT_EQ(in2001.cases[1].Md, 500000);
    EXPECT_TRUE(in2001.cases2014.empty());

    const auto one2001 = app::searchInputOf(projectOf({two.front()}), 3, 6);
    EXPECT_TRUE(one2001.cases.empty()) << "one case is the column's own forces";

    const auto in2023 = app::searchInputOf(projectOf(two, app::RuleSet::Nbr2023), 3, 6);
    EXPECT_EQ(in2023.column.rules, engine::RuleSet::Nbr2014);
    EXPECT_EQ(in2023.concrete2014, engine::ConcreteRules::Nbr2023);
    EXPECT_EQ(in2023.cases2014.size(), 2u);
    EXPECT_TRUE(in2023.cases.empty());
}

TEST(CalculationRecord, TheSolutionOnShowIsTheListedArrangementOnly)
{
    struct Row {
        const char* name;
        std::function<void(app::CalculationRecord&)> change;
        bool onShow;
    };
    const std::vector<Row> rows{
        {"as the search put it in", [](app::CalculationRecord&) {}, true},
        {"a bar added on the width faces", [](app::CalculationRecord& r) { r.project.column.barsOnWidthFace = 4; }, false},
        {"another stirrup", [](app::CalculationRecord& r) { r.project.column.predefinedStirrup = 2; }, false},
        {"the most economic stirrup", [](app::CalculationRecord& r) { r.project.column.stirrupMode = engine::StirrupMode::Economic; }, false},
        {"d' found from the cover", [](app::CalculationRecord& r) { r.project.column.dLinha.automatic = true; }, false},
        {"d' typed otherwise", [](app::CalculationRecord& r) { r.project.column.dLinha.typed = 4.5; }, false},
        {"no row selected", [](app::CalculationRecord& r) { r.solutionShown = 0; }, false},
        {"a row past the list", [](app::CalculationRecord& r) { r.solutionShown = 3; }, false},
    };
    for (const auto& row : rows) {
        app::CalculationRecord r;
        r.solutions = {{10, 2, 3, 1, 0.5, 4.25, 0}, {12, 3, 3, 1, 0.5, 4.25, 0}};
        r.solutionShown = 2;
        r.project.column.barsOnWidthFace = 3;
        r.project.column.barsOnDepthFace = 3;
        r.project.column.stirrupMode = engine::StirrupMode::Predefined;
        r.project.column.predefinedStirrup = 1;
        r.project.column.dLinha.typed = 4.25;
        row.change(r);
        EXPECT_EQ(r.solutionOnShow() == &r.solutions[1], row.onShow) << row.name;
    }
}
