#include "ui/section_view.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace pilarix::ui {

namespace {
QColor cor(const Color& c)
{
    if (c.system >= 0)
        return QColor(96, 96, 96);
    return QColor(c.r, c.g, c.b);
}
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

void SectionView::mostra(const Drawing& desenho, bool cotasVisiveis, bool imagemInicial)
{
    desenho_ = desenho;
    cotas_ = cotasVisiveis;
    inicial_ = imagemInicial;
    updateGeometry();
    const QRectF r = limites();
    setMinimumSize(static_cast<int>(r.right()) + 12, static_cast<int>(r.bottom()) + 12);
    update();
}

QRectF SectionView::limites() const
{
    QRectF r;
    const QFontMetricsF fm(font());
    for (const auto& it : desenho_.items) {
        QRectF b;
        switch (it.kind) {
        case DrawItem::Kind::Line:
            b = QRectF(QPointF(it.x1, it.y1), QPointF(it.x2, it.y2)).normalized().adjusted(-1, -1, 1, 1);
            break;
        case DrawItem::Kind::Circle:
        case DrawItem::Kind::FilledCircle:
            b = QRectF(it.x1 - it.radius, it.y1 - it.radius, 2 * it.radius, 2 * it.radius);
            break;
        case DrawItem::Kind::Text:
            if (!cotas_)
                continue;
            b = QRectF(QPointF(it.x1, it.y1), fm.size(0, QString::fromStdString(it.text)));
            break;
        }
        r = r.isNull() ? b : r.united(b);
    }
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
    if (inicial_) {
        pintaImagemInicial(p);
        return;
    }
    const QFontMetricsF fm(font());
    // Whole drawing units fall on pixel centres: straight lines stay sharp.
    p.translate(0.5, 0.5);
    for (const auto& it : desenho_.items) {
        const QColor c = cor(it.color);
        switch (it.kind) {
        case DrawItem::Kind::Line:
            p.setPen(QPen(c, 1.0, Qt::SolidLine, Qt::RoundCap));
            p.drawLine(QPointF(it.x1, it.y1), QPointF(it.x2, it.y2));
            break;
        case DrawItem::Kind::Circle:
            p.setPen(QPen(c, 1.2));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(QPointF(it.x1, it.y1), it.radius, it.radius);
            break;
        case DrawItem::Kind::FilledCircle:
            p.setPen(QPen(c, 0.8));
            p.setBrush(c);
            p.drawEllipse(QPointF(it.x1, it.y1), it.radius, it.radius);
            break;
        case DrawItem::Kind::Text:
            if (!cotas_)
                break;
            p.setPen(c);
            p.drawText(QPointF(it.x1, it.y1 + fm.ascent()), QString::fromStdString(it.text));
            break;
        }
    }
}

} // namespace pilarix::ui
