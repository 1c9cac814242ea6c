// The one painter of the interaction diagram: its texts overlap neither each other,
// nor a case's marker, nor the curve, whatever the cases; every case is drawn; and
// the window's diagram and the report's are the same chart painted by the same code.

#include "cli/controls_by_name.h"
#include "render/interaction_painter.h"
#include "render/report_pdf.h"
#include "report/report_data.h"
#include "ui/interaction_dialog.h"
#include "ui/main_window.h"
#include "ui/project_data_dialog.h"
#include "window/window_input.h"
#include "window/policy_dialogs.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QLineF>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

using namespace pilarix;
using render::ChartCase;
using render::ChartLabel;
using render::InteractionChart;

namespace {

// An ellipse about (0, 600) like a column's curve in KN and KN.cm.
InteractionChart ellipse(std::vector<ChartCase> cases)
{
    InteractionChart c;
    c.forceUnit = "KN";
    c.momentUnit = "KN.cm";
    for (int i = 0; i < 200; ++i)
        c.curve.emplace_back(600 + 1000 * std::cos(M_PI * i / 100), 15000 * std::sin(M_PI * i / 100));
    c.cases = std::move(cases);
    return c;
}

bool segmentMeets(QPointF a, QPointF b, const QRectF& r)
{
    if (r.contains(a) || r.contains(b))
        return true;
    const QLineF s(a, b);
    for (const QLineF& e : {QLineF(r.topLeft(), r.topRight()), QLineF(r.topRight(), r.bottomRight()),
                            QLineF(r.bottomRight(), r.bottomLeft()), QLineF(r.bottomLeft(), r.topLeft())})
        if (s.intersects(e, nullptr) == QLineF::BoundedIntersection)
            return true;
    return false;
}

} // namespace

TEST(InteractionPainter, TextsOverlapNothingAndEveryCaseIsDrawn)
{
    // Points near one another fight for the same room; names long and short.
    std::vector<ChartCase> crowd;
    for (int i = 0; i < 12; ++i)
        crowd.push_back({"combinação " + std::to_string(i + 1), 400 + 8.0 * i, 9000 + 120.0 * i, 0.7 + 0.01 * i,
                         i == 5});
    std::vector<ChartCase> spread;
    for (int i = 0; i < 6; ++i)
        spread.push_back({"C" + std::to_string(i), -200 + 250.0 * i, -12000 + 4500.0 * i, 0.3 + 0.25 * i, false});
    struct Row {
        const char* name;
        std::vector<ChartCase> cases;
        QSizeF size;
        bool allNamedInFull; // room enough for every name with its utilisation
    };
    const std::vector<Row> rows{
        {"one point", {{"", 400, 10000, 0.835, true}}, {760, 560}, true},
        {"two cases", {{"topo", 400, 10000, 0.66, false}, {"vento", 500, 15000, 0.997, true}}, {760, 560}, true},
        {"spread, one outside", spread, {760, 560}, false},
        {"a crowd", crowd, {760, 560}, false},
        {"a crowd on a small plot", crowd, {260, 200}, false},
        {"a case at the origin and one on the curve", {{"zero", 0, 0, 0, false}, {"borda", 1600, 0, 1.0, true}},
         {500, 400}, false},
    };
    QImage device(10, 10, QImage::Format_RGB32);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const InteractionChart chart = ellipse(row.cases);
        const render::ChartStyle style{QApplication::font(), 1};
        const QRectF bounds(QPointF(0, 0), row.size);
        const render::ChartLayout l = render::layoutChart(chart, bounds, style, &device);
        ASSERT_TRUE(l.drawable);

        // Every case is drawn, inside the frame; named or told unnamed, never both.
        ASSERT_EQ(l.markers.size(), row.cases.size());
        std::vector<int> named(row.cases.size(), 0);
        for (const auto& m : l.markers)
            EXPECT_TRUE(l.area.adjusted(-0.5, -0.5, 0.5, 0.5).contains(m.centre)) << m.caseIndex;
        for (const auto& t : l.labels)
            if (t.kind == ChartLabel::Kind::Case)
                ++named[static_cast<std::size_t>(t.caseIndex)];
        for (int u : l.unlabelledCases)
            ++named[static_cast<std::size_t>(u)];
        for (std::size_t i = 0; i < named.size(); ++i)
            EXPECT_EQ(named[i], 1) << "case " << i;
        if (row.allNamedInFull) {
            EXPECT_TRUE(l.unlabelledCases.empty());
            for (const auto& t : l.labels)
                EXPECT_FALSE(t.shortened) << t.text.toStdString();
        }

        for (std::size_t i = 0; i < l.labels.size(); ++i) {
            const ChartLabel& a = l.labels[i];
            SCOPED_TRACE(a.text.toStdString());
            EXPECT_TRUE(bounds.contains(a.rect));
            for (std::size_t j = i + 1; j < l.labels.size(); ++j)
                EXPECT_FALSE(a.rect.intersects(l.labels[j].rect)) << "over " << l.labels[j].text.toStdString();
            for (const auto& m : l.markers) {
                const QRectF disc(m.centre - QPointF(m.radius, m.radius), QSizeF(2 * m.radius, 2 * m.radius));
                EXPECT_FALSE(a.rect.intersects(disc)) << "over the marker of case " << m.caseIndex;
            }
            for (std::size_t k = 0; k < l.curve.size(); ++k)
                ASSERT_FALSE(segmentMeets(l.curve[k], l.curve[(k + 1) % l.curve.size()], a.rect)) << "over the curve";
        }
        // The values of both axes and both titles are there.
        int moment = 0, force = 0, titles = 0;
        for (const auto& t : l.labels) {
            moment += t.kind == ChartLabel::Kind::MomentTick;
            force += t.kind == ChartLabel::Kind::ForceTick;
            titles += t.kind == ChartLabel::Kind::MomentTitle || t.kind == ChartLabel::Kind::ForceTitle;
        }
        EXPECT_GE(moment, 2);
        EXPECT_GE(force, 2);
        EXPECT_EQ(titles, 2);
    }
}

TEST(InteractionPainter, TheWindowsDiagramAndTheReportsAreOneChartPaintedByOneCode)
{
    PolicyDialogs answers;
    ui::MainWindow window(&answers);
    window.inicia();
    auto& p = window.program();
    p.NomeDoCaso1 = "topo";
    p.OutrosCasos = {{"vento", "500", "15000"}, {"sismo", "300", "-12000"}};
    window.calcula();
    window.findChild<QAction*>(QStringLiteral("mnuItemDiagrama"))->trigger();
    auto* dialog = window.findChild<ui::InteractionDialog*>();
    ASSERT_TRUE(dialog);
    ui::InteractionPlot* plot = dialog->grafico();

    report::ReportData r;
    std::string error;
    ASSERT_TRUE(report::buildReport(p.registroDoCalculo(), {"01/02/2025 08:30", "0.1"}, r, error)) << error;
    ASSERT_TRUE(r.diagram);
    const InteractionChart fromReport = render::diagramChart(*r.diagram);
    const InteractionChart fromWindow = ui::chartOf(plot->data());

    ASSERT_EQ(fromReport.cases.size(), 3u);
    ASSERT_EQ(fromWindow.cases.size(), fromReport.cases.size());
    for (std::size_t i = 0; i < fromReport.cases.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(fromWindow.cases[i].name, fromReport.cases[i].name);
        EXPECT_DOUBLE_EQ(fromWindow.cases[i].n, fromReport.cases[i].n);
        EXPECT_DOUBLE_EQ(fromWindow.cases[i].m, fromReport.cases[i].m);
        EXPECT_EQ(fromWindow.cases[i].governing, fromReport.cases[i].governing);
    }
    EXPECT_EQ(fromWindow.curve.size(), fromReport.curve.size());
    EXPECT_EQ(fromWindow.forceUnit, fromReport.forceUnit);
    EXPECT_EQ(fromWindow.momentUnit, fromReport.momentUnit);

    // The window's widget paints exactly what the painter paints of the report's chart.
    plot->resize(700, 500);
    const QImage shown = plot->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QImage painted(shown.size(), QImage::Format_RGB32);
    painted.setDevicePixelRatio(shown.devicePixelRatio());
    painted.fill(Qt::white);
    {
        QPainter painter(&painted);
        const render::ChartStyle style = plot->style();
        render::paintChart(painter, fromReport,
                           render::layoutChart(fromReport, QRectF(plot->rect()), style, plot), style);
    }
    EXPECT_TRUE(shown == painted) << "the window's diagram is not the painter's";
}

TEST(ProjectDataDialog, GivesBackWhatIsTypedAndIsPartOfTheProject)
{
    const DadosDaObra antes{"Obra A", "", "P1", "", "R0"};
    ui::ProjectDataDialog d(antes);
    const auto box = [&d](const char* name) { return d.findChild<QLineEdit*>(QString::fromLatin1(name)); };
    for (const char* name : {"txtObra", "txtCliente", "txtPilar", "txtEngenheiro", "txtRevisao"})
        ASSERT_TRUE(box(name)) << name;
    EXPECT_EQ(box("txtPilar")->text(), QStringLiteral("P1"));
    box("txtCliente")->setText(QStringLiteral("  Construtora X "));
    box("txtRevisao")->setText(QStringLiteral("R1"));
    const DadosDaObra depois = d.dados();
    EXPECT_EQ(depois.obra, "Obra A");
    EXPECT_EQ(depois.cliente, "Construtora X"); // blanks at the ends dropped
    EXPECT_EQ(depois.revisao, "R1");

    // The heading is an input of the project: a change of it is an unsaved change, undone as any other.
    PolicyDialogs answers;
    Program p(answers);
    const std::string saved = fotoDaEntrada(p, Alcance::Projeto);
    ASSERT_TRUE(restauraEntrada(p, "Pilar", "P9"));
    EXPECT_EQ(p.Obra.pilar, "P9");
    EXPECT_NE(fotoDaEntrada(p, Alcance::Projeto), saved);
    EXPECT_EQ(fotoDaEntrada(p, Alcance::Resultado).find("P9"), std::string::npos) << "not an input of the result";
}
