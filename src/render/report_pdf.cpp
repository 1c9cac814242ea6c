// The calculation report laid out by a QTextDocument (paragraphs, the solutions
// table, the page breaks) and painted page by page on a QPdfWriter, each page under
// the same heading and over its number; the diagram and the section's drawing are
// objects of the text, painted as vectors where the layout puts them.

#include "render/report_pdf.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "export/drawing_layout.h"
#include "export/save_failure.h"
#include "files/safe_write.h"
#include "render/interaction_painter.h"
#include "render/moment_contour_painter.h"
#include "render/section_painter.h"
#include "render/whole_file.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDateTime>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace pilarix::render {

namespace detail {

// The pictures of the report as objects of its text: the layout gives each the
// room of its size and the painter paints it there, in whatever page it fell.
class Figures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int kObjectType = QTextFormat::UserObject + 1;
    static constexpr int kIndexProperty = QTextFormat::UserProperty + 1;
    using Paint = std::function<void(QPainter&, const QRectF&)>;

    int add(QSizeF size, Paint paint)
    {
        items_.push_back({size, std::move(paint)});
        return static_cast<int>(items_.size()) - 1;
    }

    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override
    {
        const Item* i = item(format);
        return i ? i->size : QSizeF();
    }

    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int, const QTextFormat& format) override
    {
        if (const Item* i = item(format)) {
            painter->save();
            i->paint(*painter, rect);
            painter->restore();
        }
    }

private:
    struct Item {
        QSizeF size;
        Paint paint;
    };
    const Item* item(const QTextFormat& format) const
    {
        const int k = format.intProperty(kIndexProperty);
        return k >= 0 && static_cast<std::size_t>(k) < items_.size() ? &items_[static_cast<std::size_t>(k)] : nullptr;
    }
    std::vector<Item> items_;
};

} // namespace detail

namespace {

// ---- the sheet: A4 portrait, in device units of kDpi ----

constexpr int kDpi = 1200;
constexpr double mm(double x) { return x * kDpi / 25.4; }
// The text's layout takes its margins, paddings and fixed widths in pixels of
// 1/96 in and scales them to the device; sizes of pages and objects in the device's.
constexpr double layoutMm(double x) { return x * 96 / 25.4; }

constexpr double kPageWidth = 210, kPageHeight = 297;                  // mm
constexpr double kLeft = 20, kRight = 15, kTop = 24, kBottom = 20;    // the body's margins, mm
constexpr double kBodyWidth = kPageWidth - kLeft - kRight;           // 175 mm
constexpr double kBodyHeight = kPageHeight - kTop - kBottom;         // 253 mm
constexpr double kDiagramWidth = 165, kDiagramHeight = 112;          // mm
constexpr double kContourHeight = 130;                               // mm: one scale for Mx and My
constexpr double kDrawingRoomWidth = 165, kDrawingRoomHeight = 180;  // mm
constexpr double kDrawingMargin = 4;                                 // mm round the drawing

const QColor kHeading(0, 51, 102);
const QColor kFailedColour(190, 0, 0);
const QColor kGrey(95, 95, 95);

QString qs(const std::string& s) { return QString::fromStdString(s); }

// The report's one family, with the Greek letters, ‰, ² and ′ the text needs.
QFont font(double points, bool bold = false, bool italic = false)
{
    QFont f;
    f.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    f.setStyleHint(QFont::SansSerif);
    f.setPointSizeF(points);
    f.setBold(bold);
    f.setItalic(italic);
    // No ligatures: "fl" and "fi" stay two letters for whoever searches or copies the text.
    f.setStyleStrategy(QFont::PreferNoShaping);
    return f;
}

// ---- the interaction diagram: the window's own painter ----

// The painter's pixels of 1/96 in, on the PDF's device.
constexpr double kPainterPixel = kDpi / 96.0;

InteractionChart chartOf(const report::Diagram& d)
{
    InteractionChart c;
    c.forceUnit = d.forceUnit;
    c.momentUnit = d.momentUnit;
    c.curve = d.curve;
    for (const auto& k : d.cases)
        c.cases.push_back({k.name, k.nSd, k.mSd, k.utilisation, k.governing});
    c.mRd = d.mRd;
    return c;
}

} // namespace

InteractionChart diagramChart(const report::Diagram& d) { return chartOf(d); }

namespace {

void paintDiagram(QPainter& p, const QRectF& rect, const report::Diagram& d)
{
    const InteractionChart chart = chartOf(d);
    const ChartStyle style{font(7.5), kPainterPixel};
    paintChart(p, chart, layoutChart(chart, rect, style, p.device()), style);
}

void paintMomentContour(QPainter& p, const QRectF& rect, const report::MomentContour& c)
{
    const ChartStyle style{font(7.5), kPainterPixel};
    paintContour(p, c, layoutContour(c, rect, style, p.device()), style);
}

// ---- the section's drawing ----

// The painter of the window draws in pixels of 1/96 in: its pens and texts keep the
// weight they have on screen.
constexpr double kPainterDpi = 96;

void paintDrawing(QPainter& p, const QRectF& rect, const engine::SectionGeometry& g, double scale)
{
    const double unit = static_cast<double>(kDpi) / kPainterDpi;
    p.translate(rect.topLeft());
    p.scale(unit, unit);
    const double pixelsPerCm = kPainterDpi / 2.54 / scale;
    paintSection(p, g, placedView(g, pixelsPerCm, kDrawingMargin / 25.4 * kPainterDpi));
}

// ---- the text ----

class Builder {
public:
    Builder(QTextDocument& doc, detail::Figures& figures) : cursor_(&doc), figures_(figures) {}

    std::vector<int> headings; // positions of the headings' blocks

    void title(const report::ReportData& r)
    {
        block(blockFormat(0, 0), charFormat(17, true, false, kHeading));
        cursor_.insertText(QStringLiteral("Memorial de cálculo"));
        block(blockFormat(2, 0), charFormat(10));
        if (r.norma.empty())
            cursor_.insertText(QStringLiteral("Pilar retangular de concreto armado sob flexão normal composta. NBR 6118 "
                                              "(Projeto de revisão da NB1 / 2001), método das zonas de solicitação."));
        else
            cursor_.insertText(QStringLiteral("Pilar retangular de concreto armado. %1: esbeltez e 2ª ordem em cada "
                                              "direção, método das zonas de solicitação, flexão composta oblíqua "
                                              "verificada por compatibilidade de deformações.")
                                   .arg(qs(r.norma)));
        const report::Heading& h = r.heading;
        for (const auto& [label, value] : {std::pair{"Obra", &h.work}, std::pair{"Cliente", &h.client},
                                           std::pair{"Pilar", &h.column}, std::pair{"Engenheiro", &h.engineer},
                                           std::pair{"Revisão", &h.revision}})
            if (!value->empty())
                meta(label, *value);
        meta("Projeto", r.project);
        meta("Data e hora", r.stamp.dateTime);
        meta("Programa", "Pilarix " + r.stamp.version);
    }

    void heading(const QString& text)
    {
        QTextBlockFormat b = blockFormat(12, 3);
        block(b, charFormat(12, true, false, kHeading));
        headings.push_back(cursor_.block().position());
        cursor_.insertText(text);
    }

    void section(int number, const report::Section& s)
    {
        heading(QStringLiteral("%1. %2").arg(number).arg(qs(s.title)));
        for (const auto& l : s.lines)
            line(l);
        for (const auto& n : s.notes)
            note(n);
    }

    void line(const report::Line& l)
    {
        block(blockFormat(1.2, 0, 4), charFormat(9.5));
        cursor_.insertText(qs(l.label) + QStringLiteral(": "));
        std::string value = l.value;
        if (!l.unit.empty())
            value += " " + l.unit;
        cursor_.insertText(qs(value), charFormat(9.5, true));
        if (!l.note.empty())
            cursor_.insertText(QStringLiteral(" — ") + qs(l.note), charFormat(8.5, false, false, kGrey));
    }

    void note(const std::string& text)
    {
        block(blockFormat(2, 0, 4), charFormat(9.5, false, true, kGrey));
        cursor_.insertText(qs(text));
    }

    void message(int number, const report::Message& m)
    {
        const QColor colour = m.failed ? kFailedColour : QColor(Qt::black);
        const bool bold = m.failed;
        block(blockFormat(4, 0, 4, 5), charFormat(9.5, true, false, colour));
        cursor_.insertText(QStringLiteral("%1. [%2] ").arg(number).arg(qs(m.window)));
        cursor_.insertText(qs(m.text), charFormat(9.5, bold, false, colour));
        if (!m.clause.empty()) {
            block(blockFormat(0.5, 0, 9), charFormat(8.5, bold, true, colour));
            cursor_.insertText(qs(m.clause));
        }
        for (const auto& o : m.options) {
            if (o.empty())
                continue;
            block(blockFormat(0.5, 0, 9), charFormat(8.5, o == m.answer));
            cursor_.insertText(QStringLiteral("• ") + qs(o));
        }
        if (m.kind == report::Message::Kind::Question) {
            block(blockFormat(0.5, 0, 9), charFormat(8.5, false, false, colour));
            cursor_.insertText(QStringLiteral("Resposta: "));
            cursor_.insertText(qs(m.answer), charFormat(8.5, true, false, colour));
        }
    }

    void verdict(const report::ReportData& r)
    {
        block(blockFormat(8, 0, 4), charFormat(12, true, false, r.failed() ? kFailedColour : QColor(Qt::black)));
        cursor_.insertText(QStringLiteral("Resultado: ") + qs(r.verdict));
    }

    void figure(QSizeF size, detail::Figures::Paint paint, const QString& caption)
    {
        QTextBlockFormat b = blockFormat(5, 1);
        b.setAlignment(Qt::AlignHCenter);
        block(b, charFormat(9.5));
        QTextCharFormat object;
        object.setObjectType(detail::Figures::kObjectType);
        object.setProperty(detail::Figures::kIndexProperty, figures_.add(size, std::move(paint)));
        cursor_.insertText(QString(QChar::ObjectReplacementCharacter), object);
        b = blockFormat(1, 2);
        b.setAlignment(Qt::AlignHCenter);
        block(b, charFormat(8.5, false, true, kGrey));
        cursor_.insertText(caption);
    }

    void solutions(const report::ReportData& r)
    {
        note("Os arranjos que passaram em todas as verificações, do mais leve; os " + std::to_string(r.solutions.size())
             + " primeiros de " + std::to_string(r.solutionsFound) + ", como em \"Soluções\". Em negrito, o arranjo "
             "deste memorial.");
        std::vector<std::vector<std::string>> rows{
            {"Nº", "Peso (kg)", "Barras nas faces b", "Barras nas faces h", "Estribo (mm)"}};
        std::vector<bool> shown{false};
        for (const report::SolutionLine& l : r.solutions) {
            rows.push_back({std::to_string(l.position), l.weight, l.barsOnWidthFace, l.barsOnDepthFace, l.stirrup});
            shown.push_back(l.shown);
        }
        table(rows, {12, 28, 40, 40, 30}, shown, {}, Qt::AlignHCenter);
    }

    // A table of `rows` (the first its titles, in bold) with columns of these widths
    // in mm; a row in `boldRows` stands out; numbers are right-aligned, the first
    // column as `firstColumn` says. One edit for the whole table: the document is
    // laid out once, not again after each cell (seconds for the search's 40 rows).
    void table(const std::vector<std::vector<std::string>>& rows, const std::vector<double>& widthsMm,
               const std::vector<bool>& boldRows = {}, const std::vector<bool>& failedRows = {},
               Qt::Alignment firstColumn = Qt::AlignLeft)
    {
        block(blockFormat(3, 0), charFormat(9));
        QTextTableFormat t;
        t.setHeaderRowCount(1);
        t.setCellPadding(layoutMm(0.6));
        t.setCellSpacing(0);
        t.setBorder(layoutMm(0.15));
        t.setBorderBrush(QColor(150, 150, 150));
        t.setBorderCollapse(true);
        t.setAlignment(Qt::AlignLeft);
        QList<QTextLength> widths;
        for (double w : widthsMm)
            widths << QTextLength(QTextLength::FixedLength, layoutMm(w));
        t.setColumnWidthConstraints(widths);
        const int columns = static_cast<int>(widthsMm.size());
        cursor_.beginEditBlock();
        QTextTable* table = cursor_.insertTable(static_cast<int>(rows.size()), columns, t);
        for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
            const auto k = static_cast<std::size_t>(i);
            const bool bold = i == 0 || (k < boldRows.size() && boldRows[k]);
            const QColor colour = k < failedRows.size() && failedRows[k] ? kFailedColour : QColor(Qt::black);
            for (int j = 0; j < columns && j < static_cast<int>(rows[k].size()); ++j) {
                QTextCursor c = table->cellAt(i, j).firstCursorPosition();
                QTextBlockFormat b;
                b.setAlignment(j == 0 ? firstColumn : Qt::AlignRight);
                c.setBlockFormat(b);
                c.insertText(qs(rows[k][static_cast<std::size_t>(j)]), charFormat(8.5, bold, false, colour));
            }
        }
        cursor_.endEditBlock();
        cursor_.movePosition(QTextCursor::End);
    }

    void emphasis(const std::string& label, const std::string& value)
    {
        block(blockFormat(3, 0, 4), charFormat(10, true));
        cursor_.insertText(qs(label) + QStringLiteral(": "));
        cursor_.insertText(qs(value), charFormat(10, true, false, kHeading));
    }

private:
    void meta(const char* label, const std::string& value)
    {
        block(blockFormat(1, 0), charFormat(10));
        cursor_.insertText(QString::fromUtf8(label) + QStringLiteral(": "));
        cursor_.insertText(qs(value), charFormat(10, true));
    }

    static QTextBlockFormat blockFormat(double topMm, double bottomMm, double indentMm = 0, double hangingMm = 0)
    {
        QTextBlockFormat b;
        b.setTopMargin(layoutMm(topMm));
        b.setBottomMargin(layoutMm(bottomMm));
        b.setLeftMargin(layoutMm(indentMm + hangingMm));
        b.setTextIndent(-layoutMm(hangingMm));
        return b;
    }

    static QTextCharFormat charFormat(double points, bool bold = false, bool italic = false,
                                      const QColor& colour = Qt::black)
    {
        QTextCharFormat c;
        c.setFont(font(points, bold, italic));
        c.setForeground(colour);
        return c;
    }

    // The first paragraph is the document's own empty one; every other is new.
    void block(const QTextBlockFormat& b, const QTextCharFormat& c)
    {
        if (first_) {
            cursor_.setBlockFormat(b);
            cursor_.setBlockCharFormat(c);
            cursor_.setCharFormat(c);
            first_ = false;
            return;
        }
        cursor_.insertBlock(b, c);
        cursor_.setCharFormat(c);
    }

    QTextCursor cursor_;
    detail::Figures& figures_;
    bool first_ = true;
};

void compose(const report::ReportData& r, Builder& b)
{
    b.title(r);
    int n = 0;
    if (!r.cases.empty()) {
        b.heading(QStringLiteral("%1. Casos de carga").arg(++n));
        std::vector<std::vector<std::string>> rows{
            {"Caso", "Nd", "Md", "Zona", "As,nec (cm²)", "Utilização"}};
        std::vector<bool> governing{false}, failed{false};
        for (const auto& c : r.cases) {
            rows.push_back({c.name, c.nd, c.md, c.zone, c.asNec, c.utilisation});
            governing.push_back(c.governing);
            failed.push_back(!c.carried);
        }
        b.table(rows, {22, 40, 50, 16, 20, 20}, governing, failed);
        b.emphasis("Caso determinante", r.governingCase);
        for (const auto& note : r.casesNotes)
            b.note(note);
    }
    for (const auto& s : r.sections)
        b.section(++n, s);
    for (const auto& s : r.norma2014)
        b.section(++n, s);
    if (r.momentContour && r.momentContour->contour.size() >= 3) {
        const report::MomentContour& c = *r.momentContour;
        b.figure(QSizeF(mm(kDiagramWidth), mm(kContourHeight)),
                 [c](QPainter& p, const QRectF& rect) { paintMomentContour(p, rect, c); },
                 QStringLiteral("Contorno resistente Mx–My da seção detalhada em N_Sd do caso determinante "
                                "(item 17.2.5), os pontos de cada caso no topo, na base e na seção intermediária "
                                "(verde com utilização até 100 %, vermelho acima) e a envoltória mínima tracejada "
                                "(itens 11.3.3.4.3 e 15.3.2): %1.")
                     .arg(c.inside ? QStringLiteral("dentro do contorno") : QStringLiteral("FORA do contorno")));
    }

    if (r.quantities) {
        const report::Quantities& q = *r.quantities;
        b.heading(QStringLiteral("%1. Quantitativo de aço").arg(++n));
        std::vector<std::vector<std::string>> rows{
            {"Peça", "Bitola", "Quant.", "Compr. unit. (cm)", "Compr. total (m)", "kg/m", "Peso (kg)"}};
        for (const auto& k : q.rows)
            rows.push_back({k.piece, k.barIndex ? std::string(engine::bar(k.barIndex).label) : std::string("—"),
                            std::to_string(k.count), Format(k.unitLength, "##0.0"), Format(k.totalLength, "##0.00"),
                            Format(k.massPerMetre, "##0.000"), Format(k.weight, "##0.00")});
        // The same diameter's pieces summed, for the order of the steel.
        std::vector<std::pair<int, std::pair<double, double>>> byBar;
        for (const auto& k : q.rows) {
            auto it = std::find_if(byBar.begin(), byBar.end(), [&](const auto& x) { return x.first == k.barIndex; });
            if (it == byBar.end())
                byBar.push_back({k.barIndex, {k.totalLength, k.weight}});
            else
                it->second = {it->second.first + k.totalLength, it->second.second + k.weight};
        }
        std::vector<bool> total(rows.size(), false);
        for (const auto& [index, sum] : byBar) {
            rows.push_back({"Total da bitola", index ? std::string(engine::bar(index).label) : std::string("—"), "",
                            "", Format(sum.first, "##0.00"), "", Format(sum.second, "##0.00")});
            total.push_back(true);
        }
        b.table(rows, {56, 28, 14, 22, 22, 13, 18}, total);
        b.line({"Peso total de aço", Format(q.totalWeight, "##0.00"), "kg", {}});
        b.line({"Estribos ao longo do pilar", std::to_string(q.stirrupLevels), "", {}});
        b.line({"Volume de concreto", Format(q.concreteVolume, "##0.000"), "m³", {}});
        b.line({"Taxa de aço", Format(q.rate, "##0.0"), "kg/m³", {}});
        for (const auto& a : q.assumptions)
            b.note(a);
    }

    b.heading(QStringLiteral("%1. Mensagens e verificações do cálculo").arg(++n));
    b.note("Cada mensagem e pergunta que o cálculo mostrou, na ordem, com o item da norma e a resposta dada.");
    int k = 0;
    for (const auto& m : r.messages)
        b.message(++k, m);
    if (r.messages.empty())
        b.note("O cálculo não mostrou mensagem nem pergunta.");
    b.verdict(r);

    b.section(++n, r.verification);
    if (r.diagram)
        b.figure(QSizeF(mm(kDiagramWidth), mm(kDiagramHeight)),
                 [d = *r.diagram](QPainter& p, const QRectF& rect) { paintDiagram(p, rect, d); },
                 r.diagram->cases.size() > 1
                     ? QStringLiteral("Curva de interação N_Rd–M_Rd da seção detalhada (N de compressão positivo) e "
                                      "o ponto (γn·Nd, γn·Md) de cada caso: verde com utilização até 100 %, vermelho "
                                      "acima; o caso determinante maior e circulado.")
                     : QStringLiteral("Curva de interação N_Rd–M_Rd da seção detalhada (N de compressão positivo) e "
                                      "o ponto de cálculo: verde com utilização até 100 %, vermelho acima."));

    b.heading(QStringLiteral("%1. Desenho da seção").arg(++n));
    std::string why = r.drawingMissing;
    if (r.drawing && exporting::checkDrawable(*r.drawing, why)) {
        const exporting::Extent e = exporting::drawingExtent(*r.drawing);
        const double roomWidth = (kDrawingRoomWidth - 2 * kDrawingMargin) / 10;
        const double roomHeight = (kDrawingRoomHeight - 2 * kDrawingMargin) / 10;
        const double scale = report::drawingScale(e.width(), e.height(), roomWidth, roomHeight);
        const QSizeF size(mm(e.width() / scale * 10 + 2 * kDrawingMargin),
                          mm(e.height() / scale * 10 + 2 * kDrawingMargin));
        b.figure(size,
                 [g = *r.drawing, scale](QPainter& p, const QRectF& rect) { paintDrawing(p, rect, g, scale); },
                 QStringLiteral("Seção transversal na escala %1, medidas em cm.").arg(qs(report::scaleText(scale))));
    } else {
        b.note(why.empty() ? std::string("Sem desenho.") : why);
    }

    if (!r.solutions.empty() || !r.solutionsNote.empty()) {
        b.heading(QStringLiteral("%1. Soluções da busca da melhor solução").arg(++n));
        if (!r.solutions.empty())
            b.solutions(r);
        else
            b.note(r.solutionsNote);
    }
}

// A heading left at the foot of a page, its text on the next, starts the next page.
void keepHeadingsWithText(QTextDocument& doc, const std::vector<int>& headings)
{
    const double page = doc.pageSize().height();
    QAbstractTextDocumentLayout* layout = doc.documentLayout();
    for (int round = 0; round < 4; ++round) {
        bool moved = false;
        for (int position : headings) {
            QTextBlock h = doc.findBlock(position);
            const QTextBlock next = h.next();
            if (!next.isValid())
                continue;
            const int hPage = static_cast<int>(layout->blockBoundingRect(h).top() / page);
            const int nextPage = static_cast<int>(layout->blockBoundingRect(next).bottom() / page);
            if (nextPage > hPage && h.blockFormat().pageBreakPolicy() != QTextFormat::PageBreak_AlwaysBefore) {
                QTextCursor c(h);
                QTextBlockFormat f = h.blockFormat();
                f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                c.setBlockFormat(f);
                moved = true;
                break; // the pages after it have moved: look again from the start
            }
        }
        if (!moved)
            return;
    }
}

void paintPageFrame(QPainter& p, const report::ReportData& r, int page, int pages)
{
    p.save();
    p.setPen(QPen(kGrey, mm(0.2)));
    const double left = mm(kLeft), right = mm(kPageWidth - kRight);
    p.drawLine(QPointF(left, mm(17)), QPointF(right, mm(17)));
    p.drawLine(QPointF(left, mm(kPageHeight - 14)), QPointF(right, mm(kPageHeight - 14)));
    const QRectF top(left, mm(11), right - left, mm(5));
    p.setPen(Qt::black);
    p.setFont(font(8.5, true));
    // The column's name, where there is one, tells the pages of one column from another's.
    const std::string& column = r.heading.column;
    p.drawText(top, Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Memorial de cálculo: ")
                   + qs(column.empty() ? r.project : "Pilar " + column + " (" + r.project + ")"));
    p.setFont(font(8.5));
    p.drawText(top, Qt::AlignRight | Qt::AlignVCenter,
               QStringLiteral("Pilarix %1   %2").arg(qs(r.stamp.version), qs(r.stamp.dateTime)));
    const QRectF foot(left, mm(kPageHeight - 13), right - left, mm(5));
    p.setFont(font(8));
    p.setPen(kGrey);
    // The rule set the column was calculated by.
    std::string footText = r.norma.empty() ? "NBR 6118 (Projeto de revisão da NB1 / 2001), método das zonas de solicitação"
                                           : r.norma + ", método das zonas de solicitação";
    if (!r.heading.work.empty())
        footText = "Obra: " + r.heading.work + (r.heading.revision.empty() ? "" : "   Revisão: " + r.heading.revision);
    p.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, qs(footText));
    p.setPen(Qt::black);
    p.setFont(font(8.5));
    p.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("%1 / %2").arg(page).arg(pages));
    p.restore();
}

} // namespace

QByteArray reportPdf(const report::ReportData& r, std::string& error)
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        error = "O memorial em PDF precisa da parte gráfica do Qt (QGuiApplication), que o programa não iniciou.";
        return {};
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kDpi);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0),
                                         QPageLayout::Millimeter));
        writer.setTitle(QStringLiteral("Memorial de cálculo: ") + qs(r.project));
        writer.setCreator(QStringLiteral("Pilarix ") + qs(r.stamp.version));

        QTextDocument doc;
        doc.documentLayout()->setPaintDevice(&writer);
        doc.setDocumentMargin(0);
        doc.setDefaultFont(font(9.5));
        doc.setPageSize(QSizeF(mm(kBodyWidth), mm(kBodyHeight)));
        detail::Figures figures;
        doc.documentLayout()->registerHandler(detail::Figures::kObjectType, &figures);
        Builder builder(doc, figures);
        compose(r, builder);
        keepHeadingsWithText(doc, builder.headings);

        QPainter painter;
        if (!painter.begin(&writer)) {
            error = "o PDF não pôde ser gerado";
            return {};
        }
        const int pages = doc.pageCount();
        const double pageHeight = doc.pageSize().height();
        for (int i = 0; i < pages; ++i) {
            if (i > 0)
                writer.newPage();
            paintPageFrame(painter, r, i + 1, pages);
            painter.save();
            painter.translate(mm(kLeft), mm(kTop) - i * pageHeight);
            // A line the layout moved to the next page starts exactly on the page's
            // edge, and one that ends a page ends on it: a clip a hair inside the page
            // keeps each on its own page only, so that no text is written twice,
            // hidden under the clip, for a reader of the PDF to find.
            constexpr double kHair = 1; // 1/1200 in
            doc.drawContents(&painter,
                             QRectF(0, i * pageHeight + kHair, doc.pageSize().width(), pageHeight - 2 * kHair));
            painter.restore();
        }
        painter.end();
    }
    return buffer.data();
}

bool writeReportPdf(const report::ReportData& r, const std::string& path, std::string& error)
{
    if (path.empty()) {
        error = "Não foi indicado o nome do arquivo do memorial.";
        return false;
    }
    if (const int obstacle = exporting::obstacleToSaving(path)) {
        error = exporting::saveFailure(path, obstacle);
        return false;
    }
    if (const std::string why = files::notARegularFile(path); !why.empty()) {
        error = exporting::saveFailure(path, why);
        return false;
    }
    std::string why;
    const QByteArray bytes = reportPdf(r, why);
    if (bytes.isEmpty()) {
        error = exporting::saveFailure(path, why);
        return false;
    }
    return saveWholeFile(bytes, path, error);
}

bool writeReport(const app::CalculationRecord& record, const std::string& path, const report::ReportStamp& stamp,
                 std::string& error)
{
    report::ReportData r;
    std::string why;
    if (!report::buildReport(record, stamp, r, why)) {
        error = path.empty() ? why : exporting::saveFailure(path, why);
        return false;
    }
    return writeReportPdf(r, path, error);
}

report::ReportStamp currentStamp()
{
    return {QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yyyy HH:mm")).toStdString(),
            std::string(report::programVersion())};
}

} // namespace pilarix::render

#include "report_pdf.moc"
