// Project files and "Padrão.txt": what is written, what is read back, and files
// that cannot be read, which must leave the window as it was.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

class FileDialogs : public RecordingDialogs {
public:
    std::string openName, saveName;
    std::string askOpenFileName() override { return openName; }
    std::string askSaveFileName() override { return saveName; }
};

struct Fixture {
    FileDialogs dialogs;
    Program p{dialogs};
};

// A folder of its own for each test, removed at the end.
class TempDir {
public:
    TempDir()
    {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        path_ = fs::temp_directory_path()
                / ("pilarix_" + std::string(info->test_suite_name()) + "_" + info->name() + "_"
                   + std::to_string(::getpid()));
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~TempDir() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

std::string readBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void writeBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

std::string golden() { return readBytes(std::string(PILARIX_TEST_DATA) + "/valores_iniciais.txt"); }

// The 39 records of the initial values, one string each.
std::vector<std::string> goldenRecords()
{
    std::vector<std::string> lines;
    std::istringstream in(golden());
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::string join(const std::vector<std::string>& lines, const char* end = "\r\n")
{
    std::string s;
    for (const auto& l : lines)
        s += l + end;
    return s;
}

std::string b(bool v) { return v ? "T" : "F"; }
std::string color(const Color& c)
{
    return std::to_string(c.r) + "," + std::to_string(c.g) + "," + std::to_string(c.b) + "," + std::to_string(c.system);
}

// Everything of the window a load could touch, results and colours included.
std::vector<std::string> snapshot(const Program& p)
{
    const auto& f = p.Form1;
    std::vector<std::string> s;
    auto text = [&](const char* n, const TextBox& t) {
        s.push_back(std::string(n) + "=" + t.Text + "|" + b(t.Enabled) + b(t.Visible) + "|" + color(t.BackColor)
                    + "|" + color(t.ForeColor));
    };
    auto combo = [&](const char* n, const ComboBox& c) { s.push_back(std::string(n) + "=" + c.Text); };
    auto check = [&](const char* n, const CheckBox& c) { s.push_back(std::string(n) + "=" + std::to_string(c.Value)); };
    auto option = [&](const char* n, const OptionButton& o) { s.push_back(std::string(n) + "=" + b(o.Value)); };
    text("Text1", f.Text1), text("Text2", f.Text2), text("Text3", f.Text3), text("Text4", f.Text4);
    text("Text5", f.Text5), text("Text6", f.Text6), text("Text8", f.Text8), text("Text9", f.Text9);
    text("Text10", f.Text10), text("Text11", f.Text11), text("Text12", f.Text12), text("Text13", f.Text13);
    text("Text14", f.Text14), text("Text15", f.Text15), text("Text16", f.Text16), text("Text17", f.Text17);
    text("Text18", f.Text18), text("Text19", f.Text19), text("Text20", f.Text20), text("Text21", f.Text21);
    text("Text22", f.Text22), text("Text23", f.Text23), text("Text25", f.Text25), text("Text26", f.Text26);
    text("Text27", f.Text27), text("Text28", f.Text28), text("Text29", f.Text29), text("Text30", f.Text30);
    text("Text31", f.Text31), text("Text32", f.Text32);
    for (const auto& t : f.Text7)
        text("Text7", t);
    combo("Combo1", f.Combo1), combo("Combo2", f.Combo2), combo("Combo3", f.Combo3), combo("Combo4", f.Combo4);
    combo("Combo5", f.Combo5), combo("Combo6", f.Combo6), combo("Combo7", f.Combo7);
    check("Check1", f.Check1), check("Check2", f.Check2), check("Check3", f.Check3), check("Check5", f.Check5);
    option("Option1", f.Option1), option("Option2", f.Option2), option("Option3", f.Option3);
    option("Option5", f.Option5), option("Option6", f.Option6);
    option("Option7(0)", f.Option7[0]), option("Option7(1)", f.Option7[1]);
    s.push_back("Command17.Enabled=" + b(f.Command17.Enabled));
    s.push_back("Form8.Text1=" + p.Form8.Text1.Text);
    s.push_back("Form8.Text2=" + p.Form8.Text2.Text);
    combo("Form8.Combo1", p.Form8.Combo1), combo("Form8.Combo3", p.Form8.Combo3);
    return s;
}

// Every saved control away from its initial value.
void everyControlChanged(Program& p)
{
    auto& f = p.Form1;
    f.Text23.Text = "450";
    f.Text1.Text = "35";
    f.Text2.Text = "70";
    f.Text31.Text = "5";
    f.Text32.Text = "10";
    f.Text4.Text = "3";
    f.Text5.Text = "6";
    f.Text3.Text = "4.5";
    f.Text3.Enabled = false;
    f.Command17.Enabled = false;
    f.Check1.Value = 1;
    f.Text16.Text = "-250.5";
    f.Text17.Text = "1234.5";
    f.Text18.Text = "35";
    f.Text20.Text = "210000";
    f.Text21.Text = "1.4";
    f.Text22.Text = "1.1";
    f.Combo4.Text = "Tf";
    f.Combo5.Text = "Tf.m";
    f.Combo6.Text = "Kgf/cm2";
    f.Combo1.Text = "Aço CA-60B";
    f.Combo7.Text = "MPa";
    selectOption(f.Option6, f.Option3, f.Option5);
    f.Check5.Value = 2;
    f.Combo3.Text = "8 mm (5/16'')";
    selectOption(f.Option7[1], f.Option7[0]);
    f.Combo2.Text = "IV";
    selectOption(f.Option2, f.Option1);
    p.Form8.Text2.Text = "1.9";
    p.Form8.Text1.Text = "0.00001";
    f.Text6.Text = "7";
    f.Text6.Enabled = false;
    f.Check2.Value = 0;
    p.Form8.Combo1.Text = "6.3 mm (1/4'')";
    p.Form8.Combo3.Text = "25 mm (1'')";
}

} // namespace

TEST(ProjectFile, InitialValuesAreWrittenRecordByRecord)
{
    TempDir dir;
    Fixture f;
    f.p.NomeArquivo = dir.file("inicial.txt");
    f.p.Grava32();
    EXPECT_EQ(f.p.ErroArquivo, "");
    EXPECT_EQ(readBytes(f.p.NomeArquivo), golden());
}

TEST(ProjectFile, SaveThenLoadGivesBackEveryControl)
{
    struct Row {
        const char* name;
        std::function<void(Program&)> change;
    };
    const std::vector<Row> rows{
        {"initial values", [](Program&) {}},
        {"every control changed", everyControlChanged},
        {"the other option of each group",
         [](Program& p) {
             everyControlChanged(p);
             selectOption(p.Form1.Option5, p.Form1.Option3, p.Form1.Option6);
             selectOption(p.Form1.Option7[0], p.Form1.Option7[1]);
             selectOption(p.Form1.Option1, p.Form1.Option2);
             p.Form1.Check1.Value = 2;
             p.Form1.Check5.Value = 1;
             p.Form1.Text3.Enabled = true;
         }},
        {"texts with blanks and accents inside",
         [](Program& p) {
             p.Form1.Text23.Text = "3 00";
             p.Form8.Text2.Text = "dois é";
         }},
    };
    for (const auto& r : rows) {
        TempDir dir;
        Fixture a, loaded;
        r.change(a.p);
        a.p.NomeArquivo = dir.file("projeto.txt");
        a.p.Grava32();
        ASSERT_EQ(a.p.ErroArquivo, "") << r.name;

        loaded.p.NomeArquivo = a.p.NomeArquivo;
        loaded.p.Carrega33();
        EXPECT_EQ(loaded.p.ErroArquivo, "") << r.name;
        EXPECT_EQ(snapshot(loaded.p), snapshot(a.p)) << r.name;
        EXPECT_TRUE(loaded.dialogs.messages.empty()) << r.name;
    }
}

TEST(ProjectFile, AcceptedSpellingsOfAFile)
{
    struct Row {
        const char* name;
        std::function<std::string(std::vector<std::string>)> file;
        std::function<void(Program&)> expect;
    };
    const std::vector<Row> rows{
        {"LF line ends", [](std::vector<std::string> l) { return join(l, "\n"); },
         [](Program& p) { EXPECT_EQ(p.Form1.Combo1.Text, "Aço CA-50A"); EXPECT_EQ(p.Form8.Combo3.Text, "40 mm"); }},
        {"Windows-1252 bytes",
         [](std::vector<std::string> l) {
             l[20] = "A\xE7o CA-25B";
             return join(l);
         },
         [](Program& p) { EXPECT_EQ(p.Form1.Combo1.Text, "Aço CA-25B"); }},
        {"a quoted field holding a comma shifts nothing",
         [](std::vector<std::string> l) {
             l[11] = "\"1,5\"";
             return join(l);
         },
         [](Program& p) {
             EXPECT_EQ(p.Form1.Text16.Text, "1,5");
             EXPECT_EQ(p.Form1.Text17.Text, "10000");
         }},
        {"blanks around a text",
         [](std::vector<std::string> l) {
             l[0] = "   275  ";
             return join(l);
         },
         [](Program& p) { EXPECT_EQ(p.Form1.Text23.Text, "275"); }},
        {"records past the 39th are not read",
         [](std::vector<std::string> l) {
             l.push_back("anything");
             return join(l);
         },
         [](Program& p) { EXPECT_EQ(p.Form8.Combo3.Text, "40 mm"); }},
        {"28 selects the right-angle hook",
         [](std::vector<std::string> l) {
             l[27] = "True";
             l[28] = "False";
             return join(l);
         },
         [](Program& p) {
             EXPECT_TRUE(p.Form1.Option7[1].Value);
             EXPECT_FALSE(p.Form1.Option7[0].Value);
         }},
        {"29 selects the 45 degree hook",
         [](std::vector<std::string> l) {
             l[27] = "False";
             l[28] = "True";
             return join(l);
         },
         [](Program& p) {
             EXPECT_FALSE(p.Form1.Option7[1].Value);
             EXPECT_TRUE(p.Form1.Option7[0].Value);
         }},
        {"both hooks True: the later record wins, as clicking it would",
         [](std::vector<std::string> l) {
             l[27] = "True";
             l[28] = "True";
             return join(l);
         },
         [](Program& p) {
             EXPECT_FALSE(p.Form1.Option7[1].Value);
             EXPECT_TRUE(p.Form1.Option7[0].Value);
         }},
        {"an option set True clears its group",
         [](std::vector<std::string> l) {
             l[22] = "False";
             l[24] = "True";
             l[30] = "False";
             l[31] = "True";
             return join(l);
         },
         [](Program& p) {
             EXPECT_TRUE(p.Form1.Option5.Value);
             EXPECT_FALSE(p.Form1.Option3.Value);
             EXPECT_TRUE(p.Form1.Option2.Value);
             EXPECT_FALSE(p.Form1.Option1.Value);
         }},
    };
    for (const auto& r : rows) {
        TempDir dir;
        Fixture f;
        everyControlChanged(f.p); // so that each loaded value is seen to arrive
        f.p.NomeArquivo = dir.file("editado.txt");
        writeBytes(f.p.NomeArquivo, r.file(goldenRecords()));
        f.p.Carrega33();
        EXPECT_EQ(f.p.ErroArquivo, "") << r.name;
        SCOPED_TRACE(r.name);
        r.expect(f.p);
    }
}

TEST(ProjectFile, HooksAreFoundByCaptionNotByPlace)
{
    TempDir dir;
    Fixture f;
    // The hook array in the other order.
    std::swap(f.p.Form1.Option7[0].Caption, f.p.Form1.Option7[1].Caption);
    auto lines = goldenRecords();
    lines[27] = "True";
    lines[28] = "False";
    f.p.NomeArquivo = dir.file("ganchos.txt");
    writeBytes(f.p.NomeArquivo, join(lines));
    f.p.Carrega33();
    EXPECT_TRUE(f.p.Form1.Option7[0].Value) << "element 0 now carries \"&90\"";
    EXPECT_FALSE(f.p.Form1.Option7[1].Value);

    f.p.NomeArquivo = dir.file("ganchos_gravados.txt");
    f.p.Grava32();
    const auto written = readBytes(f.p.NomeArquivo);
    EXPECT_NE(written.find("\r\nTrue\r\nFalse\r\nII\r\n"), std::string::npos) << written;
}

TEST(ProjectFile, ABrokenFileIsToldAndLeavesTheWindowAsItWas)
{
    struct Row {
        const char* name;
        std::function<std::string(std::vector<std::string>)> file;
        std::vector<std::string> told; // pieces the message must hold
    };
    const std::vector<Row> rows{
        {"38 records",
         [](std::vector<std::string> l) {
             l.pop_back();
             return join(l);
         },
         {"tem 38 registros", "registro 39"}},
        {"empty file", [](std::vector<std::string>) { return std::string(); }, {"tem 0 registros", "registro 1 "}},
        {"truth word other than True/False",
         [](std::vector<std::string> l) {
             l[8] = "Sim";
             return join(l);
         },
         {"registro 9 ", "\"Sim\"", "True ou False"}},
        {"truth word in other letter case",
         [](std::vector<std::string> l) {
             l[22] = "true";
             return join(l);
         },
         {"registro 23 ", "\"true\""}},
        {"check box outside 0, 1, 2",
         [](std::vector<std::string> l) {
             l[10] = " 3";
             return join(l);
         },
         {"registro 11 ", "\"3\"", "0, 1 ou 2"}},
        {"force unit not in its list",
         [](std::vector<std::string> l) {
             l[17] = "kN";
             return join(l);
         },
         {"registro 18 ", "\"kN\"", "\"KN\""}},
        {"stirrup written with a decimal comma",
         [](std::vector<std::string> l) {
             l[26] = "\"6,3 mm (1/4'')\"";
             return join(l);
         },
         {"registro 27 ", "\"6,3 mm (1/4'')\""}},
        {"largest bar not in its list",
         [](std::vector<std::string> l) {
             l[38] = "50 mm";
             return join(l);
         },
         {"registro 39 ", "\"50 mm\""}},
        {"an unquoted comma shifts every later record",
         [](std::vector<std::string> l) {
             l[0] = "300,5";
             return join(l);
         },
         {"registro 9 ", "\"\"", "True ou False"}},
    };
    for (const auto& r : rows) {
        TempDir dir;
        Fixture f;
        everyControlChanged(f.p);
        f.p.Form1.Text9.Text = "4.00"; // a result on show stays on show
        f.p.Form1.Text30.Text = "Ok";
        const auto before = snapshot(f.p);
        f.p.NomeArquivo = dir.file("quebrado.txt");
        writeBytes(f.p.NomeArquivo, r.file(goldenRecords()));
        f.p.Carrega33();

        EXPECT_EQ(snapshot(f.p), before) << r.name;
        EXPECT_NE(f.p.ErroArquivo.find(f.p.NomeArquivo), std::string::npos) << r.name << ": " << f.p.ErroArquivo;
        for (const auto& piece : r.told)
            EXPECT_NE(f.p.ErroArquivo.find(piece), std::string::npos) << r.name << ": " << f.p.ErroArquivo;
        ASSERT_EQ(f.dialogs.messages.size(), 1u) << r.name;
        EXPECT_EQ(f.dialogs.messages[0]["janela"], "Mensagem de erro");
        EXPECT_EQ(f.dialogs.messages[0]["mensagem"], f.p.ErroArquivo);
        EXPECT_EQ(f.dialogs.messages[0]["item"], "");
    }
}

TEST(ProjectFile, APathThatCannotBeUsedIsToldWithoutACrash)
{
    TempDir dir;
    struct Row {
        const char* name;
        std::string path;
        void (Program::*action)();
        const char* told;
    };
    const std::vector<Row> rows{
        {"reading a file that does not exist", dir.file("nao_existe.txt"), &Program::Carrega33, "não existe"},
        {"reading a folder", dir.path().string(), &Program::Carrega33, "pasta"},
        {"writing into a folder that does not exist", dir.file("sem/pasta.txt"), &Program::Grava32, "não existe"},
        {"writing over a folder", dir.path().string(), &Program::Grava32, "pasta"},
    };
    for (const auto& r : rows) {
        Fixture f;
        everyControlChanged(f.p);
        const auto before = snapshot(f.p);
        f.p.NomeArquivo = r.path;
        (f.p.*r.action)();
        EXPECT_EQ(snapshot(f.p), before) << r.name;
        EXPECT_NE(f.p.ErroArquivo.find("\"" + r.path + "\""), std::string::npos) << r.name << ": " << f.p.ErroArquivo;
        EXPECT_NE(f.p.ErroArquivo.find(r.told), std::string::npos) << r.name << ": " << f.p.ErroArquivo;
        EXPECT_EQ(f.dialogs.messages.size(), 1u) << r.name;
    }
}

TEST(ProjectFile, StartCreatesTheDefaultsFileOnlyWhenMissing)
{
    TempDir dir;
    const auto home = fs::current_path();
    fs::current_path(dir.path());
    {
        Fixture first;
        first.p.Form_Load();
        EXPECT_EQ(first.p.ErroArquivo, "");
        EXPECT_EQ(readBytes("Padrão.txt"), golden());
        EXPECT_EQ(first.p.Form1.Text1.Text, "20");

        // A defaults file of the user's is loaded, not replaced.
        auto lines = goldenRecords();
        lines[1] = "30";
        writeBytes("Padrão.txt", join(lines));
        Fixture second;
        second.p.Form_Load();
        EXPECT_EQ(second.p.Form1.Text1.Text, "30");
        EXPECT_EQ(readBytes("Padrão.txt"), join(lines));

        // "Valores &padrão" and the menu reload it over the user's edits.
        for (auto handler : {&Program::Command7_Click, &Program::mnuItemCarregpadr_Click}) {
            second.p.Form1.Text1.Text = "99";
            (second.p.*handler)();
            EXPECT_EQ(second.p.Form1.Text1.Text, "30");
        }
        second.p.Form1.Text2.Text = "77";
        second.p.mnuItemSaveDefault_Click();
        EXPECT_NE(readBytes("Padrão.txt").find("\r\n77\r\n"), std::string::npos);
    }
    fs::current_path(home);
}

TEST(ProjectFile, OpenAndSaveThroughTheFileDialogs)
{
    TempDir dir;
    {
        // Cancelled: nothing is loaded, and the window is calculated as it stands.
        Fixture f;
        f.p.Form1.Text1.Text = "25";
        f.p.mnuItemload_Click();
        EXPECT_EQ(f.p.Form1.Text1.Text, "25");
        EXPECT_EQ(f.p.Form1.Text30.Text, "Ok");
    }
    {
        Fixture f;
        auto lines = goldenRecords();
        lines[1] = "30";
        f.dialogs.openName = dir.file("aberto.txt");
        writeBytes(f.dialogs.openName, join(lines));
        f.p.mnuItemload_Click();
        EXPECT_EQ(f.p.Form1.Text1.Text, "30");
        EXPECT_EQ(f.p.Base, 30) << "the loaded values were calculated";
    }
    {
        Fixture f;
        auto count = [&] { return std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()); };
        const auto files = count();
        f.p.mnuItemSave_Click(); // cancelled
        EXPECT_EQ(count(), files);
        f.dialogs.saveName = dir.file("salvo.txt");
        f.p.mnuItemSave_Click();
        EXPECT_EQ(readBytes(dir.file("salvo.txt")), golden());
    }
}

TEST(ProjectFile, CommandLineRefusesABrokenFile)
{
    TempDir dir;
    auto lines = goldenRecords();
    lines[8] = "Sim";
    const auto file = dir.file("quebrado.txt");
    writeBytes(file, join(lines));
    const auto err = dir.file("err.txt");
    const std::string cmd = std::string("\"") + PILARIX_CLI + "\" \"" + file + "\" --json > /dev/null 2> \"" + err + "\"";
    const int status = std::system(cmd.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2);
    EXPECT_NE(readBytes(err).find("registro 9"), std::string::npos) << readBytes(err);
}
