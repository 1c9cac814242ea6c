#pragma once
// The messages of the rules of ABNT NBR 6118:2014 for columns, each with its clause
// ("Item x.y.z da ABNT NBR 6118:2014"). They are kept apart from the 2001 messages of
// checks.h, whose texts and clauses the program has always shown and which stay as
// they are; a caller that shows both lists them side by side.
//
//   Check2014            one refused input or one failed rule: id, text, clause
//   clauseOf(Rule2014)   the clause of a rule
//   checks2014::...      each message composed from its numbers (cm, cm², kgf)

#include <string>
#include <string_view>

namespace pilarix::engine {

enum class Rule2014 {
    // refusals: the rules below cannot be applied to these data
    SideBelowMinimum,      // smaller side below 14 cm (13.2.3)
    AreaBelowMinimum,      // Ac below 360 cm² (13.2.3)
    SlendernessAbove90,    // λ > 90: the standard-column methods do not apply (15.8.3.3)
    // detailing
    SteelBelowMinimum,     // As < As,min (17.3.5.3.1)
    SteelAboveMaximum,     // As > 4 % Ac outside laps (17.3.5.3.2)
    BarBelowMinimum,       // φ < 10 mm (18.4.2.1)
    BarAboveEighthOfSide,  // φ > b/8 (18.4.2.1)
    FreeSpacingBelowMinimum,
    AxisSpacingAboveMaximum,
    StirrupBelowMinimum,   // φt < max(5 mm, φ/4) (18.4.3)
    StirrupSpacingAboveMaximum,
    CoverBelowNominal,     // c < c_nom of the class (7.4.7)
    CoverBelowBarDiameter, // c_nom < φ (7.4.7.5)
    AggregateAboveCover,   // dmax > 1.2 c_nom (7.4.7.6)
    SupplementaryStirrupsNeeded, // bars farther than 20 φt from a corner (18.2.4)
};

struct Check2014 {
    Rule2014 id;
    std::string text;
    std::string_view clause;
};

std::string_view clauseOf(Rule2014 id);

namespace checks2014 {
Check2014 sideBelowMinimum(double smallerSide);                 // cm
Check2014 areaBelowMinimum(double area);                        // cm²
Check2014 slendernessAbove90(double lambda, double side);       // side of the direction, cm
Check2014 steelBelowMinimum(double provided, double minimum);   // cm²
Check2014 steelAboveMaximum(double provided, double maximum);   // cm²
Check2014 barBelowMinimum(double diameter);                     // cm
Check2014 barAboveEighthOfSide(double diameter, double smallerSide);
Check2014 freeSpacingBelowMinimum(double spacing, double minimum);
Check2014 axisSpacingAboveMaximum(double spacing, double maximum);
Check2014 stirrupBelowMinimum(double diameter, double minimum);
Check2014 stirrupSpacingAboveMaximum(double spacing, double maximum);
Check2014 coverBelowNominal(double cover, double nominal);
Check2014 coverBelowBarDiameter(double nominal, double barDiameter);
Check2014 aggregateAboveCover(double aggregate, double nominal);
Check2014 supplementaryStirrupsNeeded(int bars, double reach); // bars not held, 20 φt in cm
} // namespace checks2014

} // namespace pilarix::engine
