// The calculation report's contents: the numbers are the window's, every message of
// the run is there in order with its answer, a failed run says what failed, and a
// report with nothing to report is refused.

#include "base/number_text.h"
#include "cli/controls_by_name.h"
#include "report/report_data.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace pilarix;

namespace {

const report::ReportStamp kStamp{"01/02/2025 08:30", "0.1"};

using Sets = std::vector<std::pair<std::string, std::string>>;

// A column of the window calculated with "&Calcula" from the defaults and `sets`.
struct Column {
    explicit Column(const Sets& sets = {}, int coverAnswer = 1, int stirrupOption = 4)
    {
        dialogs.coverAnswer = coverAnswer;
        dialogs.stirrupOption = stirrupOption;
        for (const auto& [name, value] : sets) {
            std::string error;
            EXPECT_TRUE(setControlByName(program, name, value, error)) << name << ": " << error;
        }
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

const report::Line& line(const report::ReportData& r, std::size_t section, const std::string& label)
{
    for (const auto& l : r.sections.at(section).lines)
        if (l.label.starts_with(label))
            return l;
    ADD_FAILURE() << "no line \"" << label << "\" in " << r.sections.at(section).title;
    static const report::Line none;
    return none;
}

bool contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

bool anyContains(const std::vector<std::string>& texts, const std::string& part)
{
    for (const auto& t : texts)
        if (contains(t, part))
            return true;
    return false;
}

constexpr std::size_t kData = 0, kDesign = 1, kDetail = 2;

} // namespace

TEST(ReportData, RefusedBeforeAnyCalculation)
{
    PolicyDialogs dialogs;
    Program program(dialogs);
    report::ReportData r;
    std::string error;
    EXPECT_FALSE(report::buildReport(program.registroDoCalculo(), kStamp, r, error));
    EXPECT_TRUE(contains(error, "Calcula")) << error;
}

TEST(ReportData, DefaultColumnReadsAsTheWindow)
{
    const Column c;
    const auto& f = c.program.Form1;
    ASSERT_EQ(f.Text30.Text, "Ok");
    const report::ReportData r = c.report();
    EXPECT_EQ(r.project, "sem título");
    EXPECT_EQ(r.stamp.dateTime, kStamp.dateTime);
    EXPECT_EQ(r.verdict, "Ok");

    struct Row {
        std::size_t section;
        const char* label;
        std::string value; // value and unit, as on the page
    };
    const std::vector<Row> rows{
        {kData, "Seção b × h", "20 × 50 cm"},
        {kData, "Nd", "400 KN (400.0 kN)"},
        {kData, "Md", "10000 KN.cm (100.00 kN·m)"},
        {kData, "fcd", "13.333 MPa"},
        {kData, "fyd", "434.78 MPa"},
        {kData, "εyd", "2.070 ‰"},
        {kDesign, "Zona de solicitação", "2 (C)"},
        {kDesign, "βx", f.Text28.Text},
        {kDesign, "Altura da linha neutra", f.Text29.Text + " cm"},
        {kDesign, "As,nec", f.Text10.Text + " cm²"},
        {kDetail, "As,ef", f.Text11.Text + " cm²"},
        {kDetail, "As,mín", f.Text9.Text + " cm²"},
        {kDetail, "Excesso de aço", f.Text15.Text.substr(0, f.Text15.Text.size() - 1) + " %"},
        {kDetail, "Cobrimento nominal", f.Text25.Text + " cm"},
        {kDetail, "Cobrimento efetivo", f.Text26.Text + " cm"},
        {kDetail, "Estribo", f.Text27.Text},
        {kDetail, "Peso do aço longitudinal", f.Text19.Text + " kg"},
        {kDetail, "Barras longitudinais", "8 φ 12.5 mm (1/2'')"},
    };
    for (const Row& row : rows) {
        const report::Line& l = line(r, row.section, row.label);
        EXPECT_EQ(l.value + (l.unit.empty() ? "" : " " + l.unit), row.value) << row.label;
    }
    // d' was typed (the box is empty) and the cover correction rewrote it.
    EXPECT_TRUE(contains(line(r, kData, "d′").note, "caixa d′ vazia (0 cm); reescrito pela correção do cobrimento para " + f.Text3.Text + " cm"));
    EXPECT_TRUE(contains(line(r, kDesign, "As,nec").note, "As,compat = 6.57 cm²"));

    // Every dialog of the run, in order, with the answer given.
    ASSERT_EQ(r.messages.size(), c.program.MensagensDoCalculo.size());
    ASSERT_EQ(r.messages.size(), 2u);
    for (std::size_t i = 0; i < r.messages.size(); ++i) {
        EXPECT_EQ(r.messages[i].text, c.program.MensagensDoCalculo[i].mensagem);
        EXPECT_EQ(r.messages[i].clause, c.program.MensagensDoCalculo[i].item);
        EXPECT_EQ(r.messages[i].answer, "1 - Utilizar cobrimento mínimo");
        EXPECT_FALSE(r.messages[i].failed);
    }

    ASSERT_TRUE(r.diagram);
    EXPECT_EQ(r.diagram->forceUnit, "KN");
    EXPECT_EQ(r.diagram->momentUnit, "KN.cm");
    EXPECT_DOUBLE_EQ(r.diagram->nSd, 400);
    EXPECT_DOUBLE_EQ(r.diagram->mSd, 10000);
    EXPECT_EQ(r.diagram->curve.size(), c.program.Verificacao->curve.size());
    EXPECT_TRUE(r.diagram->withinCurve());
    EXPECT_EQ(line(r, 0, "Nd").value, "400 KN (400.0 kN)");
    EXPECT_TRUE(r.drawing);
    EXPECT_TRUE(r.solutions.empty());
}

TEST(ReportData, FailedRunsSayWhatFailed)
{
    struct Case {
        const char* name;
        Sets sets;
        int coverAnswer;
        std::vector<bool> failed;   // message by message
        const char* failedText;     // a part of the first failed message
        bool drawing;
    };
    const std::vector<Case> cases{
        {"pilar-parede 15 x 90", {{"Text1", "15"}, {"Text2", "90"}}, 1, {true}, "pilar parede", false},
        {"espaçamento entre eixos",
         {{"Text2", "70"}, {"Text4", "2"}, {"Text5", "2"}, {"Text16", "100"}},
         1,
         {false, false, true},
         "Espaçamento entre eixos das barras verticais",
         true},
        {"cobrimento ignorado", {}, 2, {true, true}, "menor que o combrimento nominal", true},
        {"fck zero", {{"Text18", "0"}}, 1, {true}, "Fck deve ser diferente de zero", false},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const Column c(k.sets, k.coverAnswer);
        ASSERT_EQ(c.program.Form1.Text30.Text, "erro");
        const report::ReportData r = c.report();
        EXPECT_EQ(r.verdict, "erro");
        EXPECT_TRUE(r.failed());
        ASSERT_EQ(r.messages.size(), k.failed.size());
        bool seen = false;
        for (std::size_t i = 0; i < k.failed.size(); ++i) {
            EXPECT_EQ(r.messages[i].failed, k.failed[i]) << r.messages[i].text;
            if (k.failed[i] && !seen) {
                EXPECT_TRUE(contains(r.messages[i].text, k.failedText)) << r.messages[i].text;
                seen = true;
            }
        }
        EXPECT_EQ(r.drawing.has_value(), k.drawing);
        EXPECT_EQ(r.diagram.has_value(), k.drawing);
        EXPECT_EQ(r.drawingMissing.empty(), k.drawing);
    }
}

TEST(ReportData, WhatAStoppedRunCannotShowIsSaid)
{
    const Column wall({{"Text1", "15"}, {"Text2", "90"}});
    const report::ReportData w = wall.report();
    EXPECT_TRUE(anyContains(w.sections[kDesign].notes, "pilar-parede"));
    EXPECT_TRUE(w.sections[kDesign].lines.empty());
    EXPECT_TRUE(anyContains(w.sections[kDetail].notes, "não foi detalhada"));

    // A run that stopped reading the window reports the boxes as they are.
    const Column fck({{"Text18", "0"}, {"Text3", ""}});
    const report::ReportData r = fck.report();
    EXPECT_EQ(r.sections[kData].title, "Dados (como estão na janela)");
    EXPECT_EQ(line(r, kData, "fck").value + " " + line(r, kData, "fck").unit, "0 MPa");
    EXPECT_EQ(line(r, kData, "d′").value, "(vazia)");
    EXPECT_TRUE(anyContains(r.sections[kData].notes, "parou antes do dimensionamento"));
}

TEST(ReportData, ForcesInTheUnitsOfTheWindowAndInKilonewtons)
{
    struct Case {
        Sets sets;
        std::string nd, md, forceUnit, momentUnit;
        double nSd; // in the window's unit
    };
    const std::vector<Case> cases{
        {{{"Combo4", "Tf"}, {"Text16", "40"}}, "40 Tf (400.0 kN)", "10000 KN.cm (100.00 kN·m)", "Tf", "KN.cm", 40},
        {{{"Combo4", "N"}, {"Text16", "400000"}, {"Combo5", "KN.m"}, {"Text17", "100"}},
         "400000 N (400.0 kN)",
         "100 KN.m (100.00 kN·m)",
         "N",
         "KN.m",
         400000},
        {{{"Combo4", "Kgf"}, {"Text16", "40000"}, {"Combo5", "Tf.m"}, {"Text17", "10"}},
         "40000 Kgf (400.0 kN)",
         "10 Tf.m (100.00 kN·m)",
         "Kgf",
         "Tf.m",
         40000},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.nd);
        const Column c(k.sets);
        const report::ReportData r = c.report();
        EXPECT_EQ(line(r, kData, "Nd").value, k.nd);
        EXPECT_EQ(line(r, kData, "Md").value, k.md);
        ASSERT_TRUE(r.diagram);
        EXPECT_EQ(r.diagram->forceUnit, k.forceUnit);
        EXPECT_EQ(r.diagram->momentUnit, k.momentUnit);
        EXPECT_DOUBLE_EQ(r.diagram->nSd, k.nSd);
    }
}

TEST(ReportData, ManualStirrupTellsTheOptionChosen)
{
    const Column c({{"Option6", "True"}, {"Check5", "1"}, {"Text1", "40"}, {"Text2", "80"}, {"Text16", "3000"},
                    {"Text17", "50000"}},
                   1, 1);
    const report::ReportData r = c.report();
    ASSERT_FALSE(r.messages.empty());
    const report::Message& m = r.messages.front();
    EXPECT_EQ(m.window, "Escolha dos estribos");
    ASSERT_GE(m.options.size(), 2u);
    EXPECT_EQ(m.answer, m.options[1]);
    const std::string note = line(r, kDetail, "Estribo").note;
    EXPECT_TRUE(contains(note, "Definir manualmente: " + m.options[1])) << note;
    EXPECT_TRUE(contains(note, "Mesmo tipo de aço")) << note;
}

TEST(ReportData, SearchListsItsLightestSolutionsWhileTheyAreTheWindows)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.Command8_Click();
    ASSERT_GT(p.Ordenadas.size(), report::kSolutionsListed);
    report::ReportData r;
    std::string error;
    ASSERT_TRUE(report::buildReport(p.registroDoCalculo(), kStamp, r, error)) << error;
    ASSERT_EQ(r.solutions.size(), report::kSolutionsListed);
    EXPECT_EQ(r.solutionsFound, p.Ordenadas.size());
    EXPECT_TRUE(r.solutions.front().shown);
    for (std::size_t i = 0; i < r.solutions.size(); ++i) {
        EXPECT_EQ(r.solutions[i].position, static_cast<int>(i) + 1);
        EXPECT_EQ(r.solutions[i].shown, i == 0);
        if (i > 0) {
            EXPECT_LE(std::stod(r.solutions[i - 1].weight), std::stod(r.solutions[i].weight));
        }
    }
    EXPECT_EQ(r.solutions.front().weight, p.Form1.Text19.Text);
    EXPECT_TRUE(contains(line(r, kData, "d′").note, "solução nº 1 da busca da melhor solução")) << line(r, kData, "d′").note;

    // One more bar on the depth faces is another arrangement: the list is not its own.
    p.Command4_Click();
    ASSERT_TRUE(report::buildReport(p.registroDoCalculo(), kStamp, r, error)) << error;
    EXPECT_TRUE(r.solutions.empty());
    EXPECT_TRUE(contains(r.solutionsNote, "não é a deste cálculo")) << r.solutionsNote;
}

TEST(ReportData, DrawingScaleIsTheLargestUsualOneThatFits)
{
    struct Case {
        double width, height, roomWidth, roomHeight, scale;
    };
    const std::vector<Case> cases{
        {30, 70, 15.7, 17.2, 5},      // the default column: 14 cm tall at 1:5
        {10, 10, 15.7, 17.2, 1},      // small enough for real size
        {39, 30, 15.7, 17.2, 2.5},    // 15.6 cm wide at 1:2.5
        {40, 30, 15.7, 17.2, 5},      // 16 cm at 1:2.5 would not fit
        {200, 30, 15.7, 17.2, 20},    // a wide wall
        {1e6, 10, 15.7, 17.2, 63695}, // past the usual scales: the whole n that fits
    };
    for (const Case& k : cases) {
        const double n = report::drawingScale(k.width, k.height, k.roomWidth, k.roomHeight);
        EXPECT_LE(k.width / n, k.roomWidth) << k.width;
        EXPECT_LE(k.height / n, k.roomHeight) << k.height;
        EXPECT_EQ(n, k.scale) << k.width << " x " << k.height;
    }
    EXPECT_EQ(report::scaleText(2.5), "1:2.5");
    EXPECT_EQ(report::scaleText(10), "1:10");
}

TEST(ReportData, CaptionsLoseOnlyTheirAccessKeyMark)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"&1 - Utilizar cobrimento mínimo", "1 - Utilizar cobrimento mínimo"},
        {"&2 - Ignorar", "2 - Ignorar"},
        {"Definir m&anualmente", "Definir manualmente"},
        {"dc = 10mm (&obras decorrentes)", "dc = 10mm (obras decorrentes)"},
        {"A && B", "A & B"},
        {"sem marca", "sem marca"},
        {"fim&", "fim&"},
    };
    for (const auto& [caption, shown] : cases)
        EXPECT_EQ(report::withoutAccessKey(caption), shown);
}

namespace {

// A program with load cases, calculated as "&Calcula" does.
struct Cases {
    Cases(const std::string& first, const std::vector<CasoDeCarga>& others, const Sets& sets = {})
    {
        for (const auto& [name, value] : sets) {
            std::string error;
            EXPECT_TRUE(setControlByName(program, name, value, error)) << name << ": " << error;
        }
        program.NomeDoCaso1 = first;
        program.OutrosCasos = others;
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

double number(const std::string& text) { return std::stod(text); }

} // namespace

TEST(ReportData, TwoCasesNameTheGoverningOneAndTheDataAreItsForces)
{
    struct Row {
        const char* name;
        Sets sets;
        std::vector<CasoDeCarga> others;
        const char* governing;
        std::string nd, md; // the governing case's, as the data print them
    };
    const std::vector<Row> rows{
        {"the second governs", {{"Text16", "400"}, {"Text17", "10000"}}, {{"vento", "600", "20000"}}, "vento",
         "600 KN (600.0 kN)", "20000 KN.cm (200.00 kN·m)"},
        {"the first governs", {{"Text16", "600"}, {"Text17", "20000"}}, {{"vento", "400", "10000"}}, "topo",
         "600 KN (600.0 kN)", "20000 KN.cm (200.00 kN·m)"},
        {"in Tf and Tf.m",
         {{"Combo4", "Tf"}, {"Text16", "40"}, {"Combo5", "Tf.m"}, {"Text17", "10"}},
         {{"vento", "50", "15"}, {"sismo", "20", "5"}},
         "vento",
         "50 Tf (500.0 kN)",
         "15 Tf.m (150.00 kN·m)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Cases c("topo", row.others, row.sets);
        const report::ReportData r = c.report();
        ASSERT_EQ(r.cases.size(), row.others.size() + 1);
        EXPECT_EQ(r.governingCase, row.governing);
        int governing = 0;
        for (std::size_t i = 0; i < r.cases.size(); ++i) {
            const auto& k = c.program.ResultadosDosCasos[i];
            EXPECT_EQ(r.cases[i].name, k.name);
            EXPECT_EQ(r.cases[i].governing, k.governing);
            EXPECT_EQ(r.cases[i].asNec, Format(k.asNec, "##0.00"));
            governing += r.cases[i].governing;
        }
        EXPECT_EQ(governing, 1);
        EXPECT_EQ(line(r, kData, "Nd").value, row.nd);
        EXPECT_EQ(line(r, kData, "Md").value, row.md);
        EXPECT_TRUE(contains(line(r, kData, "Nd").note, std::string("caso determinante \"") + row.governing));
        // ν and μ follow from the forces printed: ν = γn·Nd/(b·h·σcd), μ = γn·Md/(b·h²·σcd),
        // with b, h in cm, σcd in MPa (1 kN/cm² = 10 MPa) and the forces' kN figures.
        const auto kn = [](const std::string& v) { return number(v.substr(v.find('(') + 1)); };
        const double b = 20, h = 50, sigcd = number(line(r, kData, "σcd").value) / 10;
        const double gn = number(line(r, kData, "γn").value);
        EXPECT_NEAR(number(line(r, kDesign, "ν").value), gn * kn(line(r, kData, "Força normal de cálculo").value)
                                                            / (b * h * sigcd), 1e-4);
        EXPECT_NEAR(number(line(r, kDesign, "μ").value),
                    gn * 100 * kn(line(r, kData, "Momento de cálculo").value) / (b * h * h * sigcd), 1e-4);
        // Every case on the diagram, the governing one flagged.
        ASSERT_TRUE(r.diagram);
        ASSERT_EQ(r.diagram->cases.size(), r.cases.size());
        for (std::size_t i = 0; i < r.cases.size(); ++i)
            EXPECT_EQ(r.diagram->cases[i].governing, r.cases[i].governing);
    }
    // One case lists none, and its one point is "Sd".
    const report::ReportData one = Column().report();
    EXPECT_TRUE(one.cases.empty());
    ASSERT_TRUE(one.diagram);
    ASSERT_EQ(one.diagram->cases.size(), 1u);
    EXPECT_EQ(one.diagram->cases[0].name, "Sd");
}

TEST(ReportData, QuantitiesOfTheDefaultColumnAsCountedByHand)
{
    // The defaults: 20 × 50 cm, 300 cm long, 8 φ12.5 (1.000 kg/m), stirrup φ5 c/15
    // (0.160 kg/m) of 2·(14 + 44) + 10 = 126 cm with its 45° hooks, cover 3 cm, and two
    // supplementary stirrups per level across b: 14 + 10 = 24 cm. By hand:
    //   bars        8 × 3.00 m = 24.00 m × 1.000 = 24.000 kg
    //   stirrups    300 / 15 = 20, + 1 = 21 × 1.26 m = 26.46 m × 0.160 = 4.2336 kg
    //   ties        21 × 2 = 42 × 0.24 m = 10.08 m × 0.160 = 1.6128 kg
    //   total 29.8464 kg over 0.20 × 0.50 × 3.00 = 0.300 m³: 99.488 kg/m³
    const Column c;
    const report::ReportData r = c.report();
    ASSERT_TRUE(r.quantities);
    const report::Quantities& q = *r.quantities;
    struct Row {
        const char* piece;
        int barIndex, count;
        double unitLength, totalLength, weight;
    };
    const std::vector<Row> rows{
        {"Barras longitudinais", 5, 8, 300, 24.00, 24.000},
        {"Estribos", 1, 21, 126, 26.46, 4.2336},
        {"Estribos suplementares das faces h", 1, 42, 24, 10.08, 1.6128},
    };
    ASSERT_EQ(q.rows.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i].piece);
        EXPECT_EQ(q.rows[i].piece, rows[i].piece);
        EXPECT_EQ(q.rows[i].barIndex, rows[i].barIndex);
        EXPECT_EQ(q.rows[i].count, rows[i].count);
        EXPECT_NEAR(q.rows[i].unitLength, rows[i].unitLength, 1e-9);
        EXPECT_NEAR(q.rows[i].totalLength, rows[i].totalLength, 1e-9);
        EXPECT_NEAR(q.rows[i].weight, rows[i].weight, 1e-9);
    }
    EXPECT_EQ(q.stirrupLevels, 21);
    EXPECT_NEAR(q.totalWeight, 29.8464, 1e-9);
    EXPECT_NEAR(q.concreteVolume, 0.3, 1e-12);
    EXPECT_NEAR(q.rate, 99.488, 1e-9);
    EXPECT_EQ(q.assumptions.size(), 5u);

    // A length not a whole number of spacings rounds up: 310 / 15 = 20.7, 21 + 1 stirrups.
    const report::ReportData longer = Column(Sets{{"Text23", "310"}}).report();
    ASSERT_TRUE(longer.quantities);
    EXPECT_EQ(longer.quantities->stirrupLevels, 22);
    // A column not detailed has no quantities.
    EXPECT_FALSE(Column(Sets{{"Text1", "15"}, {"Text2", "90"}}).report().quantities);
}

TEST(ReportData, DLinhaSaysWhereItCameFrom)
{
    struct Row {
        const char* name;
        Sets sets;
        const char* note; // the start of what the report says
        bool rewritten;
    };
    const std::vector<Row> rows{
        {"empty box, corrected", {}, "caixa d′ vazia (0 cm); reescrito pela correção do cobrimento para ", true},
        {"typed and kept", {{"Text3", "4.2"}}, "digitado: 4.2 cm", false},
        {"typed, then corrected", {{"Text3", "3.5"}}, "digitado: 3.5 cm; reescrito pela correção do cobrimento para ",
         true},
        {"from the cover", {{"Check3", "1"}}, "d' automático f(cobrimento): achado pelo cobrimento, a partir de 3 cm",
         true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Column c(row.sets);
        const std::string note = line(c.report(), kData, "d′").note;
        EXPECT_EQ(note.rfind(row.note, 0), 0u) << note;
        EXPECT_EQ(contains(note, "reescrito pela correção do cobrimento para " + c.program.Form1.Text3.Text + " cm"),
                  row.rewritten)
            << note;
    }
}
