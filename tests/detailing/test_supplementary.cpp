// Supplementary stirrups: which bars of a face get a tie, in both regimes and for
// every row of their tables, on the width and on the depth faces.

#include "detailing/bancada.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

using namespace pilarix;
using pilarix::test::Bancada;

namespace {

// The flags of positions 1..n as one text: 's', 'n', or '.' for none.
std::string marcas(const VbArray<std::string, 1, 500>& sup, long n)
{
    std::string out;
    for (long i = 1; i <= n; ++i)
        out += sup(i).empty() ? '.' : sup(i)[0];
    return out;
}

// A face of n bars with d' = 4 at axis spacing s and stirrup φt (20 φt = 10 cm for
// 5 mm), and what it gets: the middle bar m = Int(n/2 + 0.5), and the marks by hand
// from the tables; the corners are never marked.
struct Linha {
    double n, s;
    std::int16_t meio;
    const char* marcas;
    double fiT = 0.5;
};
const Linha kLinhas[] = {
    // s > 20 φt: every interior bar; s = 20 φt is not beyond it
    {2, 12, 1, ".."}, {3, 11, 2, ".s."}, {4, 12, 2, ".ss."}, {5, 10, 3, "..s.."},
    // n below 7 with 2 s at most 20 φt: nothing; 2 s = 20 φt stays in the two-neighbour regime
    {5, 5, 3, "....."}, {6, 5, 3, "......"}, {8, 5, 4, "...s...."},
    // one neighbour each side, row n mod 6, s = 6 (n = 8 with a 10 mm stirrup: 20 φt = 20 holds bars 12 apart)
    {5, 6, 3, "..s.."}, {6, 6, 3, "..s..."}, {7, 6, 4, "...s..."}, {8, 6, 4, "...ss..."}, {8, 12, 4, "...ss...", 1},
    {9, 6, 5, "...s.s..."}, {10, 6, 5, "...s..s..."}, {11, 6, 6, "...s.s.s..."}, {12, 6, 6, "...s.s..s..."},
    {13, 6, 7, "...s..s..s..."}, {14, 6, 7, "...s..ss..s..."}, {15, 6, 8, "...s..s.s..s..."},
    {16, 6, 8, "...s..s..s..s..."}, {17, 6, 9, "...s..s.s.s..s..."},
    // two neighbours each side, row n mod 10, s = 4; second starts from n = 22
    {7, 4, 4, "...s..."}, {8, 4, 4, "...s...."}, {9, 4, 5, "....s...."}, {10, 4, 5, "....s....."},
    {11, 4, 6, ".....s....."}, {12, 4, 6, "...s.n.s...."}, {13, 4, 7, "....s.n.s...."},
    {14, 4, 7, "....s.n.s....."}, {15, 4, 8, ".....s.n.s....."}, {16, 4, 8, ".....s.n..s....."},
    {17, 4, 9, ".....s..s..s....."}, {18, 4, 9, ".....s..s...s....."}, {19, 4, 10, ".....s...s...s....."},
    {20, 4, 10, ".....s...s....s....."}, {22, 4, 11, ".....s..s.n.s...s....."},
    {23, 4, 12, ".....s...s.n.s...s....."}, {24, 4, 12, ".....s...s.n.s....s....."},
    {27, 4, 14, ".....s....s..s..s....s....."}, {32, 4, 16, ".....s....s..s.n.s...s....s....."},
};

} // namespace

TEST(DetailSupplementaryStirrups, EveryRegimeAndRowOnBothFaces)
{
    for (const auto& l : kLinhas) {
        const long n = static_cast<long>(l.n);
        const auto nSup = static_cast<double>(std::count(l.marcas, l.marcas + n, 's'));
        const double comprimento = 2 * 4 + l.s * (l.n - 1);
        for (const bool largura : {true, false}) {
            Bancada b;
            auto& p = b.p;
            p.dLinha = 4;
            p.DiamEstribo = l.fiT;
            for (long i = 1; i <= 40; ++i)
                p.SupH(i) = p.SupV(i) = "velho"; // a previous arrangement's flags
            p.nBase = largura ? l.n : 2;
            p.nAltura = static_cast<std::int16_t>(largura ? 2 : l.n);
            p.Base = largura ? comprimento : 1000; // the other face must not enter
            p.Altura = largura ? 1000 : comprimento;
            if (largura)
                p.EstriboSuplementarH29();
            else
                p.EstriboSuplementarV30();
            EXPECT_EQ(largura ? std::tuple(marcas(p.SupH, n), p.nMeioH, p.NSupH, p.EspEixoH, p.EspSupH, p.SupV(1))
                              : std::tuple(marcas(p.SupV, n), p.nMeioV, p.NSupV, p.EspEixoV, p.EspSupV, p.SupH(1)),
                      std::tuple(l.marcas, l.meio, nSup, l.s, l.s, "velho"));
        }
    }
}

TEST(DetailSupplementaryStirrups, MoreBarsThanTheFlagsHoldIsAnError)
{
    Bancada b;
    b.p.dLinha = 4;
    b.p.DiamEstribo = 0.5;
    b.p.nBase = 501;
    b.p.Base = 8 + 500 * 4;
    EXPECT_THROW(b.p.EstriboSuplementarH29(), CalcError);
}
