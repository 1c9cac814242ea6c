#pragma once
// The typed project: what the engineer gave a calculation, as numbers and choices —
// the rule set, the column with its materials, bars, cover and options, every load
// case in the program's units (kgf, kgf·cm), the slenderness inputs of 2014 and the
// units the results are shown in. The window's reading of its boxes makes one
// (Program::projetoDoCalculo); the calculator runs on it; the record of the
// calculation keeps it.

#include "app/units.h"
#include "engine/column.h"
#include "engine/column2014.h"
#include "engine/load_cases.h"

#include <string>
#include <vector>

namespace pilarix::app {

enum class RuleSet { Nbr2001, Nbr2014, Nbr2023 };

// The units the engineer typed the forces in and reads the results in, as the
// window's lists spell them ("KN", "KN.cm", "MPa").
struct DisplayUnits {
    std::string force, moment, strength;
    ShownUnit shownForce() const { return shownForceUnit(force); }
    ShownUnit shownMoment() const { return shownMomentUnit(moment); }
};

struct Project {
    RuleSet rules = RuleSet::Nbr2001;
    engine::ColumnInput column; // Nd and Md are the first case's
    // Every load case, the first the column's own Nd and Md; under 2001 a case is its
    // name, Nd and the moment of the top.
    std::vector<engine::Case2014> cases;
    engine::Slenderness2014Input slenderness; // under 2014 and 2023
    DisplayUnits units;

    bool rules2014() const { return rules != RuleSet::Nbr2001; }
    // The cases as the 2001 rules take them: a force and one moment.
    std::vector<engine::LoadCase> loadCases() const;
};

} // namespace pilarix::app
