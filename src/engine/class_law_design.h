#pragma once
// Above C50 the method of solicitation zones, written for the parabola-rectangle of
// classes up to C50, does not apply: the section is designed by strain compatibility
// with the concrete law of its class (8.2.10.1, 17.2.2 of ABNT NBR 6118:2014), the
// bars of the program's perimeter layout scaled together.
//
//   requiredAreaByClassLaw(column, d', N, Mx, My, rules)
//       the least total steel area (cm²) of the layout that carries (N, Mx, My) at
//       fixed N; 0 when the concrete alone does; none when not even As = b·h does

#include "engine/column.h"
#include "engine/concrete_law.h"

#include <optional>

namespace pilarix::engine {

std::optional<double> requiredAreaByClassLaw(const ColumnInput& column, double dLinha, double nSd, double mx,
                                             double my, ConcreteRules rules);

} // namespace pilarix::engine
