// The window's diagram is the painter's (render/interaction_painter.h): this widget
// only turns the window's numbers into its chart and paints it at the widget's size.

#include "ui/interaction_plot.h"

#include <QPainter>

#include <cmath>

namespace pilarix::ui {

const DiagramPoint* governingPoint(const DiagramData& data)
{
    std::vector<render::ChartCase> cases;
    for (const auto& p : data.points)
        cases.push_back({{}, p.n, p.m, p.utilisation, p.governing});
    const int g = render::governingCase(cases);
    return g < 0 ? nullptr : &data.points[static_cast<std::size_t>(g)];
}

bool utilisationKnown(double utilisation) { return render::utilisationKnown(utilisation); }
QColor utilisationColour(double utilisation) { return render::utilisationColour(utilisation); }
QString utilisationText(double utilisation) { return render::utilisationText(utilisation); }

render::InteractionChart chartOf(const DiagramData& data)
{
    render::InteractionChart c;
    c.forceUnit = data.forceUnit.trimmed().toStdString();
    c.momentUnit = data.momentUnit.trimmed().toStdString();
    c.curve.reserve(data.curve.size());
    for (const QPointF& p : data.curve)
        c.curve.emplace_back(p.y(), p.x());
    for (const auto& p : data.points)
        c.cases.push_back({p.name.trimmed().toStdString(), p.n, p.m, p.utilisation, p.governing});
    c.mRd = data.mRd;
    return c;
}

InteractionPlot::InteractionPlot(QWidget* parent)
    : QWidget(parent), placeholder_(QStringLiteral("O diagrama de interação aparece aqui depois do cálculo."))
{
    setAttribute(Qt::WA_OpaquePaintEvent); // the whole frame is painted white each time
}

void InteractionPlot::setData(const DiagramData& data)
{
    data_ = data;
    chart_ = chartOf(data);
    layout_.reset();
    update();
}

void InteractionPlot::clear() { setData({}); }

const render::ChartLayout& InteractionPlot::layout() const
{
    if (!layout_ || layoutSize_ != size()) {
        layout_ = render::layoutChart(chart_, QRectF(rect()), style(), const_cast<InteractionPlot*>(this));
        layoutSize_ = size();
    }
    return *layout_;
}

void InteractionPlot::setPlaceholderText(const QString& text)
{
    placeholder_ = text;
    update();
}

QString InteractionPlot::shownMessage() const
{
    if (hasCurve())
        return {};
    if (data_.curve.empty() && data_.points.empty())
        return placeholder_;
    return QStringLiteral("Não há curva de interação que se possa desenhar com estes valores.");
}

QString InteractionPlot::momentTitle() const { return render::axisTitle(QStringLiteral("M"), data_.momentUnit); }

QString InteractionPlot::forceTitle() const { return render::axisTitle(QStringLiteral("N"), data_.forceUnit); }

void InteractionPlot::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!hasCurve()) {
        p.setPen(utilisationColour(std::nan("")));
        p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, shownMessage());
        return;
    }
    render::paintChart(p, chart_, layout(), style());
}

} // namespace pilarix::ui
