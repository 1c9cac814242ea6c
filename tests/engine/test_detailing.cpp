// Detailing the designed section: the real bar and its 1/8 rule, wall columns and
// γn, the bounds of the steel, the spacing of the bars, the cover, the stirrups and
// their question, the hooks and the supplementary stirrups, with their messages.

#include "engine/bar_choice.h"
#include "engine/cover.h"
#include "engine/spacing.h"
#include "engine/steel_limits.h"
#include "engine/stirrups.h"
#include "engine/supplementary_stirrups.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

TEST(EngineBarChoice, ThinnestAllowedBarForTheAreaPerBar)
{
    struct Row {
        const char* name;
        double areaPerBar;
        int maxBarIndex, index; // 0: no bar
    } rows[] = {
        {"the exact area of 10 mm is enough", 0.8, 11, 4},
        {"a little more takes 12.5 mm", 0.8001, 11, 5},
        {"stirrup sizes are never longitudinal", 0.1, 11, 4},
        {"the largest allowed bar exactly enough", 2, 6, 6},
        {"above the largest allowed bar", 2.01, 6, 0},
        {"a largest bar below 10 mm leaves 10 mm", 0.3, 3, 4},
    };
    for (const Row& r : rows) {
        const std::optional<BarChoice> b = smallestBar(r.areaPerBar, 8, r.maxBarIndex);
        ASSERT_EQ(b.has_value(), r.index != 0) << r.name;
        if (b) {
            EXPECT_EQ(b->index, r.index) << r.name;
        }
    }

    // 25 mm in a 20 cm column is 1/8 itself; 32 mm is more.
    EXPECT_FALSE(exceedsEighthOfSide(2.5, 20));
    EXPECT_TRUE(exceedsEighthOfSide(3.2, 20));
    const Check c = checks::barAboveEighthOfSide(3.2, 20);
    EXPECT_EQ(c.text, "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso "
                      "3.2cm > 2.5cm");
    EXPECT_EQ(c.clause, "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001");
    EXPECT_EQ(checks::barAboveEighthOfSide(1.6, 12.5).text.substr(c.text.size() - 13), "1.6cm > 1.5625cm");
}

TEST(EngineSteelLimits, WallColumnsAndGammaNBySmallerSide)
{
    struct Row {
        double base, depth, gammaN;
        const char* wall; // the message, or nullptr
    } rows[] = {
        {20, 100, 1.0, nullptr},
        {20, 101, 1.0, "Maior dimensão da seção transversal = 101cm, excedeu 5 vezes a menor dimensão = 100. O "
                       "pilar deve ser tratado como pilar parede."},
        {101, 20, 1.0, "Maior dimensão da seção transversal = 101cm, excedeu 5 vezes a menor dimensão = 100. O "
                       "pilar deve ser tratado como pilar parede."},
        {12.5, 62.75, 1.35, "Maior dimensão da seção transversal = 62.75cm, excedeu 5 vezes a menor dimensão = "
                            "62.5. O pilar deve ser tratado como pilar parede."},
        {19, 19, 1.0, nullptr},    {18.99, 40, 1.05, nullptr}, {40, 18, 1.05, nullptr}, {17.99, 30, 1.1, nullptr},
        {16, 30, 1.15, nullptr},   {14.5, 30, 1.25, nullptr},  {13, 30, 1.3, nullptr},  {12.9, 30, 1.35, nullptr},
        {10, 30, 1.35, nullptr},
    };
    for (const Row& r : rows) {
        const ColumnClass c = classifyColumn(r.base, r.depth);
        EXPECT_EQ(c.smallerSide, std::min(r.base, r.depth)) << r.base << " x " << r.depth;
        EXPECT_EQ(c.gammaN, r.gammaN) << r.base << " x " << r.depth;
        EXPECT_EQ(c.wall, r.wall != nullptr) << r.base << " x " << r.depth;
        if (r.wall) {
            EXPECT_EQ(checks::wallColumn(c.largerSide, c.smallerSide).text, r.wall);
        }
    }
}

TEST(EngineSteelLimits, MinimumAndMaximumSteel)
{
    const double fyd = 5000 / 1.15;
    // 0.4 % of Ac governs below Nd = 0.004 Ac fyd / 0.15; 4 % of Ac outside splices.
    const SteelLimits area = steelLimits(40000, fyd, 1000, 8);
    EXPECT_EQ(area.asMin, 4);
    EXPECT_EQ(area.asMinPerBar, 0.5);
    EXPECT_EQ(area.asMax, 40);
    EXPECT_NEAR(steelLimits(200000, fyd, 1000, 8).asMin, 6.9, 1e-12);
    const Check c = checks::maximumRatio(40.01, 40);
    EXPECT_EQ(c.text, "A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No caso temos "
                      "40.01cm2 que é maior que 40.00cm2 correspondente a 4%Ac fora da região de emendas");
    EXPECT_EQ(c.clause, "Item 17.3.4.3.2 do Projeto de revisão da NB1 / 2001");
}

TEST(EngineSpacing, FreeAndAxisSpacingWithTheLimitTheyName)
{
    const std::string bar(limits::kFreeByBar), aggregate(limits::kFreeByAggregate);
    const std::string side(limits::kAxisBySide), absolute(limits::kAxisAbsolute);
    auto freeText = [](const char* faces, const char* s, const std::string& limit, const char* min) {
        return std::string("Espaçamento livre entre barras ") + faces + " = " + s + "cm menor que " + limit + " = "
               + min + "cm";
    };
    auto axisText = [](const char* faces, const char* s, const std::string& limit, const char* max) {
        return std::string("Espaçamento entre eixos das barras ") + faces + " = " + s + "cm maior que " + limit
               + " = " + max + "cm";
    };
    // d' = 4 throughout; the smaller side is the base.
    struct Row {
        const char* name;
        double base, depth, nb, na, barDiameter, aggregate;
        double minimumFree, maximumAxis;
        std::string freeLimit, axisLimit;
        std::vector<std::string> failures;
    } rows[] = {
        {"the default column", 20, 50, 2, 4, 1, 0, 4, 40, bar, absolute, {}},
        {"the bar governs a 19 mm aggregate", 20, 50, 2, 4, 1.25, 1.9, 5, 40, bar, absolute, {}},
        {"the aggregate governs", 20, 50, 2, 4, 1, 2.5, 6, 40, aggregate, absolute, {}},
        {"twice a 19 cm side", 19, 50, 2, 4, 1, 0, 4, 38, bar, side, {}},
        {"equal rules name the bar", 20, 20, 4, 4, 1.2, 2, 4.8, 40, bar, absolute,
         {freeText("horizontais", "2.8", bar, "4.8"), freeText("verticais", "2.8", bar, "4.8")}},
        {"free spacing to two decimals", 20, 50, 8, 4, 1, 0, 4, 40, bar, absolute,
         {freeText("horizontais", "0.71", bar, "4")}},
        {"axis spacing past twice the side", 19, 100, 2, 2, 1, 0, 4, 38, bar, side,
         {axisText("verticais", "92", side, "38")}},
        {"no failure stops the others", 100, 100, 2, 2, 1, 40, 96, 40, aggregate, absolute,
         {freeText("horizontais", "91", aggregate, "96"), freeText("verticais", "91", aggregate, "96"),
          axisText("horizontais", "92", absolute, "40"), axisText("verticais", "92", absolute, "40")}},
    };
    for (const Row& r : rows) {
        for (const bool messages : {true, false}) {
            const SpacingCheck c =
                checkSpacing(r.base, r.depth, 4, r.nb, r.na, r.barDiameter, r.aggregate, r.base, messages);
            EXPECT_DOUBLE_EQ(c.values.minimumFree, r.minimumFree) << r.name;
            EXPECT_EQ(c.values.maximumAxis, r.maximumAxis) << r.name;
            EXPECT_EQ(c.freeLimit, r.freeLimit) << r.name;
            EXPECT_EQ(c.axisLimit, r.axisLimit) << r.name;
            std::vector<std::string> texts;
            for (const Check& f : c.failures) {
                texts.push_back(f.text);
                EXPECT_EQ(f.clause, "Item 18.4.2.2 do Projeto de revisão da NB1 / 2001") << r.name;
            }
            // The search's silent pass only needs to know which rules failed.
            EXPECT_EQ(texts, messages ? r.failures : std::vector<std::string>(r.failures.size())) << r.name;
        }
    }
}

TEST(EngineCover, NominalCoverAndItsCorrections)
{
    EXPECT_EQ(nominalCover(ExposureClass::I, 0.5), 2);
    EXPECT_EQ(nominalCover(ExposureClass::II, 1), 3);
    EXPECT_EQ(nominalCover(ExposureClass::IV, 0.5), 4.5);
    // {cover, rounded up to 0.5 cm}: a whole number stays, exactly a half stays.
    for (const auto& [c, up] : {std::pair{1.37, 1.5}, {2.0, 2.0}, {1.1, 1.5}, {1.5, 1.5}, {1.75, 2.0}, {0.0, 0.0}})
        EXPECT_EQ(roundUpToHalf(c), up) << c;
    // {aggregate, nominal cover}: aggregate / 1.2 rounded up to 0.5 cm
    for (const auto& [a, c] : {std::pair{1.9, 2.0}, {2.4, 2.0}, {3.8, 3.5}, {0.6, 0.5}})
        EXPECT_EQ(coverForAggregate(a), c) << a;
    // {depth, nominal cover, whole inner depth, cover}
    const double whole[][4] = {{50, 2.5, 45, 2.5}, {50, 2.3, 45, 2.5}, {50, 3, 44, 3}, {50.5, 2.5, 45, 2.75}};
    for (const auto& [h, nominal, inner, cover] : whole) {
        const WholeInnerDepth w = coverForWholeInnerDepth(h, nominal);
        EXPECT_EQ(w.innerDepth, inner) << h << " " << nominal;
        EXPECT_EQ(w.cover, cover) << h << " " << nominal;
    }
}

TEST(EngineStirrups, DiameterAndSpacingRules)
{
    struct Row {
        SteelGrade steel;
        double barDiameter, smallerSide;
        double minimumDiameter;
        int minimumIndex;
        double spacing, sameSteel1, sameSteel2, sameSteel3;
    } rows[] = {
        {SteelGrade::CA50A, 1.6, 20, 0.5, 1, 19, 19, 19, 19},     // 12 φl bites
        {SteelGrade::CA25B, 0.8, 30, 0.5, 1, 19, 19, 19, 19},     // 24 φl bites
        {SteelGrade::CA60A, 1.25, 30, 0.5, 1, 20, 20, 20, 20},    // no bar limit for CA-60
        {SteelGrade::CA60B, 1.0, 19.5, 0.5, 1, 19, 19, 19, 19},   // the side floored
        {SteelGrade::CA50A, 2.5, 19.5, 0.625, 2, 19, 18, 19, 19}, // 6.3 mm; 5 mm at 18 cm
        {SteelGrade::CA60A, 2.5, 30, 0.625, 2, 20, 15, 20, 20},   // a same-steel spacing exactly whole
        {SteelGrade::CA50A, 4.0, 40, 1.0, 4, 20, 11, 17, 20},
    };
    for (const Row& r : rows) {
        const StirrupRules s = stirrupRules(r.barDiameter, r.smallerSide, r.steel);
        const auto& same = s.sameSteelSpacing;
        EXPECT_EQ(std::tuple(s.minimumDiameter, s.minimumIndex, s.spacing, same[1], same[2], same[3]),
                  std::tuple(r.minimumDiameter, r.minimumIndex, r.spacing, r.sameSteel1, r.sameSteel2, r.sameSteel3))
            << steelGradeText(r.steel) << " " << r.barDiameter << " " << r.smallerSide;
    }

    // Least steel per metre: 5 mm every 8 cm ties with 8 mm every 20 cm and the
    // thinner wins.
    StirrupRules even;
    even.minimumIndex = 3;
    even.spacing = 20;
    even.sameSteelSpacing = {0, 8, 12, 0};
    EXPECT_EQ(leastSteelPerMetre(even), 1);
    even.sameSteelSpacing[1] = 7.9;
    EXPECT_EQ(leastSteelPerMetre(even), 3);
    even.sameSteelSpacing[1] = 8.1;
    EXPECT_EQ(leastSteelPerMetre(even), 1);

    // {hook, φt, both hooks of a stirrup, of a supplementary stirrup (always as at 45°)}
    const std::tuple<Hook, double, double, double> hooks[] = {
        {Hook::Angle45, 0.5, 10, 10},    {Hook::RightAngle, 0.5, 14, 10}, {Hook::Angle45, 1.0, 10, 10},
        {Hook::RightAngle, 1.0, 20, 10}, {Hook::RightAngle, 0.63, 14, 10}, {Hook::RightAngle, 0.8, 16, 10},
        {Hook::Angle45, 1.2, 12, 12},
    };
    for (const auto& [hook, d, stirrup, tie] : hooks)
        EXPECT_EQ(std::pair(hookAllowances(d, hook).stirrup, hookAllowances(d, hook).tie), std::pair(stirrup, tie));
}

TEST(EngineStirrups, TheChoiceOfStirrupsQuestion)
{
    // 40 mm bars: 10 mm at 20 cm, or with the same steel 8 mm at 20, 6.3 at 17, 5 at 11.
    const StirrupRules r = stirrupRules(4.0, 40, SteelGrade::CA50A);
    const StirrupQuestion q = stirrupQuestion(r);
    EXPECT_EQ(q.heading, "A bitola do estribo deverá ser de 10mm2 com espaçamento de 20cm");
    EXPECT_EQ(q.explanation, " Porém, se os estribos e a armadura longitudinal forem do MESMO TIPO DE AÇO, poderá ser "
                             "adotada uma das soluções abaixo:");
    EXPECT_EQ(q.count, 4);
    EXPECT_EQ(std::vector<std::string>(q.options.begin(), q.options.end()),
              (std::vector<std::string>{"fi de 1mm a cada 20cm. (independe do tipo de aço do estribo).",
                                        "fi de 0.8mm a cada 20cm.", "fi de 0.63mm a cada 17cm.",
                                        "fi de 0.5mm a cada 11cm.",
                                        "Utilizar a solução que proporcione menos quantidade de aço por metro"}));
    // The options run from the allowed stirrup down; the last is the least steel (5 mm here).
    for (const auto& [option, index] : {std::pair{0, 4}, {1, 3}, {2, 2}, {3, 1}, {4, 1}})
        EXPECT_EQ(stirrupFromAnswer(r, option), index) << option;
    // With 6.3 mm allowed two options are offered; one not offered is the least steel.
    const StirrupRules two = stirrupRules(2.5, 19.5, SteelGrade::CA50A);
    EXPECT_EQ(stirrupQuestion(two).count, 2);
    EXPECT_EQ(stirrupQuestion(two).options[1], "fi de 0.5mm a cada 18cm.");
    EXPECT_EQ(stirrupFromAnswer(two, 0), 2);
    EXPECT_EQ(stirrupFromAnswer(two, 3), 1);
}

TEST(EngineSupplementaryStirrups, WhichBarsOfAFaceAreTied)
{
    // A face of n bars at axis spacing s with 5 mm stirrups (20 φt = 10 cm), d' = 4;
    // the flags of bars 1 to n: 's' tied, 'n' explicitly not, '.' unmarked.
    struct Row {
        const char* name;
        double n, s;
        const char* flags;
        int middle;
    } rows[] = {
        {"beyond 20 phi every inner bar", 4, 12, ".ss.", 2},
        {"exactly 20 phi is not beyond it", 4, 10, "....", 2},
        {"exactly 20 phi, one each side, n mod 6 = 0", 6, 10, "..s...", 3},
        {"one each side, n = 8", 8, 6, "...ss...", 4},
        {"one each side, n = 9", 9, 6, "...s.s...", 5},
        {"2 s exactly 20 phi stays two each side", 8, 5, "...s....", 4},
        {"two each side below 7 bars marks nothing", 6, 5, "......", 3},
        {"two each side, n = 10", 10, 4, "....s.....", 5},
        {"two each side, n = 12", 12, 4, "...s.n.s....", 6},
        {"two each side, a second start", 22, 4, ".....s..s.n.s...s.....", 11},
    };
    for (const Row& r : rows) {
        const FaceTies t = faceTies(8 + r.s * (r.n - 1), 4, r.n, 0.5);
        std::string flags;
        for (TieFlag f : t.flags)
            flags += f == TieFlag::Tie ? 's' : f == TieFlag::NoTie ? 'n' : '.';
        EXPECT_EQ(flags, r.flags) << r.name;
        EXPECT_EQ(t.count, static_cast<int>(std::count(flags.begin(), flags.end(), 's'))) << r.name;
        EXPECT_EQ(t.middleBar, r.middle) << r.name;
        EXPECT_DOUBLE_EQ(t.axisSpacing, r.s) << r.name;
    }
}
