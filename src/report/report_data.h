#pragma once
// The calculation report ("memorial de cálculo") of one calculation's record,
// as plain data, before any page is laid out: titled sections of lines "label: value
// unit", the load cases with the governing one, the steel's quantities, every message
// of the calculation in order with its clause and the answer given, the verdict of the "Erros" box, the interaction diagram in the engineer's
// units, the section's drawing and, after a search, its lightest solutions.
//
//   buildReport(record, stamp, report, error)    false, with the reason, when the
//                                                record holds no calculation to report
//
// The date and time and the program's version come in as a stamp, so that two
// reports of the same project differ in nothing else. No Qt here: the PDF is
// render/report_pdf.h's.

#include "engine/column.h"
#include "engine/geometry.h"
#include "report/moment_contour.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/calculation_record.h"

namespace pilarix::report {

struct ReportStamp {
    std::string dateTime; // as it is to be printed: "31/05/2025 14:07"
    std::string version;  // the program's version: "0.1"
};

// Pilarix's version, CMake's project version.
std::string_view programVersion();

// "label: value unit (note)"; the value and its unit stand out on the page.
struct Line {
    std::string label, value, unit;
    std::string note;
};

struct Section {
    std::string title;
    std::vector<Line> lines;
    // What the section adds in words: what it cannot show and why ("O pilar não foi
    // dimensionado: ..."), or how a value came about.
    std::vector<std::string> notes;
};

// One dialog the calculation showed, as the engineer saw it.
struct Message {
    enum class Kind { Error, Question, Notice };
    Kind kind = Kind::Notice;
    std::string window;  // the dialog's caption
    std::string text;    // its message, as shown
    std::string clause;  // "Item 7.4.7 ", as shown; empty when it named none
    std::vector<std::string> options; // the stirrup choice's options, as shown
    std::string answer;  // the button or option chosen, as the dialog words it (no access-key mark)
    // A check that failed in a run that ended "erro": the page makes it stand out.
    bool failed = false;
};

// A load case's point on the diagram: γn·Nd and γn·Md in the chart's units.
struct DiagramCase {
    std::string name;
    double nSd = 0, mSd = 0;
    double utilisation = 0; // on the detailed section; NaN where it could not be verified
    bool governing = false;
};

// The N_Rd–M_Rd curve of the detailed section and the design point, in the units of
// the window's force and moment lists (N across, compression positive; M up).
struct Diagram {
    std::string forceUnit, momentUnit; // as the lists spell them: "KN", "KN.cm"
    std::vector<std::pair<double, double>> curve; // (N, M), closed
    double nSd = 0, mSd = 0;   // the governing case's
    std::vector<DiagramCase> cases; // every case; one named "Sd" for a single column
    std::optional<double> mRd; // at nSd
    double utilisation = 0;    // a fraction; +∞ when no multiple of the point is carried
    bool withinCurve() const { return utilisation <= 1; }
};

// A row of the search's list, as "Soluções" writes it.
struct SolutionLine {
    int position = 0; // 1 = the lightest
    std::string weight, barsOnWidthFace, barsOnDepthFace, stirrup;
    bool shown = false; // the arrangement this report is of
};

// The work, client, column, engineer and revision of "Dados da obra", as typed.
struct Heading {
    std::string work, client, column, engineer, revision;
    bool empty() const { return work.empty() && client.empty() && column.empty() && engineer.empty() && revision.empty(); }
};

// A load case of a column with several, as the report lists it.
struct CaseLine {
    std::string name;
    std::string nd, md;        // as typed, in the window's units and in kN / kN·m
    std::string zone, asNec;   // of its own design by zones ("2 (C)", "6.55")
    std::string utilisation;   // on the detailed section: "87.4 %"
    bool carried = true;
    bool governing = false;
};

// The steel of the column, for the order and the budget: one row per kind of piece.
struct QuantityRow {
    std::string piece;    // "Barras longitudinais", "Estribos", ...
    int barIndex = 0;     // catalogue index of its diameter
    int count = 0;
    double unitLength = 0;   // cm, hooks included
    double totalLength = 0;  // m
    double massPerMetre = 0; // kg/m, the catalogue's
    double weight = 0;       // kg
};

struct Quantities {
    std::vector<QuantityRow> rows;
    int stirrupLevels = 0;      // stirrups along the column
    double totalWeight = 0;     // kg
    double concreteVolume = 0;  // m³
    double rate = 0;            // kg of steel per m³ of concrete
    std::vector<std::string> assumptions; // one line each
};

// The quantities of a detailed column: the longitudinal bars over the column's
// length, a stirrup every spacing from one end to the other (length / spacing,
// rounded up, plus one) at the calculation's stirrup length with its hooks, and the
// supplementary stirrups of each level at the stirrup's inner dimension plus their
// two hooks. Empty rows for a column not detailed.
Quantities steelQuantities(const engine::ColumnInput& input, const engine::ColumnResult& result);

struct ReportData {
    std::string project; // the project file's name, or "sem título"
    Heading heading;
    ReportStamp stamp;
    std::vector<CaseLine> cases;   // two or more, or none
    std::string governingCase;     // its name, with two or more
    std::vector<std::string> casesNotes;
    std::optional<Quantities> quantities;
    std::vector<Section> sections; // "Dados", "Dimensionamento", "Detalhamento"
    std::vector<Message> messages;
    std::string verdict; // the "Erros" box: "Ok" or "erro"
    bool failed() const { return verdict != "Ok"; }
    Section verification; // by strain compatibility
    std::optional<Diagram> diagram;
    std::optional<engine::SectionGeometry> drawing;
    std::string drawingMissing; // why there is no drawing
    std::vector<SolutionLine> solutions; // at most kSolutionsListed
    std::size_t solutionsFound = 0;
    std::string solutionsNote; // why a search's list is left out, when it is
    // Under ABNT NBR 6118:2014 or 2023 (report_2014.h): the rule set's name, the
    // slenderness and second order, both directions together and their picture.
    // Empty for a 2001 calculation, whose report is what it always was.
    std::string norma;
    std::vector<Section> norma2014;
    std::optional<MomentContour> momentContour;
};

inline constexpr std::size_t kSolutionsListed = 40;

bool buildReport(const app::CalculationRecord& record, const ReportStamp& stamp, ReportData& report, std::string& error);

// The scale 1:n at which a drawing of width × height cm fits a room of roomWidth ×
// roomHeight cm on paper: the smallest n of the usual scales (1, 2, 2.5, 5, 10, 20,
// 25, 50 and so on), and beyond them the whole n that fits.
double drawingScale(double width, double height, double roomWidth, double roomHeight);

// "1:10", "1:2.5".
std::string scaleText(double n);

// A caption without its access-key mark (app/calculation_record.h).
using app::withoutAccessKey;

} // namespace pilarix::report
