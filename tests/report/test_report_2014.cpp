// The report of a column by ABNT NBR 6118:2014: every figure the engine found for the
// governing case is there with its clause, the rule set heads the data, the Mx–My
// picture is the check's own numbers in the window's unit; and a 2001 report gets
// none of it.

#include "base/number_text.h"
#include "cli/controls_by_name.h"
#include "report/report_data.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

using namespace pilarix;

namespace {

const report::ReportStamp kStamp{"01/02/2025 08:30", "0.1"};
using Sets = std::vector<std::pair<std::string, std::string>>;

// The textbook's 20 × 50 cm column, 1400 KN, ℓ = 280 cm, and a wind case with
// moments at both ends in both directions.
const Sets kColuna2014{{"Norma", "2014"}, {"Text1", "50"}, {"Text2", "20"}, {"Text3", "4"}, {"Text4", "4"},
                       {"Text5", "2"},    {"Text16", "1400"}, {"Text17", "0"}, {"Text18", "30"},
                       {"Text21", "1.4"}, {"Text23", "280"}, {"MyTopo", "3000"}, {"MyBase", "-1500"}};

struct Column {
    explicit Column(const Sets& sets, bool withWind = true)
    {
        dialogs.coverAnswer = 1;
        for (const auto& [name, value] : sets) {
            std::string error;
            EXPECT_TRUE(setControlByName(program, name, value, error)) << name << ": " << error;
        }
        if (withWind)
            program.OutrosCasos.push_back({"vento", "1000", "2500", "-1000", "4000", "2000"});
        program.Command1_Click();
    }
    report::ReportData report() const
    {
        report::ReportData r;
        std::string error;
        EXPECT_TRUE(report::buildReport(program.registroDoCalculo(), kStamp, r, error)) << error;
        return r;
    }
    PolicyDialogs dialogs;
    Program program{dialogs};
};

const report::Line* find(const report::Section& s, const std::string& label)
{
    for (const auto& l : s.lines)
        if (l.label.starts_with(label))
            return &l;
    return nullptr;
}

bool contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

} // namespace

TEST(Report2014, EveryFigureOfTheGoverningCaseWithItsClause)
{
    Column c(kColuna2014);
    ASSERT_TRUE(c.program.Resultado2014);
    const auto& r = *c.program.Resultado2014;
    ASSERT_FALSE(r.refusal);
    const auto& g = r.cases.at(static_cast<std::size_t>(r.governingCase));
    const report::ReportData d = c.report();
    ASSERT_EQ(d.norma2014.size(), 4u) << "general, direction h, direction b, both together";
    const double kn = 100; // the window's KN.cm: kgf·cm / 100; moments to four figures, as every force of the report

    const struct {
        const char* name;
        std::size_t section;
        const char* label;
        std::string value; // the start of the printed value
        const char* clause;
    } rows[] = {
        {"γn", 0, "γn", Format(r.gammaN, "##0.000"), "13.2.3"},
        {"method", 0, "Método da 2ª ordem", "pilar-padrão com curvatura", "15.8.3.3.2"},
        {"governing case", 0, "Caso determinante", g.loadCase.name, ""},
        {"governing direction", 0, "Direção determinante", std::string(1, r.governingDirection), ""},
        {"λ of h", 1, "λ = 3.46", Format(g.h.slenderness.lambda, "##0.00"), "15.8.2"},
        {"λ1 of h", 1, "λ1", Format(g.h.slenderness.lambda1, "##0.00"), "15.8.2"},
        {"αb of h", 1, "αb", Format(g.h.slenderness.alphaB, "##0.000"), "15.8.2"},
        {"M1d,min of h", 1, "M1d,mín", Format(g.h.slenderness.minimumMoment / kn, "##0"), "11.3.3.4.3"},
        {"M2d of h", 1, "M2d", Format(g.h.slenderness.secondOrderMoment / kn, "##0"), "15.8.3.3.2"},
        {"Md,tot of h", 1, "Md,tot", Format(g.h.slenderness.totalMoment / kn, "##0"), "15.8.3.3.2"},
        {"As of h", 1, "As,nec", Format(g.h.asNec, "##0.00"), ""},
        {"λ of b", 2, "λ = 3.46", Format(g.b.slenderness.lambda, "##0.00"), "15.8.2"},
        {"e1 of b", 2, "e1", Format(g.b.slenderness.e1, "##0.00"), "15.8.2"},
        {"M1d,min of b", 2, "M1d,mín", Format(g.b.slenderness.minimumMoment / kn, "##0"), "11.3.3.4.3"},
        {"oblique utilisation", 3, "Utilização", Format(100 * r.oblique->utilisation, "##0.0"), "17.2.5"},
        {"envelope margin", 3, "Margem da envoltória", Format(r.oblique->envelope.margin, "##0.000"), ""},
        {"envelope semi-axes", 3, "Semi-eixos", Format(r.oblique->envelope.semiAxisX / kn, "##0"),
         "11.3.3.4.3 e 15.3.2"},
    };
    for (const auto& row : rows) {
        const report::Line* l = find(d.norma2014.at(row.section), row.label);
        ASSERT_NE(l, nullptr) << row.name;
        EXPECT_TRUE(l->value.starts_with(row.value)) << row.name << ": " << l->value << " vs " << row.value;
        EXPECT_TRUE(contains(l->note, row.clause)) << row.name << ": " << l->note;
    }
    // Every point of the check is listed.
    std::size_t points = 0;
    for (const auto& l : d.norma2014[3].lines)
        points += l.label.starts_with("Caso ");
    EXPECT_EQ(points, r.oblique->points.size());
}

TEST(Report2014, TheRuleSetHeadsTheDataAndThePictureIsTheChecksOwn)
{
    for (const char* norma : {"2014", "2023"}) {
        Sets sets = kColuna2014;
        sets.front().second = norma;
        Column c(sets);
        const report::ReportData d = c.report();
        ASSERT_FALSE(d.sections.front().lines.empty());
        EXPECT_EQ(d.sections.front().lines.front().label, "Norma") << norma;
        EXPECT_EQ(d.sections.front().lines.front().value, "ABNT NBR 6118:" + std::string(norma));
        ASSERT_TRUE(d.momentContour) << norma;
        const auto& o = *c.program.Resultado2014->oblique;
        const auto& m = *d.momentContour;
        EXPECT_EQ(m.points.size(), o.points.size());
        EXPECT_EQ(m.contour.size(), o.contour.size());
        EXPECT_NEAR(m.semiAxisX, o.envelope.semiAxisX / 100, 1e-9) << "KN.cm";
        EXPECT_NEAR(m.mRdyy, o.mRdyy / 100, 1e-9);
        EXPECT_TRUE(m.several);
        EXPECT_EQ(m.inside, o.envelope.inside);
    }
}

TEST(Report2014, A2001ReportGetsNoneOfIt)
{
    Sets sets = kColuna2014;
    sets.front().second = "2001";
    sets.resize(sets.size() - 2); // no moments of the direction of b
    Column c(sets, false);
    const report::ReportData d = c.report();
    EXPECT_TRUE(d.norma.empty());
    EXPECT_TRUE(d.norma2014.empty());
    EXPECT_FALSE(d.momentContour);
    for (const auto& l : d.sections.front().lines)
        EXPECT_NE(l.label, "Norma");
}

TEST(Report2014, ARefusedColumnSaysWhyAndDrawsNothing)
{
    Sets sets = kColuna2014;
    sets[1].second = "12"; // b = 12 cm: below 14 cm (13.2.3)
    Column c(sets, false);
    const report::ReportData d = c.report();
    ASSERT_EQ(d.norma2014.size(), 1u);
    ASSERT_FALSE(d.norma2014[0].notes.empty());
    EXPECT_TRUE(contains(d.norma2014[0].notes.front(), "13.2.3")) << d.norma2014[0].notes.front();
    EXPECT_FALSE(d.momentContour);
}
