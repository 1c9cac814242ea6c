#pragma once
// The choice of a longitudinal bar shared by the required area and the minimum steel.

namespace pilarix {

class Program;

// The smallest allowed bar (catalogue 4, 10 mm, up to IndiceBitolaMax) whose area
// reaches AsNecBarra: sets Indice, AsBarra, AsReal, DiamLong and PesoLinearLong and
// returns true. Returns false, touching nothing, when even the largest allowed bar
// is too small.
bool escolheMenorBarra(Program& p);

} // namespace pilarix
