#pragma once
// The detailing choices of a column, as values: how the stirrup is chosen, the hook,
// the environmental class and the execution tolerance of the cover.

namespace pilarix::engine {

// How the stirrup diameter is chosen (NBR 6118, 18.4.3).
enum class StirrupMode {
    Predefined, // the diameter the engineer picked, raised to the minimum if thinner
    Economic,   // the minimum diameter; with stirrups of the bars' steel, the least steel per metre
    Manual,     // the engineer chooses among the allowed diameters (a question)
};

// The bend of the stirrup's hooks (NBR 6118, 9.4.6): two hooks of 5 φt (at least
// 5 cm each) at 45° or in a half circle, of 10 φt (at least 7 cm each) at 90°.
enum class Hook { Angle45, RightAngle };

// The rules a project is calculated by: the 2001 revision project of NB1, as the
// program always applied it (the default of every file without one), or ABNT NBR
// 6118:2014, which changes γn, the minimum steel, the clear spacing and the stirrup
// spacing of CA-60, and adds the minimum moment and slenderness.
enum class RuleSet { Nbr2001, Nbr2014 };

// Environmental aggressiveness class (NBR 6118, table 7.2): the minimum cover is
// 1.5, 2, 3 and 4 cm for classes I to IV.
enum class ExposureClass { I = 1, II, III, IV };

} // namespace pilarix::engine
