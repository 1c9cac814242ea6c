#pragma once
// What "Outras soluções" shows of each arrangement besides what the search keeps:
// the bar, the count, the steel area, the utilisation of the detailed section under
// every load case, the stirrup's spacing and the steel with the stirrups. Each row
// is calculated again as the window would calculate it once chosen (its bars per
// face, its d', its stirrup pre-defined, its λ), quietly and from a fresh memory.

#include "window/program.h"

#include <vector>

namespace pilarix {

struct DetalheDaSolucao {
    bool calculado = false;       // false where the row could not be detailed again
    double diametroBarra = 0;     // cm
    int barras = 0;               // all bars of the section
    double area = 0;              // cm², provided
    double utilizacao = 0;        // the largest over the load cases (NaN: not verified)
    double diametroEstribo = 0;   // cm
    double espacamentoEstribo = 0; // cm
    double pesoLongitudinal = 0;  // kg
    double pesoTotal = 0;         // kg: the longitudinal bars and the stirrups
};

// The rows of the list in its order (lightest first), at most the rows it shows.
std::vector<DetalheDaSolucao> detalhaSolucoes(const Program& p);

} // namespace pilarix
