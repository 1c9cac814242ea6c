// "Estimativa de d'": d' = c + φt + φl / 2 from lists that write a decimal comma.

#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

TEST(DEstimate, EstimateInMillimetresAndAcceptedInCentimetres)
{
    struct Row {
        const char *estribo, *barra, *cobrimento;
        const char* text2; // the estimate, mm
        const char* text3; // accepted into the d' box, cm
    };
    const std::vector<Row> rows{
        {"6,3 mm (1/4'')", "20 mm (3/4'')", "25", "41.3", "4.13"},
        {"5 mm", "10 mm (3/8'')", "", "10", "1"},
        {"8 mm (5/16'')", "12,5 mm (1/2'')", "30", "44.25", "4.425"},
        {"10 mm (3/8'')", "22,5 mm (7/8'')", "40", "61.25", "6.125"},
        {"5 mm", "25 mm (1'')", "20 mm", "37.5", "3.75"},
        {"5 mm", "10 mm (3/8'')", "20.12346", "30.12346", "3.0123"},
        {"5 mm", "10 mm (3/8'')", "20.12356", "30.12356", "3.0124"},
        // the point spelling of the other lists matches nothing: 0 before any match
        {"6.3 mm (1/4'')", "12.5 mm (1/2'')", "25", "25", "2.5"},
    };
    for (const auto& r : rows) {
        SilentDialogs dialogs;
        Program p(dialogs);
        p.Form5.Combo1.Text = r.estribo;
        p.Form5.Combo2.Text = r.barra;
        p.Form5.Text1.Text = r.cobrimento;
        p.Form5Calcula();
        EXPECT_EQ(p.Form5.Text2.Text, r.text2) << r.estribo << " " << r.barra;
        p.Form5Aceita();
        EXPECT_EQ(p.Form1.Text3.Text, r.text3) << r.estribo << " " << r.barra;
    }
}

TEST(DEstimate, ATextOutsideTheListKeepsTheLastDiameter)
{
    SilentDialogs dialogs;
    Program p(dialogs);
    p.Form5.Text1.Text = "20";
    p.Form5.Combo1.Text = "8 mm (5/16'')";
    p.Form5.Combo2.Text = "16 mm (5/8'')";
    p.Form5Calcula();
    EXPECT_EQ(p.Form5.Text2.Text, "36");
    p.Form5.Combo1.Text = "6.3 mm (1/4'')";
    p.Form5.Combo2.Text = "";
    p.Form5Calcula();
    EXPECT_EQ(p.Form5.Text2.Text, "36");
}
