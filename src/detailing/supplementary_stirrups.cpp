// Supplementary stirrups of the faces.

#include "driver/program.h"

#include "base/number_text.h"

#include <cmath>

namespace pilarix {

namespace {

// One row of a marking table: what the middle bar gets, and where the marks start
// below and above it. A second start, where there is one, takes over after the
// first mark.
struct Linha {
    const char* centro; // "s", "n", or nullptr to leave the middle bar as it is
    int desce, desceDepois;
    int sobe, sobeDepois;
};
constexpr int kSem = 0; // no second start

// Each protected bar holds two neighbours on each side (rows by n mod 10, step 5).
constexpr Linha kRegimeA[10] = {
    {"s", -4, kSem, +5, kSem}, {"s", -5, kSem, +5, kSem}, {"n", -2, -5, +2, +6}, {"n", -2, -6, +2, +6},
    {"n", -2, -6, +2, kSem},   {"n", -2, kSem, +2, kSem}, {"n", -2, kSem, +3, kSem}, {"s", -3, kSem, +3, kSem},
    {"s", -3, kSem, +4, kSem}, {"s", -4, kSem, +4, kSem},
};
// Each protected bar holds one neighbour on each side (rows by n mod 6, step 3).
constexpr Linha kRegimeB[6] = {
    {"s", -2, kSem, +3, kSem}, {"s", -3, kSem, +3, kSem},     {"s", -3, kSem, +1, kSem},
    {nullptr, -1, kSem, +1, kSem}, {nullptr, -1, kSem, +2, kSem}, {"s", -2, kSem, +2, kSem},
};

struct Face {
    double comprimento; // Base or Altura
    double n;           // bars on the face
    double& espEixo;
    std::int16_t& nMeio;
    double& espSup;
    VbArray<std::string, 1, 500>& sup;
    double& nSup;
};

void marca(Face& f, long m, const Linha& linha, int passo)
{
    if (linha.centro != nullptr)
        f.sup(m) = linha.centro;
    // Corner bars (1 and n) are held by the stirrup itself and are never marked.
    long j = m + linha.desce;
    if (j > 1) {
        f.sup(j) = "s";
        for (j = linha.desceDepois != kSem ? m + linha.desceDepois : j - passo; j > 1; j -= passo)
            f.sup(j) = "s";
    }
    j = m + linha.sobe;
    if (j < f.n) {
        f.sup(j) = "s";
        for (j = linha.sobeDepois != kSem ? m + linha.sobeDepois : j + passo; j < f.n; j += passo)
            f.sup(j) = "s";
    }
}

// NBR 6118, 18.4.3: the polygonal stirrup holds the corner bars and the bars within
// 20 φt of a held bar; any other bar needs a supplementary stirrup.
void estribosSuplementares(Program& p, Face f)
{
    const double s = (f.comprimento - 2 * p.dLinha) / (f.n - 1);
    f.espEixo = s;
    f.espSup = s;
    for (p.Indice = 1; p.Indice <= f.n; ++p.Indice)
        f.sup(p.Indice) = "";
    f.nMeio = CInt16(Int(f.n / 2 + 0.5), "barra do meio da face");
    const long m = f.nMeio;
    const double vinteFi = 20 * p.DiamEstribo;
    // The table row is taken as an integer remainder rounds its operand (half to even).
    const long n = static_cast<long>(std::nearbyint(f.n));

    if (f.espSup > vinteFi) {
        for (p.Indice = 2; p.Indice <= f.n - 1; ++p.Indice)
            f.sup(p.Indice) = "s";
    } else if (f.n >= 5 && 2 * f.espSup > vinteFi) {
        marca(f, m, kRegimeB[n % 6], 3);
    } else if (f.n >= 7) {
        marca(f, m, kRegimeA[n % 10], 5);
    }

    f.nSup = 0;
    for (p.Indice = 1; p.Indice <= f.n; ++p.Indice)
        if (f.sup(p.Indice) == "s")
            f.nSup = f.nSup + 1;
}

} // namespace

void Program::EstriboSuplementarH29()
{
    estribosSuplementares(*this, Face{Base, nBase, EspEixoH, nMeioH, EspSupH, SupH, NSupH});
}

void Program::EstriboSuplementarV30()
{
    estribosSuplementares(*this, Face{Altura, static_cast<double>(nAltura), EspEixoV, nMeioV, EspSupV, SupV, NSupV});
}

} // namespace pilarix
