// The one painter of the Mx–My diagram: no text over another, over a point's marker
// or across the contour, whatever the points; every point is drawn; the window's
// diagram and the report's picture are made from the same numbers.

#include "cli/controls_by_name.h"
#include "render/moment_contour_painter.h"
#include "report/report_data.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <QImage>
#include <QLineF>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

using namespace pilarix;
using render::ContourLabel;

namespace {

constexpr double kPi = 3.14159265358979323846;

// A contour like a 20 × 50 cm column's in KN.cm: 6400 across, 16000 up.
report::MomentContour contorno(std::vector<report::ContourPoint> pontos, bool several = true)
{
    report::MomentContour c;
    c.forceUnit = "KN";
    c.momentUnit = "KN.cm";
    c.nSd = 1400;
    for (int k = 0; k <= 72; ++k) {
        const double t = 2 * kPi * k / 72;
        c.contour.emplace_back(6400 * std::cos(t), 16000 * std::sin(t));
    }
    c.points = std::move(pontos);
    c.semiAxisX = 5300;
    c.semiAxisY = 4200;
    c.margin = 1.2;
    c.inside = true;
    c.several = several;
    c.utilisation = 0.5;
    return c;
}

std::vector<report::ContourPoint> multidao(int casos)
{
    std::vector<report::ContourPoint> p;
    for (int i = 0; i < casos; ++i)
        for (const char* secao : {"topo", "base", "intermediária"}) {
            const double a = 0.37 * i + (secao[0] == 'b' ? 2.1 : secao[0] == 'i' ? 4.2 : 0);
            const double r = 0.2 + 0.75 * std::fmod(0.13 * i, 1.0);
            p.push_back({"caso " + std::to_string(i + 1), secao, 6400 * r * std::cos(a), 16000 * r * std::sin(a),
                         1400, r});
        }
    return p;
}

bool cruza(const std::vector<QPointF>& linha, const QRectF& r)
{
    for (std::size_t i = 0; i < linha.size(); ++i) {
        const QPointF a = linha[i], b = linha[(i + 1) % linha.size()];
        if (r.contains(a) || r.contains(b))
            return true;
        const QLineF s(a, b);
        for (const QLineF& e : {QLineF(r.topLeft(), r.topRight()), QLineF(r.topRight(), r.bottomRight()),
                                QLineF(r.bottomRight(), r.bottomLeft()), QLineF(r.bottomLeft(), r.topLeft())})
            if (s.intersects(e, nullptr) == QLineF::BoundedIntersection)
                return true;
    }
    return false;
}

} // namespace

TEST(MomentContourPainter, NoTextOverAnotherAMarkerOrTheContourAndEveryPointDrawn)
{
    const struct {
        const char* nome;
        report::MomentContour c;
        QSizeF tamanho;
    } rows[] = {
        {"one case", contorno({{"1", "topo", 0, 3000, 1400, 0.2}, {"1", "base", 0, -1500, 1400, 0.1},
                               {"1", "intermediária", 2379, 2000, 1400, 0.45}}, false),
         {520, 480}},
        {"a crowd of cases", contorno(multidao(20)), {520, 480}},
        {"points on top of each other", contorno(std::vector<report::ContourPoint>(12, {"x", "topo", 0, 0, 1400, 0})),
         {520, 480}},
        {"a point outside", contorno({{"1", "topo", 9000, 2000, 1400, 1.4}}), {520, 480}},
        {"a small plot", contorno(multidao(6)), {220, 190}},
    };
    QImage imagem(600, 600, QImage::Format_ARGB32);
    for (const auto& r : rows) {
        const render::ChartStyle estilo{QFont(), 1};
        const QRectF limites(QPointF(10, 10), r.tamanho);
        const render::ContourLayout l = render::layoutContour(r.c, limites, estilo, &imagem);
        ASSERT_TRUE(l.drawable) << r.nome;
        EXPECT_EQ(l.markers.size(), r.c.points.size()) << r.nome << ": every point has its marker";
        for (std::size_t i = 0; i < l.labels.size(); ++i) {
            const ContourLabel& a = l.labels[i];
            EXPECT_TRUE(limites.adjusted(-1, -1, 1, 1).contains(a.rect)) << r.nome << ": " << a.text.toStdString();
            for (std::size_t k = i + 1; k < l.labels.size(); ++k)
                EXPECT_FALSE(a.rect.intersects(l.labels[k].rect))
                    << r.nome << ": " << a.text.toStdString() << " over " << l.labels[k].text.toStdString();
            for (const auto& m : l.markers)
                EXPECT_FALSE(a.rect.intersects(QRectF(m.centre - QPointF(m.radius, m.radius),
                                                      QSizeF(2 * m.radius, 2 * m.radius))))
                    << r.nome << ": " << a.text.toStdString() << " over point " << m.pointIndex;
            if (a.kind == ContourLabel::Kind::Point || a.kind == ContourLabel::Kind::Envelope) {
                EXPECT_FALSE(cruza(l.contour, a.rect)) << r.nome << ": " << a.text.toStdString();
            }
        }
        // Every point named or counted as left without a name.
        std::size_t nomeados = 0;
        for (const auto& a : l.labels)
            nomeados += a.kind == ContourLabel::Kind::Point;
        EXPECT_EQ(nomeados + l.unlabelledPoints.size(), r.c.points.size()) << r.nome;
        // One scale for both moments: the contour keeps its true shape.
        const QPointF o = l.toScreen(0, 0), x = l.toScreen(1000, 0), y = l.toScreen(0, 1000);
        EXPECT_NEAR(x.x() - o.x(), o.y() - y.y(), 1e-6) << r.nome;
        QPainter p(&imagem);
        render::paintContour(p, r.c, l, estilo); // paints without a fault
    }
}

TEST(MomentContourPainter, NoContourIsNotDrawnAndTheMostUsedPointIsTheGoverningOne)
{
    report::MomentContour c = contorno({{"1", "topo", 0, 0, 1400, 0.3}, {"2", "base", 0, 0, 1400, INFINITY},
                                        {"3", "topo", 0, 0, 1400, 0.9}});
    EXPECT_EQ(render::mostUsedPoint(c), 1) << "+∞ (N not carried) uses most";
    EXPECT_EQ(render::pointName(c, c.points[2]), QStringLiteral("3 topo"));
    c.several = false;
    EXPECT_EQ(render::pointName(c, c.points[2]), QStringLiteral("topo"));
    c.contour.clear();
    QImage imagem(100, 100, QImage::Format_ARGB32);
    EXPECT_FALSE(render::layoutContour(c, QRectF(0, 0, 100, 100), {QFont(), 1}, &imagem).drawable);
}

TEST(MomentContourPainter, TheWindowsDiagramAndTheReportsPictureAreOneContour)
{
    PolicyDialogs d;
    Program p(d);
    for (const auto& [n, v] : std::vector<std::pair<std::string, std::string>>{
             {"Norma", "2014"}, {"Text1", "50"}, {"Text2", "20"}, {"Text3", "4"}, {"Text4", "4"}, {"Text5", "2"},
             {"Text16", "1400"}, {"Text17", "0"}, {"Text18", "30"}, {"Text21", "1.4"}, {"Text23", "280"},
             {"MyTopo", "3000"}}) {
        std::string erro;
        ASSERT_TRUE(setControlByName(p, n, v, erro)) << erro;
    }
    p.Command1_Click();
    const auto janela = report::momentContourOf(p.registroDoCalculo());
    report::ReportData r;
    std::string erro;
    ASSERT_TRUE(report::buildReport(p.registroDoCalculo(), {"01/02/2025 08:30", "0.1"}, r, erro)) << erro;
    ASSERT_TRUE(janela && r.momentContour);
    EXPECT_EQ(janela->contour, r.momentContour->contour);
    ASSERT_EQ(janela->points.size(), r.momentContour->points.size());
    for (std::size_t i = 0; i < janela->points.size(); ++i)
        EXPECT_EQ(janela->points[i].mx, r.momentContour->points[i].mx);
}
