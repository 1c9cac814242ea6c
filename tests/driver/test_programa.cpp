// The driver: the input-error ending, the step buttons and failures that must end
// in a message instead of a crash.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>

using namespace pilarix;

namespace {
struct Fixture {
    RecordingDialogs dialogs;
    Program p{dialogs};
};
} // namespace

TEST(Programa0, ZeroFckResetsTheResultsAndEndsInError)
{
    Fixture f;
    f.p.Form1.Text9.Text = "1.00";
    f.p.Form1.Text18.Text = "0";
    f.p.Command1_Click();
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0]["mensagem"], "Fck deve ser diferente de zero");
    EXPECT_EQ(f.p.Form1.Text30.Text, "erro");
    EXPECT_EQ(f.p.Form1.Text30.BackColor, kRed);
    EXPECT_EQ(f.p.Form1.Text9.Text, "");
    EXPECT_EQ(f.p.Form1.Text18.Text, "0") << "the user's input is kept";
}

TEST(Programa0, StepButtonsChangeTheirBoxAndRecalculate)
{
    struct Row {
        const char* name;
        void (Program::*button)();
        TextBox Form1Model::*box;
        const char* before;
        const char* after;
    };
    const Row rows[] = {
        {"+ width bars", &Program::Command2_Click, &Form1Model::Text4, "2", "3"},
        {"- width bars", &Program::Command3_Click, &Form1Model::Text4, "3", "2"},
        {"- width bars stops at 2", &Program::Command3_Click, &Form1Model::Text4, "2", "2"},
        {"+ depth bars", &Program::Command4_Click, &Form1Model::Text5, "4", "5"},
        {"- depth bars", &Program::Command5_Click, &Form1Model::Text5, "4", "3"},
        {"- depth bars stops at 2", &Program::Command5_Click, &Form1Model::Text5, "2", "2"},
        {"+ base", &Program::Command16_Click, &Form1Model::Text1, "20", "25"},
        {"- base", &Program::Command13_Click, &Form1Model::Text1, "30", "25"},
        {"+ depth", &Program::Command15_Click, &Form1Model::Text2, "50", "52.5"},
        {"- depth", &Program::Command14_Click, &Form1Model::Text2, "50", "47.5"},
        {"+ axial force", &Program::SomaNd, &Form1Model::Text16, "400", "401"},
    };
    for (const auto& r : rows) {
        Fixture f;
        f.p.Form1.Text31.Text = "5";
        f.p.Form1.Text32.Text = "2.5";
        (f.p.Form1.*r.box).Text = r.before;
        f.p.Form1.Text30.Text = "";
        (f.p.*r.button)();
        EXPECT_EQ((f.p.Form1.*r.box).Text, r.after) << r.name;
        EXPECT_FALSE(f.p.Form1.Text30.Text.empty()) << r.name << ": the step must run the calculation";
    }
}

TEST(Programa0, AFailureInsideTheCalculationIsAMessageNotACrash)
{
    struct Row {
        const char* name;
        TextBox Form1Model::*box;
        const char* value;
        const char* inMessage;
    };
    const Row rows[] = {
        // One bar per depth face puts the bar layers at a zero spacing.
        {"layers at zero spacing", &Form1Model::Text5, "1", "Erro de cálculo em SArran1R03"},
        // A base of 1e9 cm asks for more bars than a 16-bit count holds.
        {"bar count overflow", &Form1Model::Text1, "1e9", "16 bits"},
    };
    for (const auto& r : rows) {
        Fixture f;
        (f.p.Form1.*r.box).Text = r.value;
        f.p.Command1_Click();
        EXPECT_EQ(f.p.Form1.Text30.Text, "erro") << r.name;
        ASSERT_FALSE(f.dialogs.messages.empty()) << r.name;
        const std::string last = f.dialogs.messages.back()["mensagem"];
        EXPECT_NE(last.find(r.inMessage), std::string::npos) << last;
        EXPECT_EQ((f.p.Form1.*r.box).Text, r.value) << "the user's input is kept";
    }
}
