#include "ui/interaction_plot.h"

#include "base/number_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace pilarix::ui {

namespace {

// Beyond this the spans and paddings of an axis could overflow; no column gets near.
constexpr double kLargest = 1e250;

const QColor kCarried(0, 140, 60);
const QColor kNotCarried(205, 30, 30);
const QColor kUnknown(128, 128, 128);
const QColor kCurveLine(30, 90, 170);
const QColor kCurveFill(60, 120, 200, 45);
const QColor kGrid(228, 228, 228);
const QColor kAxis(70, 70, 70);

bool finite(double x) { return std::isfinite(x); }

struct Axis {
    double lo = -1, hi = 1, step = 0.5;
    std::vector<double> ticks;
};

// An axis over [lo, hi] (which holds 0) with ticks at the multiples of a round step,
// 1, 2, 2.5 or 5 times a power of ten, about one per `pixelsPerTick`. The ends are not
// rounded out to ticks: that could leave a quarter of the frame empty.
Axis niceAxis(double lo, double hi, double pixels, double pixelsPerTick)
{
    if (!(hi > lo)) { // a curve flat along this axis still gets a range about it
        const double a = std::max(std::abs(lo), std::abs(hi));
        const double d = a > 0 ? 0.1 * a : 1;
        lo -= d;
        hi += d;
    }
    // A little room, so that the curve does not run along the frame; a side at the
    // origin keeps the origin at the frame.
    const double pad = 0.04 * (hi - lo);
    if (lo < 0)
        lo -= pad;
    if (hi > 0)
        hi += pad;
    const double wanted = std::clamp(std::floor(pixels / std::max(pixelsPerTick, 1.0)), 2.0, 12.0);
    const double rough = (hi - lo) / wanted;
    Axis a;
    if (!(rough > 0) || !finite(rough)) {
        a.ticks = {-1, -0.5, 0, 0.5, 1};
        return a;
    }
    const double magnitude = std::pow(10.0, std::floor(std::log10(rough)));
    a.step = 10 * magnitude;
    for (double k : {1.0, 2.0, 2.5, 5.0})
        if (k * magnitude >= rough * (1 - 1e-12)) {
            a.step = k * magnitude;
            break;
        }
    a.lo = lo;
    a.hi = hi;
    const double first = std::ceil(lo / a.step - 1e-9), last = std::floor(hi / a.step + 1e-9);
    if (!(a.step > 0) || !finite(first) || !finite(last) || last - first > 200) {
        a = Axis{};
        a.ticks = {-1, -0.5, 0, 0.5, 1};
        return a;
    }
    for (double k = first; k <= last; ++k)
        a.ticks.push_back(k == 0 ? 0.0 : k * a.step); // the origin reads "0", never "-0"
    return a;
}

// As many decimals as the step needs: 0.25 two, 2.5 one, 500 none.
int decimalsFor(double step)
{
    int d = 0;
    double scaled = step;
    while (d < 12 && std::abs(scaled - std::round(scaled)) > 1e-6 * scaled) {
        scaled *= 10;
        ++d;
    }
    return d;
}

QString tickText(double v, int decimals) { return QString::number(v, 'f', decimals); }

double widestLabel(const QFontMetricsF& fm, const Axis& a)
{
    const int d = decimalsFor(a.step);
    double w = 0;
    for (double v : a.ticks)
        w = std::max(w, fm.horizontalAdvance(tickText(v, d)));
    return w;
}

QString withUnit(const QString& letter, const QString& unit)
{
    return unit.trimmed().isEmpty() ? letter : QStringLiteral("%1 (%2)").arg(letter, unit.trimmed());
}

} // namespace

const DiagramPoint* governingPoint(const DiagramData& data)
{
    const DiagramPoint* best = nullptr;
    for (const auto& p : data.points)
        if (p.governing)
            return &p;
    for (const auto& p : data.points)
        if (!best || (std::isnan(best->utilisation) && !std::isnan(p.utilisation))
            || p.utilisation > best->utilisation)
            best = &p;
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

InteractionPlot::InteractionPlot(QWidget* parent)
    : QWidget(parent), placeholder_(QStringLiteral("O diagrama de interação aparece aqui depois do cálculo."))
{
    setAttribute(Qt::WA_OpaquePaintEvent); // the whole frame is painted white each time
}

void InteractionPlot::setData(const DiagramData& data)
{
    data_ = data;
    finiteCurve_.clear();
    for (const QPointF& c : data_.curve)
        if (finite(c.x()) && finite(c.y()))
            finiteCurve_.push_back(c);

    // The origin is always in view: the axes cross there and the rays start there.
    mMin_ = mMax_ = nMin_ = nMax_ = 0;
    const auto take = [this](double m, double n) {
        if (!finite(m) || !finite(n))
            return;
        mMin_ = std::min(mMin_, m);
        mMax_ = std::max(mMax_, m);
        nMin_ = std::min(nMin_, n);
        nMax_ = std::max(nMax_, n);
    };
    for (const QPointF& c : finiteCurve_)
        take(c.x(), c.y());
    for (const auto& p : data_.points)
        take(p.m, p.n);
    if (const DiagramPoint* g = governingPoint(data_); g && data_.mRd)
        take(*data_.mRd, g->n);

    const double largest = std::max({-mMin_, mMax_, -nMin_, nMax_});
    drawable_ = finiteCurve_.size() >= 3 && largest <= kLargest;
    update();
}

void InteractionPlot::clear()
{
    setData({});
}

void InteractionPlot::setPlaceholderText(const QString& text)
{
    placeholder_ = text;
    update();
}

QString InteractionPlot::shownMessage() const
{
    if (drawable_)
        return {};
    if (data_.curve.empty() && data_.points.empty())
        return placeholder_;
    return QStringLiteral("Não há curva de interação que se possa desenhar com estes valores.");
}

QString InteractionPlot::momentTitle() const { return withUnit(QStringLiteral("M"), data_.momentUnit); }

QString InteractionPlot::forceTitle() const { return withUnit(QStringLiteral("N"), data_.forceUnit); }

InteractionPlot::Frame InteractionPlot::frame() const
{
    const QFontMetricsF fm(font());
    const double line = fm.height();
    const QRectF all = QRectF(rect());
    // Above: the title of N. Below: the labels of M and its title. Left: the labels of N.
    const double top = 1.6 * line + 6, bottom = 2.4 * line + 10;
    const double height = std::max(all.height() - top - bottom, 1.0);

    Axis n = niceAxis(nMin_, nMax_, height, 3 * line);
    const double left = std::min(widestLabel(fm, n) + 14, 0.35 * all.width());
    const double right = 12 + fm.horizontalAdvance(QStringLiteral("-0000")) / 2;
    const double width = std::max(all.width() - left - right, 1.0);

    // Labels of M side by side need room: widen the spacing until they fit.
    double perTick = 70;
    Axis m = niceAxis(mMin_, mMax_, width, perTick);
    for (int i = 0; i < 4; ++i) {
        const double room = width / std::max<double>(m.ticks.size() - 1, 1);
        const double need = widestLabel(fm, m) + 12;
        if (need <= room)
            break;
        perTick *= need / room + 0.05;
        m = niceAxis(mMin_, mMax_, width, perTick);
    }

    Frame f;
    f.area = QRectF(all.left() + left, all.top() + top, width, height);
    // Two units, two scales; only a frame far wider or taller than a sheet is narrowed,
    // so that the curve does not become a line.
    constexpr double kWidest = 2.2, kTallest = 1 / 1.6;
    if (f.area.width() > kWidest * f.area.height()) {
        const double w = kWidest * f.area.height();
        f.area.adjust((f.area.width() - w) / 2, 0, -(f.area.width() - w) / 2, 0);
    } else if (f.area.width() < kTallest * f.area.height()) {
        const double h = f.area.width() / kTallest;
        f.area.adjust(0, (f.area.height() - h) / 2, 0, -(f.area.height() - h) / 2);
    }
    f.mLo = m.lo;
    f.mHi = m.hi;
    f.mStep = m.step;
    f.mTicks = std::move(m.ticks);
    f.nLo = n.lo;
    f.nHi = n.hi;
    f.nStep = n.step;
    f.nTicks = std::move(n.ticks);
    return f;
}

QPointF InteractionPlot::map(const Frame& f, double m, double n) const
{
    return {f.area.left() + (m - f.mLo) / (f.mHi - f.mLo) * f.area.width(),
            f.area.bottom() - (n - f.nLo) / (f.nHi - f.nLo) * f.area.height()};
}

QPointF InteractionPlot::toScreen(double m, double n) const { return map(frame(), m, n); }

void InteractionPlot::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!drawable_) {
        p.setPen(kUnknown);
        p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, shownMessage());
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const Frame f = frame();
    paintAxes(p, f);
    paintCurve(p, f);
    paintPoints(p, f);
}

void InteractionPlot::paintAxes(QPainter& p, const Frame& f) const
{
    const QFontMetricsF fm(font());
    const QRectF& a = f.area;

    p.setPen(QPen(kGrid, 1));
    for (double v : f.mTicks)
        p.drawLine(QPointF(map(f, v, 0).x(), a.top()), QPointF(map(f, v, 0).x(), a.bottom()));
    for (double v : f.nTicks)
        p.drawLine(QPointF(a.left(), map(f, 0, v).y()), QPointF(a.right(), map(f, 0, v).y()));

    // The axes cross at the origin, ticked at every round number.
    const QPointF o = map(f, 0, 0);
    p.setPen(QPen(kAxis, 1.2));
    p.drawLine(QPointF(a.left(), o.y()), QPointF(a.right(), o.y()));
    p.drawLine(QPointF(o.x(), a.top()), QPointF(o.x(), a.bottom()));
    constexpr double kTick = 4;
    for (double v : f.mTicks) {
        const double x = map(f, v, 0).x();
        p.drawLine(QPointF(x, o.y() - kTick), QPointF(x, o.y() + kTick));
    }
    for (double v : f.nTicks) {
        const double y = map(f, 0, v).y();
        p.drawLine(QPointF(o.x() - kTick, y), QPointF(o.x() + kTick, y));
    }

    // The numbers at the edges of the frame, clear of the curve.
    p.setPen(kAxis);
    const int md = decimalsFor(f.mStep), nd = decimalsFor(f.nStep);
    const double line = fm.height();
    for (double v : f.mTicks) {
        const double x = map(f, v, 0).x();
        p.drawText(QRectF(x - 60, a.bottom() + 4, 120, line), Qt::AlignHCenter | Qt::AlignTop, tickText(v, md));
    }
    for (double v : f.nTicks) {
        const double y = map(f, 0, v).y();
        p.drawText(QRectF(0, y - line / 2, a.left() - 8, line), Qt::AlignRight | Qt::AlignVCenter, tickText(v, nd));
    }

    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    const QFontMetricsF bm(bold);
    const QString nTitle = forceTitle(), mTitle = momentTitle();
    // N above its axis, M at the right end of its labels.
    const double nWidth = bm.horizontalAdvance(nTitle) + 4;
    const double nx = std::clamp(o.x() - nWidth / 2, 2.0, std::max(2.0, width() - nWidth - 2));
    p.drawText(QRectF(nx, a.top() - 1.6 * line - 2, nWidth, 1.4 * line), Qt::AlignCenter, nTitle);
    p.drawText(QRectF(a.left(), a.bottom() + 4 + line, a.width(), 1.4 * line), Qt::AlignRight | Qt::AlignVCenter,
               mTitle);
    p.setFont(font());
}

void InteractionPlot::paintCurve(QPainter& p, const Frame& f) const
{
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(finiteCurve_.size()));
    for (const QPointF& c : finiteCurve_)
        polygon << map(f, c.x(), c.y());
    p.setPen(QPen(kCurveLine, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(kCurveFill);
    p.drawPolygon(polygon); // closed: the last point joins the first
    p.setBrush(Qt::NoBrush);
}

void InteractionPlot::paintPoints(QPainter& p, const Frame& f) const
{
    const DiagramPoint* governing = governingPoint(data_);
    const bool several = data_.points.size() > 1;
    const QPointF o = map(f, 0, 0);

    // M_Rd under the governing axial force, on the side of the point's moment (the
    // program's columns are symmetric, so the capacity is the same either way).
    if (governing && data_.mRd && finite(*data_.mRd) && finite(governing->n)) {
        const double mRd = (governing->m < 0 ? -1 : 1) * std::abs(*data_.mRd);
        const QPointF at = map(f, mRd, governing->n);
        p.setPen(QPen(kAxis, 1, Qt::DotLine));
        p.drawLine(QPointF(o.x(), at.y()), at);
        p.setPen(QPen(kAxis, 1.3));
        p.setBrush(Qt::white);
        constexpr double r = 4.5;
        p.drawPolygon(QPolygonF{at + QPointF(0, -r), at + QPointF(r, 0), at + QPointF(0, r), at + QPointF(-r, 0)});
        p.setBrush(Qt::NoBrush);
        const QString text = QStringLiteral("M_Rd");
        const double w = QFontMetricsF(font()).horizontalAdvance(text);
        const double x = mRd < 0 ? at.x() - w - 6 : at.x() + 6;
        p.drawText(QPointF(x, at.y() + QFontMetricsF(font()).ascent() + 2), text);
    }

    // The ray of the governing point, out to the farther of the point and the curve.
    for (const auto& d : data_.points) {
        if ((&d != governing && !d.governing) || !finite(d.m) || !finite(d.n))
            continue;
        if (!(d.utilisation > 0) || !finite(d.utilisation) || (d.m == 0 && d.n == 0))
            continue;
        const QPointF point = map(f, d.m, d.n);
        const QPointF edge = map(f, d.m / d.utilisation, d.n / d.utilisation);
        // A utilisation that does not belong to this curve could put the edge anywhere;
        // the ray then stops at the point.
        const bool edgeShown = f.area.adjusted(-40, -40, 40, 40).contains(edge);
        const QPointF far = d.utilisation <= 1 && edgeShown ? edge : point;
        p.setPen(QPen(utilisationColour(d.utilisation).lighter(120), 1.3, Qt::DashLine));
        p.drawLine(o, far);
        if (edgeShown) {
            p.setPen(QPen(kAxis, 1.6));
            constexpr double c = 4;
            p.drawLine(edge + QPointF(-c, -c), edge + QPointF(c, c));
            p.drawLine(edge + QPointF(-c, c), edge + QPointF(c, -c));
        }
    }

    // The markers, the governing one last so that it is on top.
    std::vector<const DiagramPoint*> order;
    for (const auto& d : data_.points)
        if (finite(d.m) && finite(d.n))
            order.push_back(&d);
    std::stable_partition(order.begin(), order.end(), [governing](const DiagramPoint* d) { return d != governing; });
    QFont bold = font();
    bold.setBold(true);
    for (const DiagramPoint* d : order) {
        const bool main = d == governing;
        const QColor colour = utilisationColour(d->utilisation);
        const QPointF at = map(f, d->m, d->n);
        const double r = main ? 6.5 : 4.5;
        p.setPen(QPen(colour.darker(150), 1.2));
        p.setBrush(colour);
        p.drawEllipse(at, r, r);
        p.setBrush(Qt::NoBrush);
        if (main) {
            p.setPen(QPen(colour, 1.5));
            p.drawEllipse(at, r + 4, r + 4);
        }

        const QString name = d->name.trimmed().isEmpty() ? QStringLiteral("Sd") : d->name.trimmed();
        const QString text =
            (several ? name : QStringLiteral("Sd")) + QStringLiteral(": ") + utilisationText(d->utilisation);
        p.setFont(main ? bold : font());
        const QFontMetricsF fm(p.font());
        const double w = fm.horizontalAdvance(text);
        double x = at.x() + r + 6, y = at.y() - r - 4;
        if (x + w > width() - 2)
            x = at.x() - r - 6 - w;
        if (y - fm.ascent() < 2)
            y = at.y() + r + 4 + fm.ascent();
        p.setPen(colour.darker(130));
        p.drawText(QPointF(x, y), text);
        p.setFont(font());
    }
}

} // namespace pilarix::ui
