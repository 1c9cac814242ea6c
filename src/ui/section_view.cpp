#include "ui/section_view.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace pilarix::ui {

namespace {
// The section's corner sits this far inside the frame.
constexpr double kMargem = 20;
const QColor kConcreto(0, 0, 0);
const QColor kAco(160, 0, 0); // stirrups and ties, as on a coloured detail
const QColor kCota(70, 70, 70);
} // namespace

SectionView::SectionView(QWidget* parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);
    QFont f = font();
    f.setPointSizeF(8.5);
    setFont(f);
}

void SectionView::mostra(const std::optional<engine::SectionGeometry>& desenho, double escala, bool cotasVisiveis,
                         bool imagemInicial)
{
    desenho_ = desenho;
    escala_ = escala > 0 ? escala : 5;
    cotas_ = cotasVisiveis;
    inicial_ = imagemInicial;
    updateGeometry();
    const QRectF r = limites();
    setMinimumSize(static_cast<int>(r.right()) + 12, static_cast<int>(r.bottom()) + 12);
    update();
}

// Centimetres of the section to pixels: the top-left corner of the concrete at the
// margin, y downwards.
QPointF SectionView::ponto(const engine::Point& p) const
{
    const double h = desenho_ ? desenho_->depth : 0;
    return {kMargem + p.x * escala_, kMargem + (h - p.y) * escala_};
}

QRectF SectionView::limites() const
{
    if (!desenho_)
        return {};
    const auto& g = *desenho_;
    QRectF r(ponto({0, g.depth}), ponto({g.width, 0}));
    const QFontMetricsF fm(font());
    // Room for the dimensions and the labels below and to the right.
    r.adjust(0, 0, 40 + fm.horizontalAdvance(QStringLiteral("000")), 30 + 4 * fm.height());
    for (const auto& l : g.labels)
        r = r.united(QRectF(QPointF(kMargem, r.top()), QSizeF(fm.horizontalAdvance(QString::fromStdString(l.text)), 1)));
    return r;
}

QSize SectionView::sizeHint() const
{
    const QRectF r = limites();
    return QSize(std::max(300, static_cast<int>(r.right()) + 12), std::max(380, static_cast<int>(r.bottom()) + 12));
}

QSize SectionView::minimumSizeHint() const { return QSize(120, 120); }

void SectionView::pintaImagemInicial(QPainter& p) const
{
    // Before the first result: a sketch of a column section, the program's mark.
    const QPointF c(width() / 2.0, height() / 2.0 - 20);
    const QRectF secao(c.x() - 40, c.y() - 80, 80, 160);
    p.setPen(QPen(QColor(150, 150, 150), 2));
    p.setBrush(QColor(245, 245, 245));
    p.drawRect(secao);
    p.setPen(QPen(QColor(190, 120, 120), 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(secao.adjusted(8, 8, -8, -8));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(150, 150, 150));
    for (double y : {secao.top() + 14, secao.top() + 14 + 132.0 / 3, secao.top() + 14 + 264.0 / 3, secao.bottom() - 14})
        for (double x : {secao.left() + 14, secao.right() - 14})
            p.drawEllipse(QPointF(x, y), 4, 4);
    p.setPen(QColor(120, 120, 120));
    QFont f = font();
    f.setPointSizeF(11);
    f.setBold(true);
    p.setFont(f);
    p.drawText(QRectF(0, secao.bottom() + 12, width(), 24), Qt::AlignHCenter, QStringLiteral("Pilarix Normal"));
}

void SectionView::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    if (inicial_ || !desenho_) {
        if (inicial_)
            pintaImagemInicial(p);
        return;
    }
    const auto& g = *desenho_;
    auto linha = [&](const engine::Polyline& l, const QColor& c) {
        p.setPen(QPen(c, 1.0, Qt::SolidLine, Qt::RoundCap));
        QPolygonF poly;
        for (const auto& pt : l.points)
            poly << ponto(pt);
        if (l.closed)
            p.drawPolygon(poly);
        else
            p.drawPolyline(poly);
    };
    p.setBrush(Qt::NoBrush);
    linha(g.outline, kConcreto);
    linha(g.stirrupOuter, kAco);
    linha(g.stirrupInner, kAco);
    for (const auto& h : g.stirrupHooks)
        linha(h, kAco);
    for (const auto& t : g.ties)
        linha(t, kAco);
    p.setPen(QPen(kConcreto, 0.8));
    p.setBrush(kConcreto);
    for (const auto& b : g.bars)
        p.drawEllipse(ponto(b.centre), b.diameter / 2 * escala_, b.diameter / 2 * escala_);
    if (!cotas_)
        return;

    // Overall dimensions with their ticks, the labels under the section.
    const QFontMetricsF fm(font());
    p.setBrush(Qt::NoBrush);
    const QPointF canto = ponto({0, 0});
    const QPointF oposto = ponto({g.width, g.depth});
    const double abaixo = canto.y() + 18, direita = oposto.x() + 18;
    p.setPen(QPen(kCota, 1.0));
    p.drawLine(QPointF(canto.x(), abaixo), QPointF(oposto.x(), abaixo));
    p.drawLine(QPointF(direita, oposto.y()), QPointF(direita, canto.y()));
    for (double x : {canto.x(), oposto.x()})
        p.drawLine(QPointF(x - 4, abaixo + 4), QPointF(x + 4, abaixo - 4));
    for (double y : {oposto.y(), canto.y()})
        p.drawLine(QPointF(direita - 4, y + 4), QPointF(direita + 4, y - 4));
    if (g.dimensions.size() == 2) {
        const QString b = QString::fromStdString(g.dimensions[0].text);
        const QString h = QString::fromStdString(g.dimensions[1].text);
        p.drawText(QPointF((canto.x() + oposto.x()) / 2 - fm.horizontalAdvance(b) / 2, abaixo + 2 + fm.ascent()), b);
        p.drawText(QPointF(direita + 5, (canto.y() + oposto.y()) / 2 + fm.ascent() / 2), h);
    }
    p.setPen(kConcreto);
    double y = abaixo + 6 + fm.height() + fm.ascent();
    for (const auto& l : g.labels) {
        p.drawText(QPointF(canto.x(), y), QString::fromStdString(l.text));
        y += fm.height();
    }
}

} // namespace pilarix::ui
