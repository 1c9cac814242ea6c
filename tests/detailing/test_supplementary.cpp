// Supplementary stirrups: which bars of a face get a tie, in both regimes and for
// every row of their tables, on the width and on the depth faces.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>

using namespace pilarix;

namespace {

// The flags of positions 1..n as one text: 's', 'n', or '.' for none.
std::string marcas(const VbArray<std::string, 1, 500>& sup, long n)
{
    std::string out;
    for (long i = 1; i <= n; ++i)
        out += sup(i).empty() ? '.' : sup(i)[0];
    return out;
}

// A face of n bars with d' = 4 and a 5 mm stirrup (20 φt = 10 cm), at axis spacing s.
struct Face {
    double n, s;
};

double comprimentoPara(Face f) { return 2 * 4 + f.s * (f.n - 1); }

struct Linha {
    const char* nome;
    Face face;
    std::int16_t meio;
    const char* marcas;
};

// Rows worked out from the tables by hand: m = Int(n/2 + 0.5); corners never marked.
const Linha kLinhas[] = {
    // every interior bar: s > 20 φt
    {"two bars, nothing between", {2, 12}, 1, ".."},
    {"three bars", {3, 11}, 2, ".s."},
    {"four bars", {4, 12}, 2, ".ss."},
    {"s exactly 20 φt is not beyond it", {5, 10}, 3, "..s.."},
    // nothing: n below 7 with 2 s at most 20 φt
    {"five bars close together", {5, 5}, 3, "....."},
    {"six bars close together", {6, 5}, 3, "......"},
    {"2 s exactly 20 φt stays in the two-neighbour regime", {8, 5}, 4, "...s...."},
    // one neighbour each side (n mod 6), s = 6
    {"B n=5 (k=5)", {5, 6}, 3, "..s.."},
    {"B n=6 (k=0)", {6, 6}, 3, "..s..."},
    {"B n=7 (k=1)", {7, 6}, 4, "...s..."},
    {"B n=8 (k=2) flags m and m+1", {8, 6}, 4, "...ss..."},
    {"B n=9 (k=3) leaves m", {9, 6}, 5, "...s.s..."},
    {"B n=10 (k=4)", {10, 6}, 5, "...s..s..."},
    {"B n=11 (k=5)", {11, 6}, 6, "...s.s.s..."},
    {"B n=12 (k=0)", {12, 6}, 6, "...s.s..s..."},
    {"B n=13 (k=1)", {13, 6}, 7, "...s..s..s..."},
    {"B n=14 (k=2)", {14, 6}, 7, "...s..ss..s..."},
    {"B n=15 (k=3)", {15, 6}, 8, "...s..s.s..s..."},
    {"B n=16 (k=4)", {16, 6}, 8, "...s..s..s..s..."},
    {"B n=17 (k=5)", {17, 6}, 9, "...s..s.s.s..s..."},
    // two neighbours each side (n mod 10), s = 4
    {"A n=7 (k=7)", {7, 4}, 4, "...s..."},
    {"A n=8 (k=8)", {8, 4}, 4, "...s...."},
    {"A n=9 (k=9)", {9, 4}, 5, "....s...."},
    {"A n=10 (k=0)", {10, 4}, 5, "....s....."},
    {"A n=11 (k=1)", {11, 4}, 6, ".....s....."},
    {"A n=12 (k=2)", {12, 4}, 6, "...s.n.s...."},
    {"A n=13 (k=3)", {13, 4}, 7, "....s.n.s...."},
    {"A n=14 (k=4)", {14, 4}, 7, "....s.n.s....."},
    {"A n=15 (k=5)", {15, 4}, 8, ".....s.n.s....."},
    {"A n=16 (k=6)", {16, 4}, 8, ".....s.n..s....."},
    {"A n=17 (k=7)", {17, 4}, 9, ".....s..s..s....."},
    {"A n=18 (k=8)", {18, 4}, 9, ".....s..s...s....."},
    {"A n=19 (k=9)", {19, 4}, 10, ".....s...s...s....."},
    {"A n=20 (k=0)", {20, 4}, 10, ".....s...s....s....."},
    {"A n=22 second starts", {22, 4}, 11, ".....s..s.n.s...s....."},
    {"A n=23 second starts", {23, 4}, 12, ".....s...s.n.s...s....."},
    {"A n=24 second start below only", {24, 4}, 12, ".....s...s.n.s....s....."},
    {"A n=27", {27, 4}, 14, ".....s....s..s..s....s....."},
    {"A n=32 several steps", {32, 4}, 16, ".....s....s..s.n.s...s....s....."},
};

long contaS(const char* m)
{
    long n = 0;
    for (const char* c = m; *c; ++c)
        n += *c == 's';
    return n;
}

} // namespace

TEST(DetailSupplementaryStirrups, WidthFacesEveryRegimeAndRow)
{
    for (const auto& l : kLinhas) {
        RecordingDialogs dialogos;
        Program p(dialogos);
        p.dLinha = 4;
        p.DiamEstribo = 0.5;
        p.Base = comprimentoPara(l.face);
        p.nBase = l.face.n;
        for (long i = 1; i <= 40; ++i)
            p.SupH(i) = "velho"; // a previous arrangement's flags
        p.SupV(1) = "intocado";
        p.EstriboSuplementarH29();
        EXPECT_EQ(marcas(p.SupH, static_cast<long>(l.face.n)), l.marcas) << l.nome;
        EXPECT_EQ(p.nMeioH, l.meio) << l.nome;
        EXPECT_EQ(p.NSupH, contaS(l.marcas)) << l.nome;
        EXPECT_DOUBLE_EQ(p.EspEixoH, l.face.s) << l.nome;
        EXPECT_DOUBLE_EQ(p.EspSupH, l.face.s) << l.nome;
        EXPECT_EQ(p.SupV(1), "intocado") << l.nome;
    }
}

TEST(DetailSupplementaryStirrups, DepthFacesUseTheirOwnFields)
{
    for (const auto& l : kLinhas) {
        RecordingDialogs dialogos;
        Program p(dialogos);
        p.dLinha = 4;
        p.DiamEstribo = 0.5;
        p.Altura = comprimentoPara(l.face);
        p.nAltura = static_cast<std::int16_t>(l.face.n);
        p.Base = 1000; // must not enter
        p.nBase = 2;
        p.EstriboSuplementarV30();
        EXPECT_EQ(marcas(p.SupV, static_cast<long>(l.face.n)), l.marcas) << l.nome;
        EXPECT_EQ(p.nMeioV, l.meio) << l.nome;
        EXPECT_EQ(p.NSupV, contaS(l.marcas)) << l.nome;
        EXPECT_DOUBLE_EQ(p.EspEixoV, l.face.s) << l.nome;
        EXPECT_DOUBLE_EQ(p.EspSupV, l.face.s) << l.nome;
        EXPECT_EQ(p.NSupH, 0) << l.nome;
    }
}

TEST(DetailSupplementaryStirrups, ThickerStirrupHoldsFartherBars)
{
    // 10 mm stirrup: 20 φt = 20 cm, so bars 12 cm apart hold one neighbour each side.
    RecordingDialogs dialogos;
    Program p(dialogos);
    p.dLinha = 4;
    p.DiamEstribo = 1;
    p.nBase = 8;
    p.Base = 8 + 12 * 7;
    p.EstriboSuplementarH29();
    EXPECT_EQ(marcas(p.SupH, 8), "...ss...");
}

TEST(DetailSupplementaryStirrups, MoreBarsThanTheFlagsHoldIsAnError)
{
    RecordingDialogs dialogos;
    Program p(dialogos);
    p.dLinha = 4;
    p.DiamEstribo = 0.5;
    p.nBase = 501;
    p.Base = 8 + 500 * 4;
    EXPECT_THROW(p.EstriboSuplementarH29(), CalcError);
}
