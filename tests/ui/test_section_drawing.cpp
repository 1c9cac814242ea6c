// The picture of the section: bars where the design put them and of their own
// diameter, to the scale of Text6 from the drawing origin, supplementary stirrups
// on the flagged bars only, and the labels with their masks.

#include "cli/recording_dialogs.h"
#include "driver/program.h"
#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

struct Secao {
    RecordingDialogs dialogs;
    Program p{dialogs};

    Secao(double b, double h, double nb, std::int16_t nh, double escala = 5)
    {
        p.Base = b;
        p.Altura = h;
        p.nBase = nb;
        p.nAltura = nh;
        p.NBarrasTotal = static_cast<std::int16_t>(2 * (nb + nh) - 4);
        p.Escala = escala;
        p.OrigemX = p.OrigemY = 20;
        p.dLinha = 4.125;
        p.DiamLong = 1.25;
        p.DiamEstribo = 0.5;
        p.EspEstribo = 15;
        p.CobEfetivo = 3;
    }
    std::vector<DrawItem> doTipo(DrawItem::Kind k) const
    {
        std::vector<DrawItem> r;
        for (const auto& it : p.Form1.Picture.items)
            if (it.kind == k)
                r.push_back(it);
        return r;
    }
    std::vector<std::string> textos() const
    {
        std::vector<std::string> r;
        for (const auto& it : doTipo(DrawItem::Kind::Text))
            r.push_back(it.text);
        return r;
    }
    bool temBarraEm(double x, double y) const
    {
        for (const auto& c : doTipo(DrawItem::Kind::FilledCircle))
            if (std::abs(c.x1 - x) < 1e-9 && std::abs(c.y1 - y) < 1e-9)
                return true;
        return false;
    }
    // Lines running the whole way between two points (either direction).
    int linhasEntre(double xa, double ya, double xb, double yb) const
    {
        int n = 0;
        for (const auto& l : doTipo(DrawItem::Kind::Line)) {
            const bool ida = std::abs(l.x1 - xa) < 1e-9 && std::abs(l.y1 - ya) < 1e-9 && std::abs(l.x2 - xb) < 1e-9
                             && std::abs(l.y2 - yb) < 1e-9;
            const bool volta = std::abs(l.x1 - xb) < 1e-9 && std::abs(l.y1 - yb) < 1e-9 && std::abs(l.x2 - xa) < 1e-9
                               && std::abs(l.y2 - ya) < 1e-9;
            n += ida || volta;
        }
        return n;
    }
};

bool contem(const std::vector<std::string>& v, const std::string& s) { return std::find(v.begin(), v.end(), s) != v.end(); }

} // namespace

TEST(UiSectionDrawing, EveryBarIsACircleOfItsDiameterAtItsPlace)
{
    struct Row {
        const char* nome;
        double b, h, nb;
        std::int16_t nh;
        double escala;
    };
    const Row rows[] = {
        {"2 x 4 on 20 x 50", 20, 50, 2, 4, 5},
        {"3 x 2 on 30 x 30", 30, 30, 3, 2, 5},
        {"5 x 6 on 40 x 60 at scale 4", 40, 60, 5, 6, 4},
    };
    for (const auto& r : rows) {
        Secao s(r.b, r.h, r.nb, r.nh, r.escala);
        s.p.Desenha35();
        const auto barras = s.doTipo(DrawItem::Kind::FilledCircle);
        ASSERT_EQ(static_cast<long>(barras.size()), s.p.NBarrasTotal) << r.nome;
        for (const auto& c : barras)
            EXPECT_DOUBLE_EQ(c.radius, 1.25 / 2 * r.escala) << r.nome;
        const double d = 4.125 * r.escala;
        // the four corners, d' in from each face
        EXPECT_TRUE(s.temBarraEm(20 + d, 20 + d)) << r.nome;
        EXPECT_TRUE(s.temBarraEm(20 + r.b * r.escala - d, 20 + d)) << r.nome;
        EXPECT_TRUE(s.temBarraEm(20 + d, 20 + r.h * r.escala - d)) << r.nome;
        EXPECT_TRUE(s.temBarraEm(20 + r.b * r.escala - d, 20 + r.h * r.escala - d)) << r.nome;
        // a bar of the depth faces, equally spaced between the corner bars
        if (r.nh > 2) {
            const double passo = (r.h - 2 * 4.125) / (r.nh - 1);
            EXPECT_TRUE(s.temBarraEm(20 + d, 20 + (4.125 + passo) * r.escala)) << r.nome;
        }
        // the concrete outline: its top edge, b wide at the scale
        EXPECT_EQ(s.linhasEntre(20, 20, 20 + r.b * r.escala, 20), 1) << r.nome;
        EXPECT_TRUE(s.p.Form1.CotasVisiveis);
    }
}

TEST(UiSectionDrawing, LabelsCarryBarsStirrupAndDimensionsWithTheirMasks)
{
    Secao s(20, 50, 2, 4);
    s.p.Desenha35();
    const auto t = s.textos();
    EXPECT_TRUE(contem(t, "20")) << "the width, mask ##0";
    EXPECT_TRUE(contem(t, "50")) << "the depth, mask ##0";
    EXPECT_TRUE(contem(t, "N3= 8 ø 12.5 (2 x 4)"));
    EXPECT_TRUE(contem(t, "N4= ø 5.0 c/ 15cm  (14.00 x 44.00cm)"));
    EXPECT_TRUE(contem(t, "d'= 4.13cm  c= 3.00cm"));
}

TEST(UiSectionDrawing, StirrupIsDrawnAtTheEffectiveCover)
{
    Secao s(20, 50, 2, 4);
    s.p.CobEfetivo = 2.5;
    s.p.Desenha35();
    // outer face of the stirrup: 2.5 cm in; inner face: one stirrup diameter further
    EXPECT_EQ(s.linhasEntre(20 + 2.5 * 5, 20 + 2.5 * 5, 20 + 17.5 * 5, 20 + 2.5 * 5), 1);
    EXPECT_EQ(s.linhasEntre(20 + 3.0 * 5, 20 + 3.0 * 5, 20 + 17.0 * 5, 20 + 3.0 * 5), 1);
}

TEST(UiSectionDrawing, SupplementaryStirrupsTieOnlyTheFlaggedBars)
{
    struct Row {
        const char* nome;
        std::vector<long> h; // positions flagged "s" on the faces of width b
        std::vector<long> v; // on the faces of depth h
        std::vector<long> n; // positions flagged "n" on the depth faces: no tie
    };
    const Row rows[] = {
        {"none", {}, {}, {}},
        {"one across the depth", {3}, {}, {}},
        {"two across the width, a no-flag between", {}, {2, 4}, {3}},
        {"both directions", {2, 4}, {3}, {}},
    };
    for (const auto& r : rows) {
        Secao s(40, 40, 5, 5);
        for (long i : r.h)
            s.p.SupH(i) = "s";
        for (long i : r.v)
            s.p.SupV(i) = "s";
        for (long i : r.n)
            s.p.SupV(i) = "n";
        s.p.DesenhaSup36();
        const double passo = (40 - 2 * 4.125) / 4;
        const double perto = 20 + 4.125 * 5, longe = 20 + (40 - 4.125) * 5;
        // each tie: the straight leg from bar to bar and a hook at each end
        EXPECT_EQ(s.doTipo(DrawItem::Kind::Line).size(), 3 * (r.h.size() + r.v.size())) << r.nome;
        for (long i : r.h) {
            const double x = 20 + (4.125 + (i - 1) * passo) * 5;
            EXPECT_EQ(s.linhasEntre(x, perto, x, longe), 1) << r.nome << " h" << i;
        }
        for (long i : r.v) {
            const double y = 20 + (4.125 + (i - 1) * passo) * 5;
            EXPECT_EQ(s.linhasEntre(perto, y, longe, y), 1) << r.nome << " v" << i;
        }
    }
}
