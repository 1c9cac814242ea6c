#pragma once
// Stirrups and hooks (NBR 6118, 18.4.3).
//
//   stirrupRules(φl, smaller side, grade)   the thinnest stirrup allowed (5 mm and φl/4,
//       taken from the catalogue), its largest spacing (20 cm, the smaller side, 24 φl
//       for CA-25, 12 φl for CA-50), and, for stirrups of the bars' own steel, the
//       spacing that each thinner stirrup allows: 90000 φt²/(φl fyk), φ in mm, fyk in
//       MPa, floored to whole cm and never above the normal spacing
//   leastSteelPerMetre(rules)               the stirrup with the least steel per metre
//       among the allowed one and the thinner same-steel ones (a tie goes to the thinner)
//   stirrupQuestion(rules)                  "Escolha dos estribos" for these rules
//   stirrupFromAnswer(rules, option)        the catalogue index the option stands for
//   hookAllowances(φt, hook)                the length of the two hooks of a stirrup and
//                                           of a supplementary stirrup (always 45°)
//   stirrupText(φt, spacing)                "φ5 c/15"

#include "engine/materials.h"
#include "engine/options.h"
#include "engine/questions.h"

#include <array>
#include <string>

namespace pilarix::engine {

struct StirrupRules {
    double minimumDiameter = 0;  // cm
    int minimumIndex = 0;        // catalogue index of the thinnest allowed stirrup
    double spacing = 0;          // cm
    std::array<double, 4> sameSteelSpacing{}; // [k] for catalogue stirrup k = 1 to 3, cm
};

// Under ABNT NBR 6118:2014 CA-60 takes 12 φl as CA-50 (18.4.3).
StirrupRules stirrupRules(double barDiameter, double smallerSide, SteelGrade grade, RuleSet rules = RuleSet::Nbr2001);

int leastSteelPerMetre(const StirrupRules& rules);

StirrupQuestion stirrupQuestion(const StirrupRules& rules);

int stirrupFromAnswer(const StirrupRules& rules, int option);

struct HookAllowances {
    double stirrup = 0; // both hooks of a stirrup, cm
    double tie = 0;     // both hooks of a supplementary stirrup, cm
};

HookAllowances hookAllowances(double stirrupDiameter, Hook hook);

std::string stirrupText(double diameter, double spacing);

// The pre-defined stirrups of the "Estribos" frame: their masses are the program's
// own rounded figures and differ from the catalogue's on purpose.
struct PredefinedStirrup {
    double diameter = 0, mass = 0;
    int index = 0;
};
PredefinedStirrup predefinedStirrup(int index); // 1 to 4

} // namespace pilarix::engine
