#pragma once
// What one calculation leaves to the next, explicitly.
//
// The method of solicitation zones, as the program has always applied it, carries
// three things from one calculation to the next:
// - μ0, the moment the concrete alone carries: it is computed only for 0 < ν < 1, and
//   the zone test at ν = 0 and ν = 1 compares μ with the μ0 of an earlier column;
// - λ, the lever term of the bars' resultant: where the bars of a reference field
//   carry no resultant (a pure couple, every bar yielding) λ keeps the value of the
//   field evaluated before, possibly in the previous calculation;
// - the stirrup last chosen by hand, which a repeated pass keeps without asking.
// A fresh Memory is a freshly started program. The window keeps one for its
// session; a calculation that must not depend on what came before (a load case, a
// test, a batch) takes a fresh one.

namespace pilarix::engine {

struct StagedStirrup {
    double diameter = 0; // cm
    double mass = 0;     // kg/m
};

struct Memory {
    double mu0 = 0;
    double lambda = 0;
    StagedStirrup stirrup;
};

} // namespace pilarix::engine
