#pragma once
// The variables of the method, under the names its engineers know them by: what a
// calculation of one column computes, stage after stage, and the working values of
// its marches. The engine's stages read and write them here; the result types of
// column.h are views of them, and the window lists them ("estado" of pilarix-cli).
//
// A calculation writes each variable where its stage runs; a variable that this
// calculation did not reach keeps what the last calculation left in it. Which of
// those carried values a later calculation actually uses is said in memory.h.
//
// Units: cm, cm², kgf, kgf·cm, kgf/cm², strains in per mille (shortening positive),
// kg/m and kg. Depths are fractions of h from the most compressed face; forces are
// reduced by b·h·σcd and moments by b·h²·σcd.

#include "base/vb_array.h"

#include <cstdint>
#include <string>

namespace pilarix::engine {

// The error state of a calculation. `Unset` before any pass has run.
enum class ErrorFlag : std::uint8_t { Unset, None, Failed, Wall };

// Whether the pass must run again because the cover correction changed d'.
enum class Recalculation : std::uint8_t { Unset, No, Yes };

// The solicitation zones, numbered as the method numbers them.
enum class Zone : std::uint8_t { None = 0, E = 1, C = 2, A = 3, O = 4 };

// "E", "C", "A", "O"; empty before any zone was found.
inline const char* zoneLetter(Zone z)
{
    switch (z) {
    case Zone::E:
        return "E";
    case Zone::C:
        return "C";
    case Zone::A:
        return "A";
    case Zone::O:
        return "O";
    case Zone::None:
        break;
    }
    return "";
}

// A bar of a face: held by a supplementary stirrup, explicitly not, or never marked.
enum class TieFlag : std::uint8_t { Unset, Tie, NoTie };

struct MethodState {
    // ---- the error state: flag, last message and the clause of the standard ----
    ErrorFlag FlagErro = ErrorFlag::Unset;
    std::string MensagemErro;
    std::string ItemNorma;
    Recalculation Recalcula = Recalculation::Unset;

    // ---- section, reduced forces and the required steel ----
    double dLinha = 0;
    double fcd = 0, SigCd = 0, Ac = 0, MeiaAltura = 0, MeioD = 0;
    double Delta = 0, Delta2 = 0, DeltaD = 0;
    double Ni = 0, Mi = 0;
    double Rho = 0;
    double AsNec = 0, AsNecCopia = 0; // the required area is kept twice
    double AsBarraD = 0, AsNecBarra = 0;
    VbArray<double, 0, 499> AsCam{"AsCam"};
    double Excesso = 0;

    // ---- steel ----
    double fyk = 0, fyd = 0, EpYd = 0, SigS2 = 0;
    // Strain and stress of each bar layer of the last field evaluated (layer i at
    // element i); the steel's probe at 2 per mille lands at the shared counter.
    VbArray<double, 0, 501> Eps{"Eps"};
    VbArray<double, 0, 501> Sig{"Sig"};
    // The counter the stages share as loop, layer and catalogue index; it ends
    // where the last loop left it (after a whole calculation, one past the last bar
    // of a depth face).
    long Indice = 0;

    // ---- bar layers ----
    std::int16_t NBarrasTotal = 0;
    VbArray<double, 0, 499> NBarCam{"NBarCam"};
    VbArray<double, 0, 499> YCam{"YCam"};
    VbArray<double, 0, 499> YRel{"YRel"};

    // ---- the strain field under evaluation ----
    double BetaX = 0, EpsC = 0, Teta = 0, EpsInf = 0;
    std::int16_t PatamarC = 0;
    double Eta = 0, EtaLin = 0, SigMed = 0, SigMedY = 0, Kapa = 0, Lambda = 0;
    // the four reference fields
    double BetaXC1 = 0, EtaC1 = 0, EtaLinC1 = 0, KapaC1 = 0, LambdaC1 = 0;
    double BetaXC2 = 0, EtaC2 = 0, EtaLinC2 = 0, KapaC2 = 0, LambdaC2 = 0;
    double BetaXA = 0, EtaA = 0, EtaLinA = 0, KapaA = 0, LambdaA = 0;
    double BetaXE = 0, EtaE = 0, EtaLinE = 0, KapaE = 0, LambdaE = 0;
    Zone Zona = Zone::None;

    // ---- zone bounds and the marches ----
    double NiCrit = 0, NiCrit1 = 0, NiCrit2 = 0;
    double MiC1 = 0, MiC = 0, MiA = 0, MiE = 0, Mi0 = 0;
    double Passo = 0, Resid = 0, ResidAnt = 0, ProdResid = 0, EpsInfIter = 0;
    double MomAco = 0, BetaXIni = 0, BetaXMax = 0, EpsInfIni = 0, EpsInfMax = 0;

    // ---- the bar ----
    double AsBarra = 0, AsReal = 0, DiamLong = 0, PesoLinearLong = 0;

    // ---- steel limits and wall columns ----
    double MenorDim = 0, GamaN = 0, AsMin = 0, AsMinBarra = 0, AsMax = 0;

    // ---- spacing, cover and weight ----
    double EspLivreH = 0, EspLivreV = 0, EspEixoH = 0, EspEixoV = 0;
    double EspLivreMin = 0, EspEixoMax = 0;
    std::string TextoLimite;
    double DeltaC = 0, CobNominal = 0, CobEfetivo = 0;
    double AlturaInterna = 0;                  // whole-centimetre inner height of a cover correction
    double BaseEstribo = 0, AlturaEstribo = 0; // inner stirrup width and height
    double ComprEstribo = 0;                   // length of one stirrup, hooks included
    double PesoLong = 0;

    // ---- stirrups and hooks ----
    double DiamEstribo = 0, EspEstribo = 0, PesoEstribo = 0;
    double DiamEstriboMin = 0;
    long IndiceEstriboMin = 0;
    double DiamEstriboEsc = 0, PesoEstriboEsc = 0, EspEstriboEsc = 0; // the staged choice
    double ComprGancho = 0, ComprGanchoSup = 0;
    std::string TextoEstribo; // "φ5 c/15"

    // ---- supplementary stirrups ----
    double EspSupH = 0, EspSupV = 0;
    std::int16_t nMeioH = 0, nMeioV = 0;
    VbArray<TieFlag, 1, 500> SupH{"SupH"};
    VbArray<TieFlag, 1, 500> SupV{"SupV"};
    double NSupH = 0, NSupV = 0;
};

} // namespace pilarix::engine
