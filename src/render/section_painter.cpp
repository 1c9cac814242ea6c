#include "render/section_painter.h"

#include "export/drawing_layout.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

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
// centred), turned `degrees` counter-clockwise, `pixels` tall on the device and
// squeezed sideways into `room` pixels should the font run wider.
void drawText(QPainter& p, QPointF base, double degrees, double pixels, double room, bool centred,
              const std::string& utf8)
{
    if (!(pixels >= 0.5) || utf8.empty())
        return; // nothing a reader could see
    const QString text = QString::fromStdString(utf8);
    const double k = pixels / kReferencePixels;
    const QFont font = referenceFont();
    const double width = QFontMetricsF(font).horizontalAdvance(text) * k;
    const double squeeze = width > room && width > 0 ? room / width : 1.0;

    p.save();
    p.translate(base);
    p.rotate(-degrees);
    if (centred)
        p.translate(-width * squeeze / 2, 0);
    p.scale(k * squeeze, k);
    p.setFont(font);
    p.drawText(QPointF(0, 0), text);
    p.restore();
}

// Every text of the drawing where it lands on the device.
struct PlacedText {
    QPointF base;
    double degrees = 0, pixels = 0, room = 0;
    bool centred = false;
    std::string text;
};

struct PlacedTexts {
    std::vector<PlacedText> dimensions, labels;
    double bottom = 0; // device y of the lowest text's foot
};

PlacedTexts placeTexts(const engine::SectionGeometry& g, const DrawingView& v, double minimumPixels)
{
    PlacedTexts t;
    const double m = std::max(minimumPixels, 0.0);
    // Below the baseline a text reaches about a quarter of its height.
    auto foot = [&](const PlacedText& x) { return x.base.y() + (x.degrees == 0 ? 0.25 * x.pixels : 0.0); };
    double lowestDimension = -1e300;
    for (const auto& d : g.dimensions) {
        const exporting::DimensionFigure f = exporting::dimensionFigure(d);
        PlacedText x{v.toDevice(f.textBase), f.textAngle, f.textHeight * v.scale,
                     exporting::textAllowance(f.text, f.textHeight) * v.scale, true, f.text};
        const double len = std::hypot(d.to.x - d.from.x, d.to.y - d.from.y);
        if (x.pixels < m && len > 0) {
            // Too small to read where it is: at the least height, outside the line, so
            // that it grows away from the section and not into it.
            const double ux = (d.to.x - d.from.x) / len, uy = (d.to.y - d.from.y) / len;
            const double nx = uy, ny = -ux;
            const bool turned = ux < -1e-12 || (std::abs(ux) <= 1e-12 && uy < 0);
            const double gap = 0.25 * f.textHeight, cm = m / v.scale;
            const double out = d.offset + gap + (turned ? 0 : cm);
            const engine::Point mid{(d.from.x + d.to.x) / 2 + nx * out, (d.from.y + d.to.y) / 2 + ny * out};
            x.base = v.toDevice(mid);
            x.pixels = m;
            x.room = exporting::textAllowance(f.text, m);
            if (x.degrees == 0)
                lowestDimension = std::max(lowestDimension, foot(x));
        }
        t.bottom = std::max(t.bottom, foot(x));
        t.dimensions.push_back(x);
    }
    // The labels keep their own places unless one of them grows: then they start
    // under what stands above them and follow at 1.6 times their height, as drawn.
    bool grow = false;
    for (const auto& l : g.labels)
        grow = grow || l.height * v.scale < m;
    double baseline = 0;
    for (std::size_t i = 0; i < g.labels.size(); ++i) {
        const auto& l = g.labels[i];
        PlacedText x{v.toDevice(l.position), 0, l.height * v.scale, exporting::textAllowance(l.text, l.height) * v.scale,
                     false, l.text};
        if (grow) {
            if (x.pixels < m) {
                x.pixels = m;
                x.room = exporting::textAllowance(l.text, m);
            }
            if (i == 0) {
                const double top = std::max(x.base.y() - l.height * v.scale, lowestDimension + 0.6 * m);
                baseline = top + x.pixels;
            } else {
                baseline += 1.6 * x.pixels;
            }
            x.base.setY(baseline);
        }
        t.bottom = std::max(t.bottom, foot(x));
        t.labels.push_back(x);
    }
    return t;
}

} // namespace

std::vector<TextPlace> placedTexts(const engine::SectionGeometry& g, const DrawingView& v, double minimumTextPixels)
{
    const PlacedTexts t = placeTexts(g, v, minimumTextPixels);
    std::vector<TextPlace> out;
    for (const auto* list : {&t.dimensions, &t.labels})
        for (const PlacedText& x : *list) {
            const double along0 = x.centred ? -x.room / 2 : 0;
            QRectF box;
            if (std::abs(x.degrees) < 45)
                box = QRectF(x.base.x() + along0, x.base.y() - x.pixels, x.room, 1.25 * x.pixels);
            else // read bottom to top: the text runs up, its glyphs stand to the left
                box = QRectF(x.base.x() - x.pixels, x.base.y() - along0 - x.room, 1.25 * x.pixels, x.room);
            out.push_back({box, x.pixels, x.text});
        }
    return out;
}

double textOverflowBelow(const engine::SectionGeometry& g, const DrawingView& v, double minimumTextPixels)
{
    const exporting::Extent e = exporting::drawingExtent(g);
    const double extentBottom = v.toDevice({0, e.minY}).y();
    return std::max(0.0, placeTexts(g, v, minimumTextPixels).bottom - extentBottom);
}

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
    for (const auto& d : g.dimensions)
        for (const exporting::Segment& s : exporting::dimensionFigure(d).lines)
            p.drawLine(v.toDevice(s.a), v.toDevice(s.b));
    const PlacedTexts texts = placeTexts(g, v, style.minimumTextPixels);
    for (const auto& x : texts.dimensions)
        drawText(p, x.base, x.degrees, x.pixels, x.room, x.centred, x.text);

    p.setPen(c.texts);
    for (const auto& x : texts.labels)
        drawText(p, x.base, x.degrees, x.pixels, x.room, x.centred, x.text);
    p.restore();
}

} // namespace pilarix::render
