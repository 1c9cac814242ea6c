#pragma once
// The calculator: what runs a calculation of a project (app/project.h) and what the
// method carries from one calculation to the next. A calculation is what the engine found for it, every case and both directions
// under 2014 included, with the check of the detailed section.
//
//   Calculator::calculate(project, questions)   "&Calcula" after the window was read
//   Calculator::search(input)                   "Calcula melhor solução"
//   Calculator::startFrom(solution)             a row of the search's list put in
//   searchInputOf(project, widthBars, depthBars) what the search tries, for a project
//
// The questions of the calculation (the cover, the stirrup choice) and its messages
// go through engine::Questions: the window asks them, a batch answers by policy.
// No toolkit and no window here.

#include "app/calculation_record.h"
#include "app/project.h"
#include "engine/column.h"
#include "engine/column2014.h"
#include "engine/load_cases.h"
#include "engine/memory.h"
#include "engine/method_state.h"
#include "engine/questions.h"
#include "engine/search.h"
#include "engine/verification.h"

#include <optional>
#include <vector>

namespace pilarix::app {

// What one calculation found, before any front shows it.
struct Calculation {
    std::optional<engine::ColumnResult> result;     // the detailed case (the governing one)
    std::optional<engine::Verification> verification;
    std::optional<engine::Column2014Result> result2014;
    std::vector<CaseOutcome> cases;                 // two or more; empty with one
    // "Ok" as the engine sees it: the method's checks, the detailed section under
    // every case, the final arrangement as built and, under 2014, its rules. The
    // window adds its own reading (an input refused, a calculation stopped).
    bool earnsOk(const engine::MethodState& state) const;
};

class Calculator {
public:
    // What the method carries from one calculation to the next, and its variables as
    // the last calculation left them (the window's result boxes show them).
    engine::Memory memory;
    engine::MethodState state;

    Calculation calculate(const Project& project, engine::Questions& questions);
    engine::SearchResult search(const engine::SearchInput& input);
    // The next calculation starts where the listed arrangement's last pass did.
    void startFrom(const SolutionRow& solution);
};

// What the search tries for a project: every arrangement up to the bars that fit on
// each face, under its rule set and with all its cases.
engine::SearchInput searchInputOf(const Project& project, double maxBarsOnWidthFace, double maxBarsOnDepthFace);

} // namespace pilarix::app
