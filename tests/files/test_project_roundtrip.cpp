// A project Pilarix saves always loads back: the same values, and the same bytes
// when saved again; a value no file can give back is refused before anything is
// written; a project saved after its calculation calculates the same once loaded.

#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

class Folder {
public:
    Folder()
        : path_(fs::temp_directory_path()
                / ("pilarix_rt_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + "_"
                   + std::to_string(::getpid())))
    {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~Folder() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const fs::path path_;
};

std::string bytesOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Everything of the window a project file keeps, as one comparable text.
std::string kept(const Program& p)
{
    const auto& f = p.Form1;
    std::ostringstream s;
    for (const TextBox* t : {&f.Text23, &f.Text1, &f.Text2, &f.Text31, &f.Text32, &f.Text4, &f.Text5, &f.Text3,
                             &f.Text16, &f.Text17, &f.Text18, &f.Text20, &f.Text21, &f.Text22, &f.Text6,
                             &p.Form8.Text1, &p.Form8.Text2})
        s << '[' << t->Text << ']';
    for (const ComboBox* c : {&f.Combo4, &f.Combo5, &f.Combo6, &f.Combo1, &f.Combo7, &f.Combo3, &f.Combo2,
                              &p.Form8.Combo1, &p.Form8.Combo3})
        s << '[' << c->Text << ']';
    for (const CheckBox* c : {&f.Check1, &f.Check2, &f.Check3, &f.Check5})
        s << c->Value;
    for (const OptionButton* o : {&f.Option1, &f.Option2, &f.Option3, &f.Option5, &f.Option6, &f.Option7[0],
                                  &f.Option7[1]})
        s << o->Value;
    s << '[' << f.EstriboDiametro.Text << ';' << f.EstriboEspacamento.Text << ']';
    s << f.Text3.Enabled << f.Command17.Enabled << f.Text6.Enabled << '|' << p.BitolaFixa << '|' << p.NomeDoCaso1;
    for (const auto& c : p.OutrosCasos)
        s << '[' << c.nome << ';' << c.nd << ';' << c.md << ']';
    return s.str();
}

// Random text of the kind a box or a case name may hold: digits, a decimal comma,
// accents, blanks at the ends and, for names, every character of the file's syntax.
std::string randomText(std::mt19937& rng, bool name)
{
    static const std::vector<std::string> pieces{"1", "25", ".5", ",", " ", "ç", "ã", "é", "Nd", "-", "e3"};
    static const std::vector<std::string> syntax{";", "\"", "%", "%2C", "\n", "\r\n", ",", "\t", "'"};
    std::uniform_int_distribution<int> length(0, 6), coin(0, 3);
    std::string s;
    for (int k = length(rng); k > 0; --k) {
        const auto& from = name && coin(rng) == 0 ? syntax : pieces;
        s += from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(rng)];
    }
    return s;
}

void randomProject(Program& p, std::mt19937& rng)
{
    auto pick = [&](const std::vector<std::string>& l) { return l[std::uniform_int_distribution<std::size_t>(0, l.size() - 1)(rng)]; };
    auto number = [&](int lo, int hi) { return std::to_string(std::uniform_int_distribution<int>(lo, hi)(rng)); };
    auto& f = p.Form1;
    f.Text1.Text = number(12, 80);
    f.Text2.Text = number(12, 120);
    f.Text4.Text = number(2, 8);
    f.Text5.Text = number(2, 8);
    f.Text16.Text = randomText(rng, false); // a box may hold anything typed, "400,5" or " 1 "
    f.Text17.Text = number(0, 40000) + (rng() % 2 ? ".25" : "");
    f.Text3.Text = rng() % 2 ? "" : number(2, 6);
    f.Combo1.Text = pick(lists::aco);
    f.Combo2.Text = pick(lists::agressividade);
    f.Combo3.Text = pick(lists::estribo);
    f.Check1.Value = static_cast<int>(rng() % 3);
    f.Check3.Value = static_cast<int>(rng() % 3);
    f.Check5.Value = static_cast<int>(rng() % 2);
    if (rng() % 2)
        selectOption(f.Option1, f.Option2);
    else
        selectOption(f.Option2, f.Option1);
    // The typed stirrup, each box only now and then.
    f.EstriboDiametro.Text = rng() % 2 ? pick(lists::estribo) : "";
    f.EstriboEspacamento.Text = rng() % 2 ? number(5, 40) + ".5" : "";
    p.BitolaFixa = rng() % 3 == 0 ? 4 + static_cast<int>(rng() % 8) : 0;
    p.OutrosCasos.clear();
    if (rng() % 2) {
        p.NomeDoCaso1 = "a" + randomText(rng, true);
        for (int k = static_cast<int>(rng() % 4); k >= 0; --k)
            p.OutrosCasos.push_back({randomText(rng, true) + "b", number(-500, 3000), number(0, 50000) + ".5"});
    }
    // Now and then a calculation has rewritten d'.
    if (rng() % 3 == 0)
        p.reescreveDLinha(number(3, 6) + ".125");
}

} // namespace

TEST(ProjectRoundTrip, RandomProjectsLoadBackTheSameAndSaveTheSameBytes)
{
    Folder dir;
    std::mt19937 rng(20240611);
    PolicyDialogs dialogs;
    for (int k = 0; k < 300; ++k) {
        Program a(dialogs);
        randomProject(a, rng);
        a.NomeArquivo = dir.file("a.txt");
        a.Grava32();
        ASSERT_EQ(a.ErroArquivo, "") << "project " << k;

        Program b(dialogs);
        b.NomeArquivo = a.NomeArquivo;
        b.Carrega33();
        ASSERT_EQ(b.ErroArquivo, "") << "project " << k;
        // d' rewritten by a calculation loads as it stood before it.
        Program expected = a;
        if (a.DLinhaDigitado && *a.DLinhaDigitado != a.DLinhaReescrito)
            expected.Form1.Text3.Text = *a.DLinhaDigitado;
        EXPECT_EQ(kept(b), kept(expected)) << "project " << k;
        b.NomeArquivo = dir.file("b.txt");
        b.Grava32();
        ASSERT_EQ(bytesOf(a.NomeArquivo), bytesOf(b.NomeArquivo)) << "project " << k;
    }
}

TEST(ProjectRoundTrip, AValueNoFileGivesBackIsRefusedNamingTheBoxAndTheOldFileStays)
{
    struct Row {
        const char* name;
        std::function<void(Program&)> edit;
        const char* said;
    };
    const std::vector<Row> rows{
        {"a line break in a box", [](Program& p) { p.Form1.Text16.Text = "400\n5"; },
         "o valor \"400\n5\" de Text16, Nd tem uma quebra de linha"},
        {"a quote with a comma", [](Program& p) { p.Form1.Text17.Text = "1\",5"; },
         "o valor \"1\",5\" de Text17, Md tem aspas"},
        {"a byte that is not UTF-8", [](Program& p) { p.Form1.Text18.Text = "\xc3"; }, "Text18, Fck não é texto UTF-8"},
        {"a check box past 2", [](Program& p) { p.Form1.Check1.Value = 7; }, "deveria ser 0, 1 ou 2"},
        {"a case's Nd that is not a number",
         [](Program& p) { p.OutrosCasos = {{"vento", "400,5", "10"}}; },
         "Nd do caso \"vento\" é \"400,5\", que não é um número"},
        {"a case without a name", [](Program& p) { p.OutrosCasos = {{"", "1", "2"}}; },
         "o caso de carga 2 não tem nome"},
    };
    Folder dir;
    PolicyDialogs dialogs;
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        const std::string path = dir.file("p.txt");
        std::ofstream(path, std::ios::binary) << "antes";
        Program p(dialogs);
        r.edit(p);
        p.NomeArquivo = path;
        p.Grava32();
        EXPECT_NE(p.ErroArquivo.find(r.said), std::string::npos) << p.ErroArquivo;
        EXPECT_EQ(p.ErroArquivo.rfind("Não foi possível gravar o arquivo \"" + path + "\"", 0), 0u) << p.ErroArquivo;
        EXPECT_EQ(bytesOf(path), "antes");
    }
}

TEST(ProjectRoundTrip, AProjectSavedAfterItsCalculationCalculatesTheSameWhenLoaded)
{
    struct Row {
        const char* name;
        std::function<void(Program&)> edit;
    };
    const std::vector<Row> rows{
        // d' empty: the bar limits come from d' = 0, then the cover rewrites d'.
        {"five bars with d' empty", [](Program& p) { p.Form1.Text4.Text = "5"; }},
        {"d' automático", [](Program& p) { p.Form1.Check3.Value = 1, p.Form1.Text4.Text = "4"; }},
        {"cover corrected without asking", [](Program& p) { p.Form1.Check1.Value = 1, p.Form1.Text3.Text = "2"; }},
        {"two load cases", [](Program& p) { p.OutrosCasos = {{"vento; \"forte\", sul", "300", "20000"}}; }},
    };
    Folder dir;
    PolicyDialogs dialogs;
    auto boxes = [](const Program& p) {
        std::string s;
        for (const TextBox* t : {&p.Form1.Text3, &p.Form1.Text4, &p.Form1.Text5, &p.Form1.Text10, &p.Form1.Text11,
                                 &p.Form1.Text27, &p.Form1.Text30})
            s += "[" + t->Text + "]";
        return s;
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        Program a(dialogs);
        r.edit(a);
        a.Command1_Click();
        a.NomeArquivo = dir.file("a.txt");
        a.Grava32();
        ASSERT_EQ(a.ErroArquivo, "");

        Program b(dialogs);
        b.NomeArquivo = a.NomeArquivo;
        b.Carrega33();
        ASSERT_EQ(b.ErroArquivo, "");
        b.Command1_Click();
        EXPECT_EQ(boxes(b), boxes(a));
        b.NomeArquivo = dir.file("b.txt");
        b.Grava32();
        EXPECT_EQ(bytesOf(b.NomeArquivo), bytesOf(a.NomeArquivo));
    }
}
