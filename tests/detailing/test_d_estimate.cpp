// "Estimativa de d'": d' = c + φt + φl / 2 from the dialog's lists, which write
// the diameters with a decimal comma.

#include "cli/recording_dialogs.h"
#include "driver/program.h"
#include "input/number_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

TEST(DEstimate, EstimateInMillimetresAndAcceptedInCentimetres)
{
    struct Row {
        const char* name;
        const char* estribo;
        const char* barra;
        const char* cobrimento;
        const char* text2; // estimate, mm
        const char* text3; // accepted into the d' box, cm
    };
    const std::vector<Row> rows{
        {"6.3 stirrup, 20 bar, 25 cover", "6,3 mm (1/4'')", "20 mm (3/4'')", "25", "41.3", "4.13"},
        {"empty cover reads 0", "5 mm", "10 mm (3/8'')", "", "10", "1"},
        {"12.5 bar", "8 mm (5/16'')", "12,5 mm (1/2'')", "30", "44.25", "4.425"},
        {"22.5 bar", "10 mm (3/8'')", "22,5 mm (7/8'')", "40", "61.25", "6.125"},
        {"largest bar", "10 mm (3/8'')", "40 mm", "50", "80", "8"},
        {"32 bar", "5 mm", "32 mm (1 1/4'')", "15", "36", "3.6"},
        {"25 bar, cover read up to its first non-number", "5 mm", "25 mm (1'')", "20 mm", "37.5", "3.75"},
        {"fifth decimal rounds down", "5 mm", "10 mm (3/8'')", "20.12346", "30.12346", "3.0123"},
        {"fifth decimal rounds up", "5 mm", "10 mm (3/8'')", "20.12356", "30.12356", "3.0124"},
        {"16 bar", "6,3 mm (1/4'')", "16 mm (5/8'')", "20", "34.3", "3.43"},
    };
    for (const auto& r : rows) {
        SilentDialogs dialogs;
        Program p(dialogs);
        p.Form5.Combo1.Text = r.estribo;
        p.Form5.Combo2.Text = r.barra;
        p.Form5.Text1.Text = r.cobrimento;
        p.Form5Calcula();
        EXPECT_EQ(p.Form5.Text2.Text, r.text2) << r.name;
        p.Form5Aceita();
        EXPECT_EQ(p.Form1.Text3.Text, r.text3) << r.name;
        EXPECT_EQ(Val(p.Form1.Text3.Text), Val(r.text3)) << r.name;
        EXPECT_DOUBLE_EQ(p.dLinhaEstimada, Val(r.text2) / 10) << r.name << ": the estimate itself stays unrounded";
    }
}

TEST(DEstimate, ATextOutsideTheListKeepsTheLastDiameter)
{
    struct Row {
        const char* name;
        const char* estribo;
        const char* barra;
        const char* text2;
    };
    // Each row is calculated after "8 mm (5/16'')" and "16 mm (5/8'')" at cover 20.
    const std::vector<Row> rows{
        {"point instead of comma in the stirrup", "6.3 mm (1/4'')", "16 mm (5/8'')", "36"},
        {"point instead of comma in the bar", "5 mm", "12.5 mm (1/2'')", "33"},
        {"both unknown", "8mm", "", "36"},
    };
    for (const auto& r : rows) {
        SilentDialogs dialogs;
        Program p(dialogs);
        p.Form5.Text1.Text = "20";
        p.Form5.Combo1.Text = "8 mm (5/16'')";
        p.Form5.Combo2.Text = "16 mm (5/8'')";
        p.Form5Calcula();
        ASSERT_EQ(p.Form5.Text2.Text, "36");
        p.Form5.Combo1.Text = r.estribo;
        p.Form5.Combo2.Text = r.barra;
        p.Form5Calcula();
        EXPECT_EQ(p.Form5.Text2.Text, r.text2) << r.name;
    }

    // Before any match a list counts 0.
    SilentDialogs dialogs;
    Program p(dialogs);
    p.Form5.Combo1.Text = "6.3 mm (1/4'')";
    p.Form5.Combo2.Text = "20 mm (3/4'')";
    p.Form5.Text1.Text = "25";
    p.Form5Calcula();
    EXPECT_EQ(p.Form5.Text2.Text, "35");
}
