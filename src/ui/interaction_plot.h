#pragma once
// The N–M interaction diagram of the detailed column in the window, painted by the
// one painter of the diagram (render/interaction_painter.h), which the report's PDF
// uses too: the curve, every load case's point green when carried and red when not,
// the ray of the governing point and M_Rd at its axial force, each text where it
// overlaps nothing.
//
// It takes plain numbers already in the units the engineer chose for Nd and Md. With
// nothing that can be drawn (no curve, fewer than three finite points, an infinite
// span) it shows a line of text in its place.

#include "render/interaction_painter.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

namespace pilarix::ui {

struct DiagramPoint {
    double n = 0, m = 0;      // force unit, moment unit
    QString name;             // shown beside the marker when there are several points
    double utilisation = 0;   // a fraction: 1 on the curve, above 1 outside
    bool governing = false;
};

struct DiagramData {
    std::vector<QPointF> curve;       // (M, N) pairs: x = M, y = N
    QString forceUnit, momentUnit;    // "KN", "KN.cm", ...
    std::vector<DiagramPoint> points; // the design point(s)
    std::optional<double> mRd;        // at the governing point's N, moment unit
    double nRdMax = 0, nRdMin = 0;    // force unit
};

// The point flagged governing (the first so flagged); with none flagged, the one of
// largest utilisation (a NaN counts least). None without points.
const DiagramPoint* governingPoint(const DiagramData& data);

// A utilisation is 1/λ with λ > 0: a NaN or a negative value was never worked out.
bool utilisationKnown(double utilisation);

// Green when carried (utilisation ≤ 1, the curve itself included), red above (+∞
// too), grey when not known.
QColor utilisationColour(double utilisation);

// "87.4 %" with one decimal; a point outside the curve never reads "100.0 %" (it
// reads "> 100.0 %"), +∞ reads "∞", one not known "—".
QString utilisationText(double utilisation);

// The diagram of `data` as the one painter of the diagram (render/interaction_painter.h)
// takes it: the report's PDF draws the same chart the same way.
render::InteractionChart chartOf(const DiagramData& data);

class InteractionPlot : public QWidget {
    Q_OBJECT
public:
    explicit InteractionPlot(QWidget* parent = nullptr);

    void setData(const DiagramData& data);
    void clear();
    const DiagramData& data() const { return data_; }
    // Whether the curve is drawn (false: the placeholder text is shown instead).
    bool hasCurve() const { return layout().drawable; }

    // The text shown without data; shownMessage() is the text shown in place of the
    // diagram just now (empty while the diagram is drawn).
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return placeholder_; }
    QString shownMessage() const;

    // Where everything is drawn for the present size and data: the painter's layout.
    const render::ChartLayout& layout() const;
    render::ChartStyle style() const { return {font(), 1}; }
    // Where (M, N) lands in widget pixels, for the present size and data.
    QPointF toScreen(double m, double n) const { return layout().toScreen(m, n); }
    // The rectangle of the axes' ranges, in widget pixels.
    QRectF plotArea() const { return layout().area; }
    // The round numbers labelled on each axis, in the data's units.
    std::vector<double> momentTicks() const { return layout().mTicks; }
    std::vector<double> forceTicks() const { return layout().nTicks; }
    // "M (KN.cm)" and "N (KN)"; the letter alone without a unit.
    QString momentTitle() const;
    QString forceTitle() const;

    QSize sizeHint() const override { return {520, 480}; }
    QSize minimumSizeHint() const override { return {200, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DiagramData data_;
    render::InteractionChart chart_;
    mutable std::optional<render::ChartLayout> layout_; // for layoutSize_
    mutable QSize layoutSize_;
    QString placeholder_;
};

} // namespace pilarix::ui
