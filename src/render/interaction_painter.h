#pragma once
// The one painter of the N–M interaction diagram, for the window's "Diagrama de
// interação" and the calculation report's PDF alike: Qt Gui only, on any paint device.
//
// The curve of what the detailed section carries (M across, N up, compression
// positive), every load case's point (N_Sd, M_Sd) green when carried, red when not,
// grey when it could not be verified, the governing one larger and ringed, the ray
// from the origin through the governing point to where it leaves the curve (its
// length against the point's is the utilisation), and M_Rd at the governing axial
// force. The two axes have their own scales, each fitted with round-number ticks.
//
// The layout is a value (layoutChart), so that where every text went can be checked
// without pixels: no label (tick values, axis titles, case names, "M_Rd") overlaps
// another, a case's marker or the curve. A case's name is tried at eight places
// around its point, near then farther; where none is free it is shortened (the name
// without its utilisation, then its first letters), and where even that finds no
// room the point is drawn without a name (the report's table names every case).
//
//   layoutChart(chart, bounds, style, device)   where everything goes
//   paintChart(painter, chart, layout, style)   paints it

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QPainter;
class QPaintDevice;

namespace pilarix::render {

struct ChartCase {
    std::string name;        // beside its marker; "Sd" when empty
    double n = 0, m = 0;     // N_Sd and M_Sd in the chart's units
    double utilisation = std::nan(""); // a fraction: 1 on the curve, +∞ when no multiple is carried
    bool governing = false;
};

struct InteractionChart {
    std::string forceUnit, momentUnit;           // "KN", "KN.cm"
    std::vector<std::pair<double, double>> curve; // (N, M), closed
    std::vector<ChartCase> cases;
    std::optional<double> mRd; // at the governing case's N, moment unit
};

// How big things are on the device: the font of the numbers and names (titles and
// the governing case in its bold), and the device units of one pixel of 1/96 in,
// which line widths, markers and gaps are given in.
struct ChartStyle {
    QFont font;
    double unit = 1;
};

struct ChartLabel {
    enum class Kind { MomentTick, ForceTick, MomentTitle, ForceTitle, Resistance, Case };
    Kind kind = Kind::Case;
    QString text;
    QRectF rect;          // where it is drawn, device units
    int caseIndex = -1;   // Case: its index in chart.cases
    bool bold = false;
    bool shortened = false; // a case's name without its utilisation or cut short
};

struct ChartMarker {
    int caseIndex = 0;
    QPointF centre;
    double radius = 0; // the ring's of the governing case included
};

struct ChartLayout {
    bool drawable = false; // false: fewer than three finite points of the curve, or spans no column reaches
    QRectF bounds, area;   // all the room, and the frame of the axes' ranges
    double mLo = -1, mHi = 1, nLo = -1, nHi = 1, mStep = 1, nStep = 1;
    std::vector<double> mTicks, nTicks;
    std::vector<ChartLabel> labels;
    std::vector<ChartMarker> markers;    // one per case with finite forces
    std::vector<int> unlabelledCases;    // drawn with no name beside them: no room anywhere
    int governing = -1;                  // index in chart.cases, -1 without cases
    std::vector<QPointF> curve;          // the curve's finite points on the device

    QPointF toScreen(double m, double n) const;
};

ChartLayout layoutChart(const InteractionChart& chart, const QRectF& bounds, const ChartStyle& style,
                        QPaintDevice* device);
void paintChart(QPainter& painter, const InteractionChart& chart, const ChartLayout& layout, const ChartStyle& style);

// The case flagged governing (the first so flagged); with none flagged, the one of
// largest utilisation (a NaN counts least); -1 without cases.
int governingCase(const std::vector<ChartCase>& cases);

// A utilisation is 1/λ with λ > 0: a NaN or a negative value was never worked out.
bool utilisationKnown(double utilisation);
// Green when carried (≤ 1, the curve itself included), red above (+∞ too), grey when not known.
QColor utilisationColour(double utilisation);
// "87.4 %"; a point outside never reads "100.0 %" ("> 100.0 %"), +∞ reads "∞", unknown "—".
QString utilisationText(double utilisation);
// "M (KN.cm)"; the letter alone without a unit.
QString axisTitle(const QString& letter, const QString& unit);

} // namespace pilarix::render
