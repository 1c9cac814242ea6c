#pragma once
// The N–M interaction diagram of the detailed column: the curve of what the section
// carries (M across, N up, compression positive), the design point(s) green when
// carried and red when not, the ray from the origin through each governing point to
// where it leaves the curve (its length against the point's is the utilisation), and
// M_Rd at the governing axial force.
//
// It takes plain numbers already in the units the engineer chose for Nd and Md. The
// two axes have their own scales, each fitted to the curve with round-number ticks,
// so that a curve tall in N and narrow in M still uses the frame. With nothing that
// can be drawn (no curve, fewer than three finite points, an infinite span) it shows a
// line of text in its place.

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
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

class InteractionPlot : public QWidget {
    Q_OBJECT
public:
    explicit InteractionPlot(QWidget* parent = nullptr);

    void setData(const DiagramData& data);
    void clear();
    const DiagramData& data() const { return data_; }
    // Whether the curve is drawn (false: the placeholder text is shown instead).
    bool hasCurve() const { return drawable_; }

    // The text shown without data; shownMessage() is the text shown in place of the
    // diagram just now (empty while the diagram is drawn).
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return placeholder_; }
    QString shownMessage() const;

    // Where (M, N) lands in widget pixels, for the present size and data.
    QPointF toScreen(double m, double n) const;
    // The rectangle of the axes' ranges, in widget pixels.
    QRectF plotArea() const { return frame().area; }
    // The round numbers labelled on each axis, in the data's units.
    std::vector<double> momentTicks() const { return frame().mTicks; }
    std::vector<double> forceTicks() const { return frame().nTicks; }
    // "M (KN.cm)" and "N (KN)"; the letter alone without a unit.
    QString momentTitle() const;
    QString forceTitle() const;

    QSize sizeHint() const override { return {520, 480}; }
    QSize minimumSizeHint() const override { return {200, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Frame {
        QRectF area;                  // the plot, inside the margins
        double mLo = -1, mHi = 1, nLo = -1, nHi = 1;
        double mStep = 1, nStep = 1;
        std::vector<double> mTicks, nTicks;
    };
    Frame frame() const;
    QPointF map(const Frame& f, double m, double n) const;
    void paintAxes(QPainter& p, const Frame& f) const;
    void paintCurve(QPainter& p, const Frame& f) const;
    void paintPoints(QPainter& p, const Frame& f) const;

    DiagramData data_;
    std::vector<QPointF> finiteCurve_; // the curve without its non-finite points
    // The extents of what is drawn (curve, points, origin), in the data's units.
    double mMin_ = 0, mMax_ = 0, nMin_ = 0, nMax_ = 0;
    bool drawable_ = false;
    QString placeholder_;
};

} // namespace pilarix::ui
