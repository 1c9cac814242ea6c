// The interaction diagram puts the curve and the design points where the numbers
// say, green when carried and red when not, and survives data it cannot draw; its
// dialog gives the utilisation with one decimal and the verdict at the boundary.

#include "ui/interaction_dialog.h"

#include "base/number_text.h"
#include "engine/interaction.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

using namespace pilarix;
using ui::DiagramData;
using ui::DiagramPoint;
using ui::InteractionPlot;

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::nan("");

// An ellipse about (0, C) with half-axes A in M and B in N, like a curve in KN and
// KN.cm that carries some tension: N from −400 to 1600.
constexpr double A = 15000, B = 1000, C = 600;

DiagramData ellipse()
{
    DiagramData d{{}, QStringLiteral("KN"), QStringLiteral("KN.cm"), {}, {}, C + B, C - B};
    for (int i = 0; i < 200; ++i)
        d.curve.emplace_back(A * std::sin(M_PI * i / 100), C + B * std::cos(M_PI * i / 100));
    return d;
}

// 1/λ for the largest λ with λ·(m, n) on the ellipse: (λm/A)² + ((λn − C)/B)² = 1.
double utilisationOnEllipse(double m, double n)
{
    const double a = m * m / (A * A) + n * n / (B * B), b = -2 * n * C / (B * B), c = C * C / (B * B) - 1;
    return 2 * a / (-b + std::sqrt(b * b - 4 * a * c));
}

DiagramPoint point(double m, double n) { return {n, m, {}, utilisationOnEllipse(m, n)}; }

QImage image(QWidget& w) { return w.grab().toImage(); }

// The pixel that holds a point: pixel (i, j) covers [i, i + 1) × [j, j + 1).
QPoint pixel(QPointF p) { return {static_cast<int>(std::floor(p.x())), static_cast<int>(std::floor(p.y()))}; }

bool curveBlue(QRgb c) { return qBlue(c) > qRed(c) + 60; }

// The dark grey cross where a ray meets the curve, not the curve's blue nor a ray's colour.
bool crossMark(QRgb c)
{
    return qGray(c) < 140 && std::abs(qRed(c) - qBlue(c)) < 40 && std::abs(qRed(c) - qGreen(c)) < 40;
}

} // namespace

TEST(InteractionPlot, TheOriginAndTheCurveLandWhereToScreenSaysAtAnySize)
{
    InteractionPlot plot;
    plot.setData(ellipse());
    for (QSize size : {QSize(760, 560), QSize(400, 700), QSize(1300, 300), QSize(520, 480)}) {
        SCOPED_TRACE(size.width());
        plot.resize(size);
        const QImage im = image(plot);
        const QPointF o = plot.toScreen(0, 0);
        EXPECT_LT(qGray(im.pixel(pixel(o))), 140) << "the axes cross at the origin";
        // Compression up, positive moment to the right.
        EXPECT_LT(plot.toScreen(0, 1000).y(), o.y());
        EXPECT_GT(plot.toScreen(1000, 0).x(), o.x());
        for (QPointF c : {QPointF(A, C), QPointF(-A, C), QPointF(0, C + B), QPointF(0, C - B)})
            EXPECT_TRUE(curveBlue(im.pixel(pixel(plot.toScreen(c.x(), c.y()))))) << c.x() << " " << c.y();
        // The curve uses the space, inside the frame.
        const QRectF area = plot.plotArea();
        const QRectF drawn(plot.toScreen(-A, C + B), plot.toScreen(A, C - B));
        EXPECT_TRUE(area.adjusted(-0.01, -0.01, 0.01, 0.01).contains(drawn));
        EXPECT_GT(drawn.width(), 0.75 * area.width());
        EXPECT_GT(drawn.height(), 0.75 * area.height());
        EXPECT_TRUE(QRectF(plot.rect()).contains(area));
    }
}

TEST(InteractionPlot, APointInsideIsGreenOnTheCurveGreenOutsideRed)
{
    struct Case {
        DiagramPoint p;
        QColor colour;
    };
    const DiagramPoint onCurve = {C + B * std::cos(0.7), A * std::sin(0.7), {}, 1.0};
    const Case cases[] = {
        {point(5000, 400), QColor(0, 140, 60)},
        {onCurve, QColor(0, 140, 60)},
        {point(20000, 400), QColor(205, 30, 30)},
        {point(-9000, -300), QColor(205, 30, 30)},
        {{800, 3000, {}, kNaN}, QColor(128, 128, 128)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.p.m);
        InteractionPlot plot;
        plot.resize(700, 520);
        DiagramData d = ellipse();
        d.points = {c.p};
        plot.setData(d);
        const QImage im = image(plot);
        const QColor at = im.pixelColor(pixel(plot.toScreen(c.p.m, c.p.n)));
        EXPECT_LE(std::abs(at.red() - c.colour.red()) + std::abs(at.green() - c.colour.green())
                      + std::abs(at.blue() - c.colour.blue()), 6) << at.name().toStdString();
        // The ray ends at the curve, whichever side of it the point is: λ·(M, N).
        if (!std::isnan(c.p.utilisation) && c.p.utilisation != 1) {
            const QPointF edge = plot.toScreen(c.p.m / c.p.utilisation, c.p.n / c.p.utilisation);
            EXPECT_TRUE(crossMark(im.pixel(pixel(edge)))) << "the mark where the ray meets the curve";
        }
    }
}

TEST(InteractionPlot, AxisTitlesCarryTheUnitsAndTicksAreRoundNumbersOverTheCurve)
{
    struct Case {
        const char *force, *moment, *nTitle, *mTitle;
        double scale; // of the ellipse, to change the size of the numbers
    };
    const Case cases[] = {
        {"KN", "KN.cm", "N (KN)", "M (KN.cm)", 1},
        {"Tf", "Tf.m", "N (Tf)", "M (Tf.m)", 1e-3},
        {"kgf", "kgf.cm", "N (kgf)", "M (kgf.cm)", 100},
        {"", " ", "N", "M", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.mTitle);
        DiagramData d = ellipse();
        for (QPointF& p : d.curve)
            p *= c.scale;
        d.forceUnit = QString::fromUtf8(c.force);
        d.momentUnit = QString::fromUtf8(c.moment);
        InteractionPlot plot;
        plot.resize(760, 560);
        plot.setData(d);
        EXPECT_EQ(plot.forceTitle(), QString::fromUtf8(c.nTitle));
        EXPECT_EQ(plot.momentTitle(), QString::fromUtf8(c.mTitle));
        // Round numbers over the whole curve, the origin among them.
        for (const auto& [ticks, lo, hi] : {std::tuple(plot.momentTicks(), -A * c.scale, A * c.scale),
                                            std::tuple(plot.forceTicks(), (C - B) * c.scale, (C + B) * c.scale)}) {
            ASSERT_GE(ticks.size(), 3u);
            const double gap = ticks[1] - ticks[0];
            EXPECT_TRUE(ticks.front() <= lo + gap && ticks.front() > lo - gap) << ticks.front();
            EXPECT_TRUE(ticks.back() >= hi - gap && ticks.back() < hi + gap) << ticks.back();
            const double mantissa = gap / std::pow(10.0, std::floor(std::log10(gap)));
            EXPECT_TRUE(std::abs(mantissa - 1) < 1e-9 || std::abs(mantissa - 2) < 1e-9
                        || std::abs(mantissa - 2.5) < 1e-9 || std::abs(mantissa - 5) < 1e-9)
                << gap;
            EXPECT_EQ(std::count(ticks.begin(), ticks.end(), 0.0), 1) << "the origin is a tick";
        }
    }
}

TEST(InteractionPlot, DataItCannotDrawShowsATextAndNothingBreaks)
{
    struct Case {
        const char* what;
        std::vector<QPointF> curve;
        bool drawn;
    };
    const Case cases[] = {
        {"nothing", {}, false},
        {"one point", {{10, 10}}, false},
        {"two points", {{10, 10}, {-10, 20}}, false},
        {"all NaN", {{kNaN, 1}, {2, kNaN}, {kNaN, kNaN}}, false},
        {"infinite", {{kInf, 0}, {0, 10}, {-10, 0}, {0, -kInf}}, false},
        {"beyond any column", {{1e300, 0}, {0, 10}, {-1e300, 0}}, false},
        {"NaN among good points", {{10, 0}, {kNaN, 5}, {0, 10}, {-10, 0}}, true},
        {"all at one place", {{5, 5}, {5, 5}, {5, 5}}, true},
        {"flat along N", {{-10, 0}, {0, 0}, {10, 0}}, true},
        {"tiny", {{1e-200, 0}, {0, 1e-200}, {-1e-200, 0}}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        DiagramData d;
        d.curve = c.curve;
        d.points = {{kNaN, 5, {}, 0.5}, {1, 1, QStringLiteral("C2"), kInf, true}, {2, 2, {}, kNaN}};
        d.mRd = kNaN;
        InteractionPlot plot;
        plot.resize(400, 300);
        plot.setData(d);
        EXPECT_EQ(plot.hasCurve(), c.drawn);
        EXPECT_EQ(plot.shownMessage().isEmpty(), c.drawn);
        const QPointF o = plot.toScreen(0, 0);
        EXPECT_TRUE(std::isfinite(o.x()) && std::isfinite(o.y()));
        for (QSize size : {QSize(400, 300), QSize(1, 1), QSize(30, 700)}) {
            plot.resize(size);
            (void)image(plot);
        }
        if (!c.drawn) { // the text in its place, and no curve
            plot.resize(400, 300);
            const QImage im = image(plot);
            int ink = 0, blue = 0;
            for (int i = 0; i < im.width() * im.height(); ++i) {
                ink += im.pixel(i % im.width(), i / im.width()) != qRgb(255, 255, 255);
                blue += curveBlue(im.pixel(i % im.width(), i / im.width()));
            }
            EXPECT_GT(ink, 50);
            EXPECT_EQ(blue, 0);
        }
    }
    InteractionPlot plot;
    plot.setData(ellipse());
    plot.clear();
    EXPECT_FALSE(plot.hasCurve());
    EXPECT_EQ(plot.shownMessage(), plot.placeholderText());
}

namespace {

struct Shown {
    ui::InteractionDialog dialog;
    QLabel* label(const char* name) { return dialog.findChild<QLabel*>(QString::fromLatin1(name)); }
    QColor colour(const char* name) { return label(name)->palette().color(QPalette::WindowText); }
};

} // namespace

TEST(InteractionDialog, UtilisationWithOneDecimalAndTheVerdictAtExactly100)
{
    struct Case {
        double u;
        const char *text, *verdict;
        QColor colour;
    };
    const QColor green(0, 140, 60), red(205, 30, 30), grey(128, 128, 128);
    const Case cases[] = {
        {0, "0.0 %", "resiste", green},
        {0.87449, "87.4 %", "resiste", green},
        {1.0, "100.0 %", "resiste", green},
        {std::nextafter(1.0, 2.0), "> 100.0 %", "NÃO RESISTE", red}, // outside, though it rounds to 100.0
        {1.0006, "100.1 %", "NÃO RESISTE", red},
        {12.5, "1250.0 %", "NÃO RESISTE", red},
        {kInf, "∞", "NÃO RESISTE", red},
        {kNaN, "—", "", grey},
        {-0.5, "—", "", grey},
    };
    Shown s;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.u);
        DiagramData d = ellipse();
        d.points = {{400, 10000, {}, c.u}};
        s.dialog.mostra(d);
        EXPECT_EQ(s.label("lblUtilizacao")->text(), QStringLiteral("Utilização: ") + QString::fromUtf8(c.text));
        EXPECT_EQ(s.label("lblVeredito")->text(), QString::fromUtf8(c.verdict));
        EXPECT_EQ(s.colour("lblUtilizacao"), c.colour);
        EXPECT_EQ(s.colour("lblVeredito"), c.colour);
    }
    s.dialog.mostra(ellipse(), 0.5); // the utilisation given apart, with no point
    EXPECT_EQ(s.label("lblUtilizacao")->text(), QStringLiteral("Utilização: 50.0 %"));
    EXPECT_EQ(s.label("lblMRd")->text(), QStringLiteral("M_Rd: —"));
}

TEST(InteractionDialog, AColumn20x50InKNShowsItsFiguresAndStaysOpenForTheNext)
{
    // 2×4 bars of 1.25 cm², d' 4.125, fck 200 kgf/cm², γc 1.5, CA-50A: the engine's
    // curve in kgf and kgf·cm, shown in KN and KN.cm.
    const auto section = engine::rectangularColumn(20, 50, 4.125, 2, 4, 1.25, engine::designConcrete(200, 1.5),
                                                   engine::designSteel(engine::SteelGrade::CA50A, 1.15, 2100000));
    const auto curve = engine::interactionCurve(section);
    const auto shows = [&](double nKN, double mKNcm) {
        DiagramData d;
        d.forceUnit = QStringLiteral("KN");
        d.momentUnit = QStringLiteral("KN.cm");
        for (const auto& p : curve.points)
            d.curve.emplace_back(p.m / 100, p.n / 100);
        d.nRdMax = curve.nRdMax / 100;
        d.nRdMin = curve.nRdMin / 100;
        const double u = engine::utilisation(section, 100 * nKN, 100 * mKNcm).ratio;
        d.points = {{nKN, mKNcm, {}, u, true}};
        if (const auto c = engine::momentCapacity(section, 100 * nKN))
            d.mRd = c->mRd / 100;
        return d;
    };

    Shown s;
    s.dialog.show();
    const DiagramData d = shows(400, 10000);
    s.dialog.mostra(d);
    QApplication::processEvents();
    EXPECT_FALSE(s.dialog.isModal());
    ASSERT_TRUE(d.mRd);
    const auto text = [](double x) { return QString::fromStdString(Format(x, "##0.00")); };
    EXPECT_EQ(s.label("lblMRd")->text(), QStringLiteral("M_Rd para N_Sd = 400.00 KN:\n%1 KN.cm").arg(text(*d.mRd)));
    EXPECT_EQ(s.label("lblNRdMax")->text(), QStringLiteral("N_Rd,máx = %1 KN").arg(text(d.nRdMax)));
    // The ray's end sits on the engine's own curve.
    const DiagramPoint& p = d.points[0];
    const QPointF edge = s.dialog.grafico()->toScreen(p.m / p.utilisation, p.n / p.utilisation);
    EXPECT_TRUE(crossMark(image(*s.dialog.grafico()).pixel(pixel(edge))));
    if (const QByteArray to = qgetenv("PILARIX_DIAGRAMA_PNG"); !to.isEmpty())
        s.dialog.grab().save(QString::fromLocal8Bit(to));

    // The next calculation replaces it: a force beyond N_Rd,máx has no M_Rd.
    s.dialog.mostra(shows(2000, 1000));
    EXPECT_EQ(s.label("lblMRd")->text(), QStringLiteral("N_Sd fora de [N_Rd,mín, N_Rd,máx]: não há M_Rd"));
    EXPECT_EQ(s.label("lblVeredito")->text(), QStringLiteral("NÃO RESISTE"));
    s.dialog.limpa();
    EXPECT_FALSE(s.dialog.grafico()->hasCurve());
    EXPECT_EQ(s.label("lblUtilizacao")->text(), QStringLiteral("Utilização: —"));

    s.dialog.findChild<QAbstractButton*>(QStringLiteral("cmdFechar"))->click();
    EXPECT_FALSE(s.dialog.isVisible());
}
