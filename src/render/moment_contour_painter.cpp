#include "render/moment_contour_painter.h"

#include "base/number_text.h"
#include "render/chart_placement.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace pilarix::render {

namespace {

using namespace placement;

constexpr double kLargest = 1e250;
constexpr double kPi = 3.14159265358979323846;

const QColor kContourLine(30, 90, 170);
const QColor kContourFill(60, 120, 200, 45);

// In pixels of 1/96 in, times the style's unit.
constexpr double kMarker = 4.0, kGoverningMarker = 6.0, kRing = 4, kGap = 4;
constexpr int kEllipseSegments = 96;

bool finite(double x) { return std::isfinite(x); }
QString qs(const std::string& s) { return QString::fromStdString(s); }

QColor envelopeColour(const report::MomentContour& c)
{
    return utilisationColour(c.inside ? 1 : 2);
}

QString marginText(double margin) { return QString::fromStdString(Format(margin, "##0.00")); }

} // namespace

int mostUsedPoint(const report::MomentContour& c)
{
    int best = -1;
    for (std::size_t i = 0; i < c.points.size(); ++i) {
        const double u = c.points[i].utilisation;
        if (best < 0)
            best = static_cast<int>(i);
        else if (const double b = c.points[static_cast<std::size_t>(best)].utilisation;
                 (std::isnan(b) && !std::isnan(u)) || u > b)
            best = static_cast<int>(i);
    }
    return best;
}

QString pointName(const report::MomentContour& c, const report::ContourPoint& p)
{
    const QString section = qs(p.section);
    const QString name = qs(p.caseName).trimmed();
    return c.several && !name.isEmpty() ? name + QLatin1Char(' ') + section : section;
}

QPointF ContourLayout::toScreen(double mx, double my) const
{
    return {area.left() + (mx - xLo) / (xHi - xLo) * area.width(),
            area.bottom() - (my - yLo) / (yHi - yLo) * area.height()};
}

ContourLayout layoutContour(const report::MomentContour& c, const QRectF& bounds, const ChartStyle& style,
                            QPaintDevice* device)
{
    ContourLayout out;
    out.bounds = bounds;
    out.governing = mostUsedPoint(c);
    const double u = style.unit;

    Extent e;
    const auto take = [&](double x, double y) { return e.take(x, y); };
    std::size_t finiteContour = 0;
    for (const auto& [x, y] : c.contour)
        finiteContour += take(x, y) ? 1 : 0;
    for (const auto& p : c.points)
        take(p.mx, p.my);
    const bool withEllipse = c.semiAxisX > 0 && c.semiAxisY > 0 && finite(c.semiAxisX) && finite(c.semiAxisY);
    if (withEllipse) {
        take(-c.semiAxisX, -c.semiAxisY);
        take(c.semiAxisX, c.semiAxisY);
    }
    out.drawable = finiteContour >= 3 && e.largest() <= kLargest;
    if (!out.drawable)
        return out;

    const double xMin = e.xMin, xMax = e.xMax, yMin = e.yMin, yMax = e.yMax;
    const QFontMetricsF fm(style.font, device), bm(bold(style.font), device);
    const double line = fm.height();
    // Above: the caption and the title of My. Below: the values of Mx and its title.
    const double top = 2.8 * line + 8 * u, bottom = 2.4 * line + 10 * u;
    const double height = std::max(bounds.height() - top - bottom, 1.0);
    Axis y = niceAxis(yMin, yMax, height, 3 * line);
    const double left = std::min(widestLabel(fm, y) + 14 * u, 0.35 * bounds.width());
    const double right = 12 * u + fm.horizontalAdvance(QStringLiteral("-00000")) / 2;
    const double width = std::max(bounds.width() - left - right, 1.0);
    Axis x = niceAxis(xMin, xMax, width, 70 * u);

    // One scale for both moments: the frame is narrowed in the direction with room to spare.
    QRectF a(bounds.left() + left, bounds.top() + top, width, height);
    const double scale = std::min(a.width() / (x.hi - x.lo), a.height() / (y.hi - y.lo));
    const double w = scale * (x.hi - x.lo), h = scale * (y.hi - y.lo);
    a.adjust((a.width() - w) / 2, (a.height() - h) / 2, -(a.width() - w) / 2, -(a.height() - h) / 2);
    out.area = a;
    y = niceAxis(yMin, yMax, a.height(), 3 * line);
    // Values of Mx side by side need room.
    x = axisAcross(xMin, xMax, a.width(), fm, u);
    out.xLo = x.lo;
    out.xHi = x.hi;
    out.xStep = x.step;
    out.xTicks = x.ticks;
    out.yLo = y.lo;
    out.yHi = y.hi;
    out.yStep = y.step;
    out.yTicks = y.ticks;

    for (const auto& [cx, cy] : c.contour)
        if (finite(cx) && finite(cy))
            out.contour.push_back(out.toScreen(cx, cy));
    if (withEllipse)
        for (int k = 0; k < kEllipseSegments; ++k) {
            const double t = 2 * kPi * k / kEllipseSegments;
            out.ellipse.push_back(out.toScreen(c.semiAxisX * std::cos(t), c.semiAxisY * std::sin(t)));
        }

    Obstacles obstacles;
    obstacles.curve = out.contour;
    const QPointF o = out.toScreen(0, 0);
    obstacles.soft.push_back({QPointF(a.left(), o.y()), QPointF(a.right(), o.y())});
    obstacles.soft.push_back({QPointF(o.x(), a.top()), QPointF(o.x(), a.bottom())});
    for (std::size_t k = 0; k < out.ellipse.size(); ++k)
        obstacles.soft.push_back({out.ellipse[k], out.ellipse[(k + 1) % out.ellipse.size()]});

    const auto place = [&](ContourLabel l) {
        obstacles.hard.push_back(l.rect);
        out.labels.push_back(std::move(l));
    };

    placeTicks(Axis{out.xLo, out.xHi, out.xStep, out.xTicks}, Axis{out.yLo, out.yHi, out.yStep, out.yTicks}, fm, a, u,
               obstacles, [&](double x, double y) { return out.toScreen(x, y); },
               [&](const QString& t, const QRectF& at, bool alongX) {
                   place({alongX ? ContourLabel::Kind::XTick : ContourLabel::Kind::YTick, t, at});
               });
    {
        // What the contour is of, at the top left.
        const QString t = QStringLiteral("N_Sd = %1 %2")
                              .arg(QString::fromStdString(Format(c.nSd, "##0.00")), qs(c.forceUnit))
                              .trimmed();
        const QRectF r = textRect(fm, t);
        place({ContourLabel::Kind::Caption, t, QRectF(bounds.left(), bounds.top(), r.width(), r.height())});
    }
    {
        const QString t = axisTitle(QStringLiteral("My"), qs(c.momentUnit));
        const QRectF r = textRect(bm, t);
        const double px = std::clamp(o.x() - r.width() / 2, bounds.left(),
                                     std::max(bounds.left(), bounds.right() - r.width()));
        QRectF at(px, a.top() - 1.4 * line - 2 * u, r.width(), r.height());
        if (obstacles.blocks(at, false))
            at.moveLeft(std::min(o.x() + 6 * u, std::max(bounds.left(), bounds.right() - r.width())));
        place({ContourLabel::Kind::YTitle, t, at, -1, true});
    }
    {
        const QString t = axisTitle(QStringLiteral("Mx"), qs(c.momentUnit));
        const QRectF r = textRect(bm, t);
        const QRectF at(std::max(bounds.left(), a.right() - r.width()), a.bottom() + 4 * u + line + 2 * u, r.width(),
                        r.height());
        place({ContourLabel::Kind::XTitle, t, at, -1, true});
    }

    for (std::size_t i = 0; i < c.points.size(); ++i) {
        const auto& p = c.points[i];
        if (!finite(p.mx) || !finite(p.my))
            continue;
        const bool main = static_cast<int>(i) == out.governing;
        const double r = (main ? kGoverningMarker + kRing : kMarker) * u;
        const ContourMarker mk{static_cast<int>(i), out.toScreen(p.mx, p.my), r};
        out.markers.push_back(mk);
        obstacles.hard.push_back(QRectF(mk.centre - QPointF(r, r), QSizeF(2 * r, 2 * r)));
    }

    // The ellipse's margin beside it, where it meets the diagonal of the first quadrant.
    if (withEllipse) {
        const QPointF at = out.toScreen(c.semiAxisX * std::cos(kPi / 4), c.semiAxisY * std::sin(kPi / 4));
        const std::vector<QString> texts{QStringLiteral("envoltória mínima: margem ") + marginText(c.margin),
                                         QStringLiteral("mín.: ") + marginText(c.margin)};
        if (const auto found = firstFree(texts, fm, at, 2 * u, kGap * u, bounds, obstacles))
            place({ContourLabel::Kind::Envelope, texts[static_cast<std::size_t>(found->second)], found->first, -1,
                   false, found->second > 0});
    }

    // The names: the most used point first, then by utilisation.
    std::vector<int> order;
    for (const ContourMarker& mk : out.markers)
        order.push_back(mk.pointIndex);
    std::stable_sort(order.begin(), order.end(), [&](int p, int q) {
        if ((p == out.governing) != (q == out.governing))
            return p == out.governing;
        return c.points[static_cast<std::size_t>(p)].utilisation > c.points[static_cast<std::size_t>(q)].utilisation;
    });
    for (int i : order) {
        const auto& p = c.points[static_cast<std::size_t>(i)];
        const ContourMarker& mk = *std::find_if(out.markers.begin(), out.markers.end(),
                                                [i](const ContourMarker& x) { return x.pointIndex == i; });
        const QString name = pointName(c, p);
        std::vector<QString> texts{name + QStringLiteral(": ") + utilisationText(p.utilisation), name};
        if (name.size() > 6)
            texts.push_back(name.left(5) + QStringLiteral("…"));
        const bool main = i == out.governing;
        if (const auto found = firstFree(texts, main ? bm : fm, mk.centre, mk.radius, kGap * u, bounds, obstacles))
            place({ContourLabel::Kind::Point, texts[static_cast<std::size_t>(found->second)], found->first, i, main,
                   found->second > 0});
        else
            out.unlabelledPoints.push_back(i);
    }
    return out;
}

void paintContour(QPainter& p, const report::MomentContour& c, const ContourLayout& l, const ChartStyle& style)
{
    if (!l.drawable)
        return;
    const double u = style.unit;
    const QRectF& a = l.area;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    paintGridAndAxes(p, a, l.xTicks, l.yTicks, u, [&l](double x, double y) { return l.toScreen(x, y); });

    p.setPen(QPen(kContourLine, 1.8 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(kContourFill);
    p.drawPolygon(QPolygonF(QList<QPointF>(l.contour.begin(), l.contour.end())));
    p.setBrush(Qt::NoBrush);

    if (!l.ellipse.empty()) {
        p.setPen(QPen(envelopeColour(c), 1.5 * u, Qt::DashLine));
        p.drawPolygon(QPolygonF(QList<QPointF>(l.ellipse.begin(), l.ellipse.end())));
    }

    std::vector<ContourMarker> markers = l.markers;
    std::stable_partition(markers.begin(), markers.end(),
                          [&](const ContourMarker& m) { return m.pointIndex != l.governing; });
    for (const ContourMarker& m : markers) {
        const QColor colour = utilisationColour(c.points[static_cast<std::size_t>(m.pointIndex)].utilisation);
        const bool main = m.pointIndex == l.governing;
        paintMarker(p, m.centre, colour, (main ? kGoverningMarker : kMarker) * u, main, kRing * u, u);
    }

    for (const ContourLabel& t : l.labels) {
        p.setFont(t.bold ? bold(style.font) : style.font);
        QColor colour = kAxisColour;
        if (t.kind == ContourLabel::Kind::XTitle || t.kind == ContourLabel::Kind::YTitle
            || t.kind == ContourLabel::Kind::Caption)
            colour = Qt::black;
        else if (t.kind == ContourLabel::Kind::Point)
            colour = utilisationColour(c.points[static_cast<std::size_t>(t.pointIndex)].utilisation).darker(130);
        else if (t.kind == ContourLabel::Kind::Envelope)
            colour = envelopeColour(c).darker(130);
        p.setPen(colour);
        const Qt::Alignment align = t.kind == ContourLabel::Kind::YTick ? Qt::AlignRight | Qt::AlignVCenter
                                    : t.kind == ContourLabel::Kind::Caption ? Qt::AlignLeft | Qt::AlignVCenter
                                                                            : Qt::AlignHCenter | Qt::AlignVCenter;
        p.drawText(t.rect, align, t.text);
    }
    p.restore();
}

} // namespace pilarix::render
