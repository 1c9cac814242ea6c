#include "render/section_painter.h"

#include "export/drawing_layout.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>

namespace pilarix::render {

namespace {

struct Palette {
    QColor concrete, stirrup, bars, dimensions, texts;
};

const Palette kNormal{Qt::black, QColor(139, 0, 0), Qt::black, QColor(128, 128, 128), Qt::black};
const Palette kStale{QColor(185, 185, 185), QColor(200, 175, 175), QColor(185, 185, 185), QColor(205, 205, 205),
                     QColor(185, 185, 185)};

// Texts are shaped at this size and scaled to theirs, so that any height, however
// small or large, draws the same glyphs.
constexpr int kReferencePixels = 100;

// Made for each text, not kept: a font must not outlive the application's font
// cache, and QFont's own cache makes a new one cheap.
QFont referenceFont()
{
    QFont f(QStringLiteral("sans-serif")); // the generic name an SVG reader knows too
    f.setStyleHint(QFont::SansSerif);
    f.setPixelSize(kReferencePixels);
    return f;
}

QPolygonF devicePolygon(const engine::Polyline& line, const DrawingView& v)
{
    QPolygonF poly;
    poly.reserve(static_cast<qsizetype>(line.points.size()));
    for (const engine::Point& p : line.points)
        poly << v.toDevice(p);
    return poly;
}

void drawPolyline(QPainter& p, const engine::Polyline& line, const DrawingView& v)
{
    if (line.points.size() < 2)
        return;
    const QPolygonF poly = devicePolygon(line, v);
    if (line.closed)
        p.drawPolygon(poly);
    else
        p.drawPolyline(poly);
}

// A line of text from `base` (the start of its baseline, or its middle when
// centred), turned `degrees` counter-clockwise, `height` cm tall.
void drawText(QPainter& p, const DrawingView& v, engine::Point base, double degrees, double height, bool centred,
              const std::string& utf8)
{
    const double pixels = height * v.scale;
    if (!(pixels >= 0.5) || utf8.empty())
        return; // nothing a reader could see
    const QString text = QString::fromStdString(utf8);
    const double k = pixels / kReferencePixels;
    const QFont font = referenceFont();
    const double width = QFontMetricsF(font).horizontalAdvance(text) * k;
    const double room = exporting::textAllowance(utf8, height) * v.scale;
    const double squeeze = width > room && width > 0 ? room / width : 1.0;

    p.save();
    p.translate(v.toDevice(base));
    p.rotate(-degrees);
    if (centred)
        p.translate(-width * squeeze / 2, 0);
    p.scale(k * squeeze, k);
    p.setFont(font);
    p.drawText(QPointF(0, 0), text);
    p.restore();
}

} // namespace

DrawingView fitView(const engine::SectionGeometry& g, const QRectF& frame, double margin)
{
    const exporting::Extent e = exporting::drawingExtent(g);
    const double w = std::max(e.width(), 1e-6), h = std::max(e.height(), 1e-6);
    // A frame smaller than its margins still shows the drawing, a pixel or so.
    const double roomX = std::max(frame.width() - 2 * margin, 1.0), roomY = std::max(frame.height() - 2 * margin, 1.0);
    const double scale = std::min(roomX / w, roomY / h);
    DrawingView v;
    v.scale = scale;
    const QPointF centre = frame.center();
    v.origin = {centre.x() - (e.minX + e.maxX) / 2 * scale, centre.y() + (e.minY + e.maxY) / 2 * scale};
    return v;
}

DrawingView placedView(const engine::SectionGeometry& g, double scale, double margin)
{
    const exporting::Extent e = exporting::drawingExtent(g);
    DrawingView v;
    v.scale = scale;
    v.origin = {margin - e.minX * scale, margin + e.maxY * scale};
    return v;
}

void paintSection(QPainter& p, const engine::SectionGeometry& g, const DrawingView& v, const PaintStyle& style)
{
    const Palette& c = style.stale ? kStale : kNormal;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    p.setBrush(Qt::NoBrush);

    QPen pen(c.concrete, 2.0);
    pen.setJoinStyle(Qt::MiterJoin);
    p.setPen(pen);
    drawPolyline(p, g.outline, v);

    pen.setColor(c.stirrup);
    pen.setWidthF(1.25);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    p.setPen(pen);
    drawPolyline(p, g.stirrupOuter, v);
    drawPolyline(p, g.stirrupInner, v);
    for (const auto& hook : g.stirrupHooks)
        drawPolyline(p, hook, v);
    for (const auto& tie : g.ties)
        drawPolyline(p, tie, v);

    // The bars on top of the stirrup they bear on, at their real diameter.
    p.setPen(Qt::NoPen);
    p.setBrush(c.bars);
    for (const auto& bar : g.bars) {
        const double r = bar.diameter / 2 * v.scale;
        p.drawEllipse(v.toDevice(bar.centre), r, r);
    }
    p.setBrush(Qt::NoBrush);

    pen = QPen(c.dimensions, 1.0);
    p.setPen(pen);
    for (const auto& d : g.dimensions) {
        const exporting::DimensionFigure f = exporting::dimensionFigure(d);
        for (const exporting::Segment& s : f.lines)
            p.drawLine(v.toDevice(s.a), v.toDevice(s.b));
        drawText(p, v, f.textBase, f.textAngle, f.textHeight, true, f.text);
    }

    p.setPen(c.texts);
    for (const auto& l : g.labels)
        drawText(p, v, l.position, 0, l.height, false, l.text);
    p.restore();
}

} // namespace pilarix::render
