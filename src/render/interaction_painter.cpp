#include "render/interaction_painter.h"

#include "render/chart_placement.h"

#include "base/number_text.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace pilarix::render {

namespace {

using namespace placement;

// Beyond this the spans and paddings of an axis could overflow; no column gets near.
constexpr double kLargest = 1e250;

const QColor kCarried(0, 140, 60);
const QColor kNotCarried(205, 30, 30);
const QColor kUnknown(128, 128, 128);
const QColor kCurveLine(30, 90, 170);
const QColor kCurveFill(60, 120, 200, 45);

// In pixels of 1/96 in, times the style's unit.
constexpr double kMarker = 4.5, kGoverningMarker = 6.5, kRing = 4, kDiamond = 4.5, kCross = 4, kGap = 4;

bool finite(double x) { return std::isfinite(x); }

QString qs(const std::string& s) { return QString::fromStdString(s); }

QString caseName(const ChartCase& c)
{
    const QString n = qs(c.name).trimmed();
    return n.isEmpty() ? QStringLiteral("Sd") : n;
}

} // namespace

int governingCase(const std::vector<ChartCase>& cases)
{
    for (std::size_t i = 0; i < cases.size(); ++i)
        if (cases[i].governing)
            return static_cast<int>(i);
    int best = -1;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const double u = cases[i].utilisation;
        if (best < 0)
            best = static_cast<int>(i);
        else if (const double b = cases[static_cast<std::size_t>(best)].utilisation;
                 (std::isnan(b) && !std::isnan(u)) || u > b)
            best = static_cast<int>(i);
    }
    return best;
}

bool utilisationKnown(double utilisation) { return !std::isnan(utilisation) && utilisation >= 0; }

QColor utilisationColour(double utilisation)
{
    if (!utilisationKnown(utilisation))
        return kUnknown;
    return utilisation <= 1 ? kCarried : kNotCarried;
}

QString utilisationText(double utilisation)
{
    if (!utilisationKnown(utilisation))
        return QStringLiteral("—");
    if (std::isinf(utilisation))
        return QStringLiteral("∞");
    const QString text = QString::fromStdString(Format(100 * utilisation, "##0.0"));
    // 100.04 % rounds to the text of the boundary itself, but the point is outside.
    if (utilisation > 1 && text == QStringLiteral("100.0"))
        return QStringLiteral("> 100.0 %");
    return text + QStringLiteral(" %");
}

QString axisTitle(const QString& letter, const QString& unit)
{
    return unit.trimmed().isEmpty() ? letter : QStringLiteral("%1 (%2)").arg(letter, unit.trimmed());
}

QPointF ChartLayout::toScreen(double m, double n) const
{
    return {area.left() + (m - mLo) / (mHi - mLo) * area.width(),
            area.bottom() - (n - nLo) / (nHi - nLo) * area.height()};
}

ChartLayout layoutChart(const InteractionChart& chart, const QRectF& bounds, const ChartStyle& style,
                        QPaintDevice* device)
{
    ChartLayout out;
    out.bounds = bounds;
    out.governing = governingCase(chart.cases);
    const double u = style.unit;

    // The origin is always in view: the axes cross there and the ray starts there.
    Extent e; // M across, N up
    const auto take = [&](double m, double n) { return e.take(m, n); };
    std::size_t finiteCurve = 0;
    for (const auto& [n, m] : chart.curve)
        finiteCurve += take(m, n) ? 1 : 0;
    for (const auto& c : chart.cases)
        take(c.m, c.n);
    if (out.governing >= 0 && chart.mRd)
        take(*chart.mRd, chart.cases[static_cast<std::size_t>(out.governing)].n);
    out.drawable = finiteCurve >= 3 && e.largest() <= kLargest;
    if (!out.drawable)
        return out;

    const double mMin = e.xMin, mMax = e.xMax, nMin = e.yMin, nMax = e.yMax;
    const QFontMetricsF fm(style.font, device), bm(bold(style.font), device);
    const double line = fm.height();
    // Above: the title of N. Below: the values of M and its title. Left: the values of N.
    const double top = 1.6 * line + 6 * u, bottom = 2.4 * line + 10 * u;
    const double height = std::max(bounds.height() - top - bottom, 1.0);
    Axis n = niceAxis(nMin, nMax, height, 3 * line);
    const double left = std::min(widestLabel(fm, n) + 14 * u, 0.35 * bounds.width());
    const double right = 12 * u + fm.horizontalAdvance(QStringLiteral("-0000")) / 2;
    const double width = std::max(bounds.width() - left - right, 1.0);

    out.area = QRectF(bounds.left() + left, bounds.top() + top, width, height);
    // Two units, two scales; only a frame far wider or taller than a sheet is narrowed,
    // so that the curve does not become a line.
    constexpr double kWidest = 2.2, kTallest = 1 / 1.6;
    QRectF& a = out.area;
    if (a.width() > kWidest * a.height()) {
        const double w = kWidest * a.height();
        a.adjust((a.width() - w) / 2, 0, -(a.width() - w) / 2, 0);
    } else if (a.width() < kTallest * a.height()) {
        const double h = a.width() / kTallest;
        a.adjust(0, (a.height() - h) / 2, 0, -(a.height() - h) / 2);
        n = niceAxis(nMin, nMax, a.height(), 3 * line);
    }

    // Values of M side by side need room in the frame as it stands.
    const Axis m = axisAcross(mMin, mMax, a.width(), fm, u);
    out.mLo = m.lo;
    out.mHi = m.hi;
    out.mStep = m.step;
    out.mTicks = m.ticks;
    out.nLo = n.lo;
    out.nHi = n.hi;
    out.nStep = n.step;
    out.nTicks = n.ticks;

    for (const auto& [cn, cm] : chart.curve)
        if (finite(cn) && finite(cm))
            out.curve.push_back(out.toScreen(cm, cn));

    Obstacles obstacles;
    obstacles.curve = out.curve;
    const QPointF o = out.toScreen(0, 0);
    obstacles.soft.push_back({QPointF(a.left(), o.y()), QPointF(a.right(), o.y())});
    obstacles.soft.push_back({QPointF(o.x(), a.top()), QPointF(o.x(), a.bottom())});

    const auto place = [&](ChartLabel l) {
        obstacles.hard.push_back(l.rect);
        out.labels.push_back(std::move(l));
    };

    // The values at the edges of the frame, clear of the curve.
    placeTicks(Axis{out.mLo, out.mHi, out.mStep, out.mTicks}, Axis{out.nLo, out.nHi, out.nStep, out.nTicks}, fm, a, u,
               obstacles, [&](double m, double n) { return out.toScreen(m, n); },
               [&](const QString& t, const QRectF& at, bool alongM) {
                   place({alongM ? ChartLabel::Kind::MomentTick : ChartLabel::Kind::ForceTick, t, at});
               });

    // N above its axis, M at the right end under its values.
    {
        const QString t = axisTitle(QStringLiteral("N"), qs(chart.forceUnit));
        const QRectF r = textRect(bm, t);
        const double x = std::clamp(o.x() - r.width() / 2, bounds.left(),
                                    std::max(bounds.left(), bounds.right() - r.width()));
        QRectF at(x, a.top() - 1.5 * line - 2 * u, r.width(), r.height());
        if (obstacles.blocks(at, false)) // beside the values of N rather than over one
            at.moveLeft(std::max(bounds.left(), a.left() - r.width() - 8 * u));
        place({ChartLabel::Kind::ForceTitle, t, at, -1, true});
    }
    {
        const QString t = axisTitle(QStringLiteral("M"), qs(chart.momentUnit));
        const QRectF r = textRect(bm, t);
        const QRectF at(a.right() - r.width(), a.bottom() + 4 * u + line + 2 * u, r.width(), r.height());
        place({ChartLabel::Kind::MomentTitle, t, at, -1, true});
    }

    // Every marker is kept clear of every text.
    for (std::size_t i = 0; i < chart.cases.size(); ++i) {
        const ChartCase& c = chart.cases[i];
        if (!finite(c.m) || !finite(c.n))
            continue;
        const bool main = static_cast<int>(i) == out.governing;
        const double r = (main ? kGoverningMarker + kRing : kMarker) * u;
        const ChartMarker mk{static_cast<int>(i), out.toScreen(c.m, c.n), r};
        out.markers.push_back(mk);
        obstacles.hard.push_back(QRectF(mk.centre - QPointF(r, r), QSizeF(2 * r, 2 * r)));
    }
    std::optional<QPointF> resistance;
    if (out.governing >= 0 && chart.mRd && finite(*chart.mRd)) {
        const ChartCase& g = chart.cases[static_cast<std::size_t>(out.governing)];
        if (finite(g.n)) {
            // On the side of the point's moment: the section is symmetric, the capacity the same.
            resistance = out.toScreen((g.m < 0 ? -1 : 1) * std::abs(*chart.mRd), g.n);
            const double r = kDiamond * u;
            obstacles.hard.push_back(QRectF(*resistance - QPointF(r, r), QSizeF(2 * r, 2 * r)));
            obstacles.soft.push_back({QPointF(o.x(), resistance->y()), *resistance});
        }
    }
    if (out.governing >= 0) {
        const ChartCase& g = chart.cases[static_cast<std::size_t>(out.governing)];
        if (finite(g.m) && finite(g.n))
            obstacles.soft.push_back({o, out.toScreen(g.m, g.n)});
    }

    // The names: the governing case first, then the most used, each at the first
    // free place about its point.
    std::vector<int> order;
    for (const ChartMarker& mk : out.markers)
        order.push_back(mk.caseIndex);
    std::stable_sort(order.begin(), order.end(), [&](int x, int y) {
        if ((x == out.governing) != (y == out.governing))
            return x == out.governing;
        const double ux = chart.cases[static_cast<std::size_t>(x)].utilisation;
        const double uy = chart.cases[static_cast<std::size_t>(y)].utilisation;
        return ux > uy;
    });
    const bool several = chart.cases.size() > 1;
    for (int i : order) {
        const ChartCase& c = chart.cases[static_cast<std::size_t>(i)];
        const ChartMarker& mk = *std::find_if(out.markers.begin(), out.markers.end(),
                                              [i](const ChartMarker& x) { return x.caseIndex == i; });
        const QString name = several ? caseName(c) : QStringLiteral("Sd");
        std::vector<QString> texts{name + QStringLiteral(": ") + utilisationText(c.utilisation), name};
        if (name.size() > 6)
            texts.push_back(name.left(5) + QStringLiteral("…"));
        const bool main = i == out.governing;
        const QFontMetricsF& f = main ? bm : fm;
        if (const auto found = firstFree(texts, f, mk.centre, mk.radius, kGap * u, bounds, obstacles))
            place({ChartLabel::Kind::Case, texts[static_cast<std::size_t>(found->second)], found->first, i, main,
                   found->second > 0});
        else
            out.unlabelledCases.push_back(i);
    }
    if (resistance) {
        const std::vector<QString> texts{QStringLiteral("M_Rd")};
        // Beside its mark or not at all: farther off it would name another point. A
        // governing point on the curve hides the mark, and its name says enough.
        if (const auto found = firstFree(texts, fm, *resistance, kDiamond * u, kGap * u, bounds, obstacles, true))
            place({ChartLabel::Kind::Resistance, texts[0], found->first});
    }
    return out;
}

void paintChart(QPainter& p, const InteractionChart& chart, const ChartLayout& l, const ChartStyle& style)
{
    if (!l.drawable)
        return;
    const double u = style.unit;
    const QRectF& a = l.area;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    // The grid, then the axes crossing at the origin, ticked at every round number.
    paintGridAndAxes(p, a, l.mTicks, l.nTicks, u, [&l](double m, double n) { return l.toScreen(m, n); });
    const QPointF o = l.toScreen(0, 0);
    const double tick = 4 * u;
    for (double v : l.mTicks) {
        const double x = l.toScreen(v, 0).x();
        p.drawLine(QPointF(x, o.y() - tick), QPointF(x, o.y() + tick));
    }
    for (double v : l.nTicks) {
        const double y = l.toScreen(0, v).y();
        p.drawLine(QPointF(o.x() - tick, y), QPointF(o.x() + tick, y));
    }

    // The curve, closed.
    p.setPen(QPen(kCurveLine, 1.8 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(kCurveFill);
    p.drawPolygon(QPolygonF(QList<QPointF>(l.curve.begin(), l.curve.end())));
    p.setBrush(Qt::NoBrush);

    const ChartCase* g = l.governing >= 0 ? &chart.cases[static_cast<std::size_t>(l.governing)] : nullptr;
    // M_Rd under the governing axial force.
    if (g && chart.mRd && finite(*chart.mRd) && finite(g->n)) {
        const QPointF at = l.toScreen((g->m < 0 ? -1 : 1) * std::abs(*chart.mRd), g->n);
        p.setPen(QPen(kAxisColour, 1 * u, Qt::DotLine));
        p.drawLine(QPointF(o.x(), at.y()), at);
        p.setPen(QPen(kAxisColour, 1.3 * u));
        p.setBrush(Qt::white);
        const double r = kDiamond * u;
        p.drawPolygon(QPolygonF{at + QPointF(0, -r), at + QPointF(r, 0), at + QPointF(0, r), at + QPointF(-r, 0)});
        p.setBrush(Qt::NoBrush);
    }
    // The ray of the governing point, out to the farther of the point and the curve.
    if (g && finite(g->m) && finite(g->n) && g->utilisation > 0 && finite(g->utilisation) && (g->m != 0 || g->n != 0)) {
        const QPointF point = l.toScreen(g->m, g->n);
        const QPointF edge = l.toScreen(g->m / g->utilisation, g->n / g->utilisation);
        // A utilisation that does not belong to this curve could put the edge anywhere;
        // the ray then stops at the point.
        const bool edgeShown = a.adjusted(-40 * u, -40 * u, 40 * u, 40 * u).contains(edge);
        p.setPen(QPen(utilisationColour(g->utilisation).lighter(120), 1.3 * u, Qt::DashLine));
        p.drawLine(o, g->utilisation <= 1 && edgeShown ? edge : point);
        if (edgeShown) {
            p.setPen(QPen(kAxisColour, 1.6 * u));
            const double c = kCross * u;
            p.drawLine(edge + QPointF(-c, -c), edge + QPointF(c, c));
            p.drawLine(edge + QPointF(-c, c), edge + QPointF(c, -c));
        }
    }

    // The markers, the governing one last so that it is on top.
    std::vector<ChartMarker> markers = l.markers;
    std::stable_partition(markers.begin(), markers.end(),
                          [&](const ChartMarker& m) { return m.caseIndex != l.governing; });
    for (const ChartMarker& m : markers) {
        const ChartCase& c = chart.cases[static_cast<std::size_t>(m.caseIndex)];
        const QColor colour = utilisationColour(c.utilisation);
        const bool main = m.caseIndex == l.governing;
        paintMarker(p, m.centre, colour, (main ? kGoverningMarker : kMarker) * u, main, kRing * u, u);
    }

    // Every text where the layout put it.
    for (const ChartLabel& t : l.labels) {
        p.setFont(t.bold ? bold(style.font) : style.font);
        QColor colour = kAxisColour;
        if (t.kind == ChartLabel::Kind::MomentTitle || t.kind == ChartLabel::Kind::ForceTitle)
            colour = Qt::black;
        else if (t.kind == ChartLabel::Kind::Case)
            colour = utilisationColour(chart.cases[static_cast<std::size_t>(t.caseIndex)].utilisation).darker(130);
        p.setPen(colour);
        const Qt::Alignment align = t.kind == ChartLabel::Kind::ForceTick ? Qt::AlignRight | Qt::AlignVCenter
                                                                          : Qt::AlignHCenter | Qt::AlignVCenter;
        p.drawText(t.rect, align, t.text);
    }
    p.restore();
}

} // namespace pilarix::render
