#include "ui/section_canvas.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace pilarix::ui {

namespace {
// How far the wheel may take the drawing from its fitted size, either way.
constexpr double kZoomRange = 50;
} // namespace

SectionCanvas::SectionCanvas(QWidget* parent)
    : QWidget(parent), placeholder_(QStringLiteral("A seção detalhada aparece aqui depois do cálculo."))
{
    setAttribute(Qt::WA_OpaquePaintEvent); // the whole frame is painted white each time
    updateCursor();
}

void SectionCanvas::setSection(const engine::SectionGeometry& geometry)
{
    geometry_ = geometry;
    hasSection_ = true;
    stale_ = false;
    fit();
    updateCursor();
}

void SectionCanvas::clearSection()
{
    geometry_ = {};
    hasSection_ = false;
    stale_ = false;
    dragging_ = false;
    fitted_ = true;
    updateCursor();
    update();
}

void SectionCanvas::setPlaceholderText(const QString& text)
{
    placeholder_ = text;
    if (!hasSection_)
        update();
}

void SectionCanvas::setStale(bool stale)
{
    if (stale_ == stale)
        return;
    stale_ = stale;
    update();
}

double SectionCanvas::minimumTextPixels() const { return 0.8 * QFontInfo(font()).pixelSize(); }

render::DrawingView SectionCanvas::fittedView() const
{
    // Texts raised to their least height reach below the drawing's extent by a
    // number of pixels that hardly depends on the scale: the frame is shortened by
    // it, twice, to settle.
    const QRectF whole(rect());
    render::DrawingView v = render::fitView(geometry_, whole, kMargin);
    for (int i = 0; i < 2; ++i) {
        const double below = render::textOverflowBelow(geometry_, v, minimumTextPixels());
        if (!(below > 0.5))
            break;
        v = render::fitView(geometry_, whole.adjusted(0, 0, 0, -std::min(below, whole.height() / 2)), kMargin);
    }
    return v;
}

void SectionCanvas::fit()
{
    fitted_ = true;
    if (hasSection_) {
        view_ = fittedView();
        fitScale_ = view_.scale;
    }
    update();
}

void SectionCanvas::zoomAt(double factor, QPointF about)
{
    if (!hasSection_ || !(factor > 0) || !std::isfinite(factor))
        return;
    const double scale = std::clamp(view_.scale * factor, fitScale_ / kZoomRange, fitScale_ * kZoomRange);
    if (scale == view_.scale)
        return;
    const engine::Point fixed = view_.toDrawing(about);
    view_.scale = scale;
    view_.origin += about - view_.toDevice(fixed);
    fitted_ = false;
    update();
}

void SectionCanvas::setUnverified(const QString& reason)
{
    if (unverified_ == reason)
        return;
    unverified_ = reason;
    update();
}

void SectionCanvas::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!hasSection_) {
        p.setPen(QColor(128, 128, 128));
        p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
        return;
    }
    render::PaintStyle style;
    style.stale = stale_ || !unverified_.isEmpty();
    style.minimumTextPixels = minimumTextPixels();
    render::paintSection(p, geometry_, view_, style);
    if (!unverified_.isEmpty()) {
        // Large enough to be read at a glance, over the drawing's middle.
        QFont f = p.font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() * 1.8);
        p.setFont(f);
        p.setPen(QColor(205, 30, 30));
        const QRect faixa = rect().adjusted(6, 0, -6, 0);
        p.drawText(faixa, Qt::AlignCenter | Qt::TextWordWrap, QStringLiteral("NÃO VERIFICADO"));
        f.setPointSizeF(f.pointSizeF() / 1.8);
        f.setBold(false);
        p.setFont(f);
        p.drawText(faixa.adjusted(0, 2 * QFontMetrics(f).height() + 8, 0, 0), Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWordWrap,
                   unverified_);
    }
    if (stale_) {
        p.setPen(QColor(150, 60, 60));
        p.drawText(rect().adjusted(6, 4, -6, -4), Qt::AlignTop | Qt::AlignLeft,
                   QStringLiteral("Dados alterados: calcule de novo."));
    }
}

void SectionCanvas::resizeEvent(QResizeEvent* event)
{
    if (fitted_ || !event->oldSize().isValid()) {
        fit();
        return;
    }
    // A zoomed view keeps the drawing's point at the middle of the frame there.
    const engine::Point middle = view_.toDrawing(QRectF(QPointF(0, 0), event->oldSize()).center());
    view_.origin += QRectF(rect()).center() - view_.toDevice(middle);
    const double before = fitScale_;
    fitScale_ = fittedView().scale;
    if (!(fitScale_ > 0))
        fitScale_ = before;
}

void SectionCanvas::wheelEvent(QWheelEvent* event)
{
    const int steps = event->angleDelta().y();
    if (!hasSection_ || steps == 0) {
        event->ignore();
        return;
    }
    // One notch of the wheel (120) enlarges by a fifth or so.
    zoomAt(std::pow(2.0, steps / 480.0), event->position());
    event->accept();
}

void SectionCanvas::mousePressEvent(QMouseEvent* event)
{
    if (hasSection_ && event->button() == Qt::LeftButton) {
        dragging_ = true;
        dragFrom_ = event->position();
        updateCursor();
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void SectionCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging_) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QPointF step = event->position() - dragFrom_;
    dragFrom_ = event->position();
    if (step.isNull())
        return;
    view_.origin += step;
    fitted_ = false;
    update();
}

void SectionCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (dragging_ && event->button() == Qt::LeftButton) {
        dragging_ = false;
        updateCursor();
        event->accept();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void SectionCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        dragging_ = false;
        updateCursor();
        fit();
        event->accept();
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void SectionCanvas::updateCursor()
{
    if (!hasSection_)
        unsetCursor();
    else
        setCursor(dragging_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

} // namespace pilarix::ui
