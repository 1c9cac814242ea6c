// The window, the calculation report and the JSON of the command line read one
// record of a calculation: for the same project they must show the same numbers —
// areas, zone, the verdict, the utilisation, every load case and the governing one.

#include "ui_support.h"

#include "base/number_text.h"
#include "cli/cli.h"
#include "report/report_data.h"
#include "ui/cases_dialog.h"
#include "ui/verdict_text.h"

#include <QLabel>
#include <QTableWidget>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace pilarix;

namespace {

// The value of a report line by its label, in the section given.
std::string reportValue(const report::Section& s, const std::string& label)
{
    for (const auto& l : s.lines)
        if (l.label == label)
            return l.value;
    return "(sem a linha " + label + ")";
}

// "87.4 %", "87.4" or a fraction 0.874: the utilisation in tenths of a percent.
long tenths(double fraction) { return std::lround(1000 * fraction); }
long tenths(const std::string& percentText) { return std::lround(10 * std::stod(percentText)); }

struct Project {
    const char* name;
    const char* otherCases; // pasted into "Combinações de esforços"; empty: one case
    const char* governing;  // the case the report and the window name; empty: one case
};

} // namespace

TEST(UmRegistro, TheWindowTheReportAndTheJsonShowTheSameNumbers)
{
    const Project projects[] = {
        {"one case", "", ""},
        {"two cases, the second governing", "vento\t600\t20000", "vento"},
    };
    for (const auto& pr : projects) {
        SCOPED_TRACE(pr.name);
        test::Janela j;
        j.poe("Text3", "4");
        j.poe("Text16", "400");
        j.poe("Text17", "10000");
        ui::CasesDialog* casos = nullptr;
        if (*pr.otherCases) {
            j.aciona("mnuItemCasos");
            casos = j.w.findChild<ui::CasesDialog*>();
            ASSERT_TRUE(casos->cola(QString::fromUtf8(pr.otherCases)));
        }
        j.clica("Command1");

        const app::CalculationRecord record = j.p.registroDoCalculo();
        const auto json = documentJson(record, false);
        report::ReportData rep;
        std::string error;
        ASSERT_TRUE(report::buildReport(record, {"24/11/2026 08:00", "t"}, rep, error)) << error;
        ASSERT_EQ(rep.sections.size(), 3u);
        const report::Section& design = rep.sections[1];
        const report::Section& detail = rep.sections[2];

        // The verdict and the result boxes.
        EXPECT_EQ(j.texto("Text30"), json["Erros"].get<std::string>());
        EXPECT_EQ(j.texto("Text30"), rep.verdict);
        const struct {
            const char* box;
            const report::Section* section;
            const char* label;
        } boxes[] = {{"Text10", &design, "As,nec"}, {"Text9", &detail, "As,mín"}, {"Text11", &detail, "As,ef (efetiva)"}};
        for (const auto& b : boxes) {
            EXPECT_EQ(j.texto(b.box), json["caixas"][b.box].get<std::string>()) << b.box;
            EXPECT_EQ(j.texto(b.box), reportValue(*b.section, b.label)) << b.box;
        }
        const std::string zone = reportValue(design, "Zona de solicitação");
        EXPECT_EQ(zone.substr(0, zone.find(' ')), j.texto("Text8"));
        EXPECT_EQ(j.texto("Text8"), json["caixas"]["Text8"].get<std::string>());

        // The utilisation of the detailed section.
        const double u = json["verificacao"]["utilizacao"].get<double>();
        EXPECT_EQ(tenths(j.texto("TextUtilizacao")), tenths(u));
        EXPECT_EQ(tenths(reportValue(rep.verification, "Utilização")), tenths(u));

        // Every case and the governing one.
        auto* rotulo = j.w.findChild<QLabel*>(QStringLiteral("lblCasoDeterminante"));
        if (!*pr.governing) {
            EXPECT_FALSE(json.contains("casos"));
            EXPECT_TRUE(rep.cases.empty());
            EXPECT_FALSE(rotulo->isVisibleTo(&j.w));
            continue;
        }
        ASSERT_EQ(rep.cases.size(), json["casos"].size());
        EXPECT_EQ(rep.governingCase, pr.governing);
        EXPECT_TRUE(rotulo->text().startsWith(QStringLiteral("Caso determinante: ") + QString::fromUtf8(pr.governing)))
            << rotulo->text().toStdString();
        for (std::size_t i = 0; i < rep.cases.size(); ++i) {
            const auto& c = json["casos"][i];
            EXPECT_EQ(rep.cases[i].name, c["nome"].get<std::string>());
            EXPECT_EQ(rep.cases[i].governing, c["governa"].get<bool>());
            EXPECT_EQ(rep.cases[i].asNec, Format(c["AsNec"].get<double>(), "##0.00")) << rep.cases[i].name;
            EXPECT_EQ(tenths(rep.cases[i].utilisation), tenths(c["utilizacao"].get<double>())) << rep.cases[i].name;
            // The cases table of the window, row i.
            const int row = static_cast<int>(i);
            EXPECT_EQ(casos->tabela()->item(row, 0)->text().toStdString(), rep.cases[i].name);
            EXPECT_EQ(casos->tabela()->item(row, 8)->text().toStdString(), rep.cases[i].asNec);
            EXPECT_EQ(tenths(casos->tabela()->item(row, 9)->text().toStdString()), tenths(rep.cases[i].utilisation));
        }
        // The report's data are the forces the design was made for: the governing case's.
        EXPECT_EQ(reportValue(rep.sections[0], "Nd").rfind("600 KN", 0), 0u) << reportValue(rep.sections[0], "Nd");
        EXPECT_EQ(reportValue(rep.sections[0], "Md").rfind("20000 KN.cm", 0), 0u) << reportValue(rep.sections[0], "Md");
    }
}

TEST(UmRegistro, TheWindowsDiagramAndTheReportsConvertUnitsAlike)
{
    // A unit a list holds is shown as typed; a name no list holds (a hand-edited
    // project) shows kN and kN·m in both, never a bare kgf under a foreign name.
    const struct {
        const char *force, *moment, *shownForce, *shownMoment;
    } rows[] = {
        {"KN", "KN.cm", "KN", "KN.cm"},
        {"Tf", "Tf.m", "Tf", "Tf.m"},
        {"kn", "kn.m", "kN", "kN·m"},
    };
    test::Janela j;
    j.poe("Text3", "4");
    j.clica("Command1");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.force);
        app::CalculationRecord record = j.p.registroDoCalculo();
        record.project.units.force = row.force;
        record.project.units.moment = row.moment;
        report::ReportData rep;
        std::string error;
        ASSERT_TRUE(report::buildReport(record, {"24/11/2026 08:00", "t"}, rep, error)) << error;
        ASSERT_TRUE(rep.diagram);
        const ui::DiagramData window = ui::dadosDoDiagrama(record);
        EXPECT_EQ(rep.diagram->forceUnit, row.shownForce);
        EXPECT_EQ(rep.diagram->momentUnit, row.shownMoment);
        EXPECT_EQ(window.forceUnit.toStdString(), row.shownForce);
        EXPECT_EQ(window.momentUnit.toStdString(), row.shownMoment);
        ASSERT_EQ(window.points.size(), 1u);
        EXPECT_DOUBLE_EQ(window.points[0].n, rep.diagram->nSd);
        EXPECT_DOUBLE_EQ(window.points[0].m, rep.diagram->mSd);
    }
}
