#pragma once
// The program-wide calculation state: every field that the stages share, under the
// names the engineers of the method know them by. Stages take no arguments: each
// reads what it needs here and writes its results here, and the driver decides the
// order. Internal units: cm, cm², kgf, kgf·cm, kgf/cm², strains in per mille, kg/m
// and kg.
//
// Types follow the values each field must carry: doubles for the numbers, strings
// for the one-letter flags ("s", "n", ""), std::int16_t where the count is a 16-bit
// integer whose rounding and range are part of the result.

#include "state/vb_array.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pilarix {

// One arrangement kept by the best-solution search.
struct SolutionRow {
    double peso = 0;          // PesoLong of the candidate, kg: the ordering key
    double nBase = 0;         // bars on each face of width b
    double nAltura = 0;       // bars on each face of depth h
    double IndiceEstribo = 0; // catalogue index of the stirrup, 1 to 4
    double DiamEstribo = 0;   // stirrup diameter, cm
    double dLinha = 0;        // the candidate's final d', cm, so that it recalculates exactly
    double LambdaC1 = 0;      // λ of the first reference field in the candidate's last pass
};

struct CalcState {
    // ---- input (read by Ler02) ----
    double Base = 0, Altura = 0, Comprimento = 0;
    double nBase = 0;
    std::int16_t nAltura = 0;
    std::int16_t nMaxBase = 0;
    double nMaxAltura = 0;
    double Escala = 0;
    int MargemDesenho = 0;
    double OrigemX = 0, OrigemY = 0;
    double DiamAgregado = 0;
    double Nd = 0, Md = 0, Fck = 0, Es = 0, GamaC = 0, GamaS = 0;
    double Precisao = 0;
    int IndiceBitolaMax = 0;
    float IndiceEstriboMax = 0;
    std::string ErroEntrada;
    std::string Recalcula;

    // ---- units ----
    std::string UnidadeNome;
    double FatorUnidade = 0;

    // ---- error triple ----
    std::string FlagErro;
    std::string MensagemErro;
    std::string ItemNorma;

    // ---- driver: design values and required steel ----
    double fcd = 0, SigCd = 0, Ac = 0, MeiaAltura = 0, MeioD = 0;
    double Delta = 0, Delta2 = 0, DeltaD = 0;
    double Ni = 0, Mi = 0;
    double Rho = 0;
    double AsNec = 0, AsNecCopia = 0; // the required area is kept twice
    double AsBarraD = 0, AsNecBarra = 0;
    VbArray<double, 0, 499> AsCam{"AsCam"};
    double Excesso = 0;

    // ---- materials ----
    double fyk = 0, fyd = 0, EpYd = 0, SigS2 = 0;
    VbArray<double, 0, 501> Eps{"Eps"};
    VbArray<double, 0, 501> Sig{"Sig"};
    long Indice = 0; // the shared loop, layer and catalogue index

    // ---- section parameters and bar layers ----
    double dLinha = 0;
    std::int16_t NBarrasTotal = 0;
    VbArray<double, 0, 499> NBarCam{"NBarCam"};
    VbArray<double, 0, 499> YCam{"YCam"};
    VbArray<double, 0, 499> YRel{"YRel"};

    // ---- strain field ----
    double BetaX = 0, EpsC = 0, Teta = 0, EpsInf = 0;
    std::int16_t PatamarC = 0;
    double Eta = 0, EtaLin = 0, SigMed = 0, SigMedY = 0, Kapa = 0, Lambda = 0;
    double BetaXC1 = 0, EtaC1 = 0, EtaLinC1 = 0, KapaC1 = 0, LambdaC1 = 0;
    double BetaXC2 = 0, EtaC2 = 0, EtaLinC2 = 0, KapaC2 = 0, LambdaC2 = 0;
    double BetaXA = 0, EtaA = 0, EtaLinA = 0, KapaA = 0, LambdaA = 0;
    double BetaXE = 0, EtaE = 0, EtaLinE = 0, KapaE = 0, LambdaE = 0;
    std::string Zona;
    std::int16_t NZona = 0;

    // ---- zone bounds and the searches ----
    double NiCrit = 0, NiCrit1 = 0, NiCrit2 = 0;
    double MiC1 = 0, MiC = 0, MiA = 0, MiE = 0, Mi0 = 0;
    double Passo = 0, Resid = 0, ResidAnt = 0, ProdResid = 0, EpsInfIter = 0;
    double MomAco = 0, BetaXIni = 0, BetaXMax = 0, EpsInfIni = 0, EpsInfMax = 0;

    // ---- bar catalogue and provided area ----
    VbArray<double, 1, 11> DiamBitola{"DiamBitola"};
    VbArray<double, 1, 11> AreaBitola{"AreaBitola"};
    VbArray<double, 1, 11> PesoBitola{"PesoBitola"};
    double AsBarra = 0, AsReal = 0, DiamLong = 0, PesoLinearLong = 0;

    // ---- steel limits and wall columns ----
    double MenorDim = 0, GamaN = 0, AsMin = 0, AsMinBarra = 0, AsMax = 0;

    // ---- spacing, cover and weight ----
    double EspLivreH = 0, EspLivreV = 0, EspEixoH = 0, EspEixoV = 0;
    double EspLivreMin = 0, EspEixoMax = 0;
    std::string TextoLimite;
    double DeltaC = 0, CobNominal = 0, CobEfetivo = 0;
    double AlturaInterna = 0;                        // whole-centimetre inner height (cover correction)
    double BaseEstribo = 0, AlturaEstribo = 0;       // inner stirrup width and height
    double ComprEstribo = 0;                         // length of one stirrup, hooks included
    double PesoLong = 0;

    // ---- stirrups and hooks ----
    double DiamEstribo = 0, EspEstribo = 0, PesoEstribo = 0;
    double DiamEstriboMin = 0;
    long IndiceEstriboMin = 0;
    double DiamEstriboPreDef = 0, PesoEstriboPreDef = 0;
    long IndiceEstriboPreDef = 0;
    VbArray<double, 1, 3> EspEstriboAlt{"EspEstriboAlt"};
    double DiamEstriboEsc = 0, PesoEstriboEsc = 0, EspEstriboEsc = 0;
    VbArray<double, 1, 4> AcoPorMetro{"AcoPorMetro"};
    double AcoMinPorMetro = 0;
    double ComprGancho = 0, ComprGanchoSup = 0;
    std::string TextoEstribo; // stirrup description shown in Text27

    // ---- supplementary stirrups ----
    double EspSupH = 0, EspSupV = 0;
    std::int16_t nMeioH = 0, nMeioV = 0;
    VbArray<std::string, 1, 500> SupH{"SupH"};
    VbArray<std::string, 1, 500> SupV{"SupV"};
    double NSupH = 0, NSupV = 0;

    // ---- best-solution search ----
    double NSolucoes = 0;
    std::int16_t SolucaoAtual = 0;
    std::string SolucaoNoForm; // "s" once a stored solution has been put into the window
    double IndiceEstriboBusca = 0; // catalogue index of the stirrup of the candidate being tried
    std::vector<SolutionRow> Solucoes;   // in the order of discovery (row k at index k - 1)
    std::vector<SolutionRow> Ordenadas;  // ascending by weight, stable

    // ---- files and the d' estimate ----
    std::string NomeArquivo;
    std::string ErroArquivo; // why the last file could not be read or written; empty when it could
    double dLinhaEstimada = 0;
};

} // namespace pilarix
