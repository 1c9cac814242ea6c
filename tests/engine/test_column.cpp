// The whole calculation of a column: the defaults from end to end, the cover
// questions and the d' they rewrite, the checks that stop or fail a calculation, the
// stirrup question of a repeated pass, calculations that cannot go on, and the
// example of the README.

#include "engine/column.h"
#include "engine/verification.h"
#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

namespace {

// Answers as told and writes down every question and message, in order.
struct Recorder : Questions {
    CoverAnswer cover = CoverAnswer::Correct;
    int stirrup = kLeastSteelOption;
    std::vector<std::string> seen;

    CoverAnswer askCover(const CoverQuestion& q) override
    {
        seen.push_back(q.message + " | " + std::string(q.clause) + " | "
                       + (q.correctCaption ? std::string(*q.correctCaption) : "(caption kept)"));
        return cover;
    }
    int chooseStirrup(const StirrupQuestion& q) override
    {
        seen.push_back(q.heading);
        return stirrup;
    }
    void tell(const Check& c) override { seen.push_back(c.text); }
};

std::string belowNominal(const char* effective)
{
    return std::string("Cobrimento efetivo = ") + effective
           + " cm menor que o combrimento nominal = 3 cm. | Item 7.4.7  | &1 - Utilizar cobrimento mínimo";
}

} // namespace

// 20 x 50 cm, 2 x 4 bars, 400 kN and 100 kN·m, fck 20 MPa, γc 1.5, CA-50A, class II
// with Δc = 1 cm (nominal cover 3 cm), a 5 mm pre-defined stirrup.
TEST(EngineColumn, TheDefaultColumnHoweverDLinhaIsGiven)
{
    struct Row {
        const char* name;
        std::function<void(ColumnInput&)> given;
        std::vector<std::string> asked;
        int passes;
        const char* dLinhaText; // nullptr: not rewritten
    } rows[] = {
        // d' = 0 chooses 10 mm bars; corrected to 4 cm it needs 12.5 mm, corrected again to 4.125
        {"typed 0", [](ColumnInput&) {}, {belowNominal("-1"), belowNominal("2.875")}, 3, "4.12500"},
        {"typed 4", [](ColumnInput& in) { in.dLinha.typed = 4; }, {belowNominal("2.875")}, 2, "4.12500"},
        {"typed 4.125", [](ColumnInput& in) { in.dLinha.typed = 4.125; }, {}, 1, nullptr},
        {"corrected without asking", [](ColumnInput& in) { in.correctCoverWithoutAsking = true; }, {}, 3, "4.12500"},
        {"found from the cover, from 3 cm", [](ColumnInput& in) { in.dLinha.automatic = true; },
         {belowNominal("2"), belowNominal("2.875")}, 3, "4.12500"},
    };
    for (const Row& r : rows) {
        ColumnInput in;
        r.given(in);
        Recorder q;
        Memory memory;
        const ColumnResult c = calculate(in, q, memory);
        EXPECT_EQ(q.seen, r.asked) << r.name;
        EXPECT_EQ(c.passes, r.passes) << r.name;
        EXPECT_EQ(c.dLinhaText.value_or("(none)"), r.dLinhaText ? r.dLinhaText : "(none)") << r.name;
        ASSERT_TRUE(c.ok()) << r.name;
        EXPECT_EQ(c.design.dLinha, 4.125) << r.name;
        EXPECT_EQ(c.design.zone, Zone::C) << r.name;
        EXPECT_NEAR(c.design.asNec, 6.57, 0.005) << r.name;
        EXPECT_EQ(c.design.totalBars, 8) << r.name;
        EXPECT_EQ(c.bar->diameter, 1.25) << r.name;
        EXPECT_EQ(c.bar->providedArea, 10) << r.name;
        EXPECT_NEAR(c.excess, 34.3007, 0.0001) << r.name;
        EXPECT_EQ(c.stirrup.text, "φ5 c/15") << r.name; // 12 φl
        EXPECT_EQ(c.cover.nominal, 3) << r.name;
        EXPECT_EQ(c.cover.effective, 3) << r.name;
        EXPECT_EQ(c.cover.stirrupLength, 2 * (14 + 44) + 10) << r.name;
        EXPECT_EQ(c.spacing.axisWidth, 11.75) << r.name;
        // 13.92 cm between the bars of a depth face, beyond 20 φt: both inner bars tied
        EXPECT_EQ(c.tiesAcrossWidth, 0) << r.name;
        EXPECT_EQ(c.tiesAcrossDepth, 2) << r.name;
        EXPECT_EQ(c.steelWeight, 24) << r.name; // 8 x 1.0 kg/m x 3 m
    }
}

TEST(EngineColumn, IgnoringTheCoverKeepsTheArrangementAndFails)
{
    Recorder q;
    q.cover = CoverAnswer::Ignore;
    Memory memory;
    const ColumnResult c = calculate(ColumnInput{}, q, memory);
    EXPECT_EQ(q.seen, (std::vector<std::string>{belowNominal("-1"),
                                                "Cobrimento mínimo das barras longitudinais = -0.5 cm menor que o "
                                                "mínimo = 1 cm (diâmetro da barra logitudinal) | Item 7.4.7.5 | "
                                                "(caption kept)"}));
    EXPECT_FALSE(c.ok());
    EXPECT_TRUE(c.detailed);
    EXPECT_EQ(c.flag, ErrorFlag::Failed);
    EXPECT_EQ(c.passes, 1);
    EXPECT_FALSE(c.dLinhaText);
    EXPECT_EQ(c.design.dLinha, 0);
    EXPECT_EQ(c.bar->providedArea, 6.4);
    EXPECT_EQ(c.cover.effective, -1);
}

TEST(EngineColumn, DLinhaIsRewrittenAsTheProgramAlwaysWroteIt)
{
    for (const auto& [d, text] : {std::pair{4.25, "4.25000"}, {4.05, "4.5000"}, {4.125, "4.12500"}, {4.0, "4.0"},
                                  {0.63 + 1.0 + 1.5, "3.13000"}})
        EXPECT_EQ(dLinhaText(d), text) << d;
    // The correction to 4.05 cm (16 mm bars, nominal cover 2.5 enlarged to 2.75 for a
    // whole inner depth of 45 cm) is read back from its text as 4.5 cm.
    ColumnInput in;
    in.depth = 50.5;
    in.dLinha.typed = 3;
    in.Nd = 100000;
    in.exposure = ExposureClass::I;
    FixedAnswers answers;
    Memory memory;
    const ColumnResult c = calculate(in, answers, memory);
    EXPECT_EQ(c.dLinhaText, "4.5000");
    EXPECT_EQ(c.design.dLinha, 4.5);
    EXPECT_DOUBLE_EQ(c.cover.effective, 3.2);
    EXPECT_TRUE(c.ok());
}

TEST(EngineColumn, ChecksThatStopOrFailACalculation)
{
    const std::string kNeedsLargerBar = "Taxa de armadura mínima exige barras aço com bitola maior do que o existente";
    // 40 x 40 with 4 bars and no steel needed: 0.4 % of Ac asks 1.6 cm² a bar.
    auto square = [](ColumnInput& in) { in.base = in.depth = 40, in.barsOnDepthFace = 2, in.Md = 0; };
    struct Row {
        const char* name;
        std::function<void(ColumnInput&)> given;
        bool designed, detailed, ok;
        ErrorFlag flag;
        double providedArea; // 0: no bar
        std::vector<std::string> told;
    } rows[] = {
        {"a wall is not designed", [](ColumnInput& in) { in.depth = 101; }, false, false, false, ErrorFlag::Wall, 0,
         {"Maior dimensão da seção transversal = 101cm, excedeu 5 vezes a menor dimensão = 100. O pilar deve ser "
          "tratado como pilar parede."}},
        {"no allowed bar is large enough", [](ColumnInput& in) { in.Nd = 180000, in.maxBarIndex = 4; }, true, false,
         false, ErrorFlag::Failed, 0,
         {"Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário."}},
        // The minimum steel replaces the 10 mm bar the cover was checked with: with
        // 16 mm at d' = 4 the cover left is 2.7 cm, and the final arrangement fails.
        {"the minimum chooses 16 mm", square, true, true, false, ErrorFlag::None, 8,
         {"Arranjo final: com a barra de 16 mm e o estribo de 5 mm o cobrimento efetivo é de 2.700 cm, menor que o "
          "cobrimento nominal = 3 cm."}},
        {"the minimum chooses 16 mm, d' leaves room for it", [&](ColumnInput& in) { square(in), in.dLinha.typed = 4.5; },
         true, true, true, ErrorFlag::None, 8, {}},
        // 4 bars of 40 mm in 35 x 35: within the 1/8 rule and the spacing, past 4 % of Ac
        {"more than 4 % of Ac",
         [&](ColumnInput& in) {
             square(in), in.base = in.depth = 35, in.Nd = 280000;
             in.stirrupMode = StirrupMode::Economic, in.correctCoverWithoutAsking = true;
         },
         true, true, false, ErrorFlag::Failed, 50,
         {"A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No caso temos 50.00cm2 que é "
          "maior que 49.00cm2 correspondente a 4%Ac fora da região de emendas"}},
        {"the minimum needs a larger bar than allowed", [&](ColumnInput& in) { square(in), in.maxBarIndex = 4; },
         true, true, false, ErrorFlag::Failed, 3.2, {kNeedsLargerBar}},
    };
    for (const Row& r : rows) {
        ColumnInput in;
        in.dLinha.typed = 4;
        r.given(in);
        Recorder q;
        Memory memory;
        const ColumnResult c = calculate(in, q, memory);
        EXPECT_EQ(c.designed, r.designed) << r.name;
        EXPECT_EQ(c.detailed, r.detailed) << r.name;
        EXPECT_EQ(c.ok(), r.ok) << r.name;
        EXPECT_EQ(c.flag, r.flag) << r.name;
        EXPECT_EQ(c.bar ? c.bar->providedArea : 0, r.providedArea) << r.name;
        EXPECT_EQ(q.seen, r.told) << r.name;
        std::vector<std::string> checks;
        for (const Check& k : c.checks)
            checks.push_back(k.text);
        EXPECT_EQ(checks, r.told) << r.name;
        EXPECT_FALSE(c.failure) << r.name;
        if (!c.checks.empty() && c.checks[0].text == kNeedsLargerBar) {
            EXPECT_FALSE(c.checks[0].namesClause); // the dialog keeps the clause it showed before
        }
    }
}

TEST(EngineColumn, ARepeatedPassKeepsTheStirrupChosenByHand)
{
    // 25 mm bars need 6.3 mm stirrups, or 5 mm of the same steel at 18 cm; the cover
    // correction runs a second pass, which does not ask again and keeps the diameter
    // chosen, at the spacing of that pass (NBR 6118 18.4.3 of the allowed stirrup).
    for (const auto& [option, diameter] : {std::pair{0, 0.63}, {1, 0.5}, {4, 0.5}}) {
        ColumnInput in;
        in.dLinha.typed = 4;
        in.Nd = 200000;
        in.stirrupMode = StirrupMode::Manual;
        Recorder q;
        q.stirrup = option;
        Memory memory;
        const ColumnResult c = calculate(in, q, memory);
        ASSERT_EQ(c.passes, 2) << option;
        EXPECT_EQ(c.bar->diameter, 2.5) << option;
        EXPECT_EQ(std::count(q.seen.begin(), q.seen.end(),
                             "A bitola do estribo deverá ser de 6.3mm2 com espaçamento de 20cm"),
                  1)
            << option;
        EXPECT_EQ(c.stirrup.diameter, diameter) << option;
        EXPECT_EQ(memory.stirrup.diameter, diameter) << option;
    }
}

TEST(EngineColumn, ACalculationThatCannotGoOnNamesItsStage)
{
    struct Row {
        const char* name;
        std::function<void(ColumnInput&)> given;
        const char* inMessage;
    } rows[] = {
        {"forces no steel carries", [](ColumnInput& in) { in.precision = 0, in.Nd = 5e7; },
         "excedem o que esta seção resiste"},
        {"one bar on a depth face", [](ColumnInput& in) { in.barsOnDepthFace = 1; }, "Erro de cálculo em SArran1R03"},
        {"more layers than the method holds", [](ColumnInput& in) { in.barsOnDepthFace = 600; }, "NBarCam(500)"},
        {"a largest bar outside the catalogue", [](ColumnInput& in) { in.maxBarIndex = 12; }, "AreaBitola(12)"},
        {"a pre-defined stirrup outside the list", [](ColumnInput& in) { in.predefinedStirrup = 5; },
         "Estribo pré-definido fora da lista: 5."},
        {"no steel factor", [](ColumnInput& in) { in.gammaS = 0; }, "Erro de cálculo em Aço04: divisão por zero"},
    };
    for (const Row& r : rows) {
        ColumnInput in;
        in.dLinha.typed = 4;
        r.given(in);
        FixedAnswers answers;
        Memory memory;
        ColumnResult c;
        EXPECT_NO_THROW(c = calculate(in, answers, memory)) << r.name;
        ASSERT_TRUE(c.failure) << r.name;
        EXPECT_NE(c.failure->find(r.inMessage), std::string::npos) << r.name << ": " << *c.failure;
        EXPECT_FALSE(c.ok()) << r.name;
        EXPECT_FALSE(c.detailed) << r.name;
        EXPECT_FALSE(c.geometry) << r.name;
    }
}

// Where a march of the zones method cannot meet its tolerance, strain compatibility
// gives the area and the calculation goes on to a detailed column.
TEST(EngineColumn, AMarchThatCannotEndGivesWayToStrainCompatibility)
{
    struct Row {
        const char* name;
        std::function<void(ColumnInput&)> given;
    } rows[] = {
        {"precision 0, mu0", [](ColumnInput& in) { in.precision = 0; }},
        {"precision 0, zone A", [](ColumnInput& in) { in.precision = 0, in.Nd = 200000, in.Md = 100000; }},
        {"precision 0, zone E", [](ColumnInput& in) { in.precision = 0, in.Nd = -30000, in.Md = 200000; }},
    };
    for (const Row& r : rows) {
        ColumnInput in;
        in.dLinha.typed = 4;
        r.given(in);
        FixedAnswers answers;
        Memory memory;
        const ColumnResult c = calculate(in, answers, memory);
        EXPECT_FALSE(c.failure) << r.name;
        EXPECT_TRUE(c.byStrainCompatibility) << r.name;
        EXPECT_TRUE(c.detailed) << r.name;
        ASSERT_FALSE(c.checks.empty()) << r.name;
        EXPECT_EQ(c.checks.front().id, CheckId::AreaByStrainCompatibility) << r.name;
        // The area is the one that puts the design point on the curve of the same layout.
        const auto v = verify(in, c);
        ASSERT_TRUE(v && v->asCompat) << r.name;
        EXPECT_NEAR(c.design.asNec, *v->asCompat, 1e-6) << r.name;
    }
}

TEST(EngineColumn, TheReadmeExample)
{
    std::ostringstream out;
    {
        engine::ColumnInput in;           // 20 x 50 cm, 2 x 4 bars, fck 20 MPa, CA-50A
        in.dLinha.typed = 4;              // d' in cm
        in.Nd = 40000;                    // kgf (400 kN)
        in.Md = 1000000;                  // kgf.cm (100 kN.m)
        engine::FixedAnswers answers;     // correct the cover whenever it is asked
        engine::Memory memory;            // a fresh start of the method
        const engine::ColumnResult r = engine::calculate(in, answers, memory);
        out << "zona " << engine::zoneLetter(r.design.zone) << ", As = " << r.design.asNec << " cm2, "
            << r.design.totalBars << " barras de " << r.bar->diameter * 10 << " mm, estribo " << r.stirrup.text
            << (r.ok() ? ", Ok" : ", erro") << "\n";
    }
    // ν = 0.353 and μ = 0.176 lie in zone C; 6.57 cm² over 8 bars is 0.82 cm² a bar,
    // past the 0.8 of 10 mm; 12 φl = 15 cm; d' corrected to 0.5 + 0.625 + 3 cm.
    EXPECT_EQ(out.str(), "zona C, As = 6.56993 cm2, 8 barras de 12.5 mm, estribo φ5 c/15, Ok\n");
}
