// Project files and "Padrão.txt": what is written, what is read back, and files
// that cannot be read, which must leave the window as it was.

#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

struct Fixture {
    PolicyDialogs dialogs;
    Program p{dialogs};
};

class TempDir {
public:
    TempDir()
        : path_(fs::temp_directory_path()
                / ("pilarix_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + "_"
                   + std::to_string(::getpid())))
    {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~TempDir() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const fs::path path_;
};

std::string readBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void writeBytes(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::string golden() { return readBytes(std::string(PILARIX_TEST_DATA) + "/data/valores_iniciais.txt"); }

// The 39 records of the initial values, edited by a row and joined again.
std::string edited(const std::function<void(std::vector<std::string>&)>& edit, const char* end = "\r\n")
{
    std::vector<std::string> lines;
    std::istringstream in(golden());
    for (std::string l; std::getline(in, l);)
        lines.push_back(l.substr(0, l.size() - 1));
    edit(lines);
    std::string s;
    for (const auto& l : lines)
        s += l + end;
    return s;
}

// What the window holds, as the file would have it, and the result boxes.
std::string window(Program& p, const TempDir& dir)
{
    const auto name = p.NomeArquivo;
    p.NomeArquivo = dir.file("janela.txt");
    p.Grava32();
    p.NomeArquivo = name;
    return readBytes(dir.file("janela.txt")) + p.Form1.Text9.Text + p.Form1.Text30.Text;
}

void everyControlChanged(Program& p)
{
    auto& f = p.Form1;
    for (auto* t : {&f.Text23, &f.Text1, &f.Text2, &f.Text31, &f.Text32, &f.Text4, &f.Text5, &f.Text3, &f.Text16,
                    &f.Text17, &f.Text18, &f.Text20, &f.Text21, &f.Text22, &f.Text6, &p.Form8.Text1, &p.Form8.Text2})
        t->Text += "7";
    f.Text3.Enabled = f.Command17.Enabled = f.Text6.Enabled = false;
    f.Check1.Value = 1;
    f.Check5.Value = 2;
    f.Check2.Value = 0;
    f.Combo4.Text = "Tf";
    f.Combo5.Text = "Tf.m";
    f.Combo6.Text = "Kgf/cm2";
    f.Combo1.Text = "Aço CA-60B";
    f.Combo7.Text = "MPa";
    f.Combo3.Text = "8 mm (5/16'')";
    f.Combo2.Text = "IV";
    p.Form8.Combo1.Text = "6.3 mm (1/4'')";
    p.Form8.Combo3.Text = "25 mm (1'')";
    selectOption(f.Option6, f.Option3, f.Option5);
    selectOption(f.Option7[1], f.Option7[0]);
    selectOption(f.Option2, f.Option1);
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
    TempDir dir;
    Fixture a, b;
    everyControlChanged(a.p);
    a.p.NomeArquivo = b.p.NomeArquivo = dir.file("projeto.txt");
    a.p.Grava32();
    b.p.Carrega33();
    EXPECT_EQ(b.p.ErroArquivo, "");
    EXPECT_EQ(window(b.p, dir), window(a.p, dir));
}

TEST(ProjectFile, AcceptedSpellingsOfAFile)
{
    using Lines = std::vector<std::string>;
    struct Row {
        const char* name;
        std::string file;
        std::function<void(const Form1Model&)> expect;
    };
    const std::vector<Row> rows{
        {"LF line ends", edited([](Lines&) {}, "\n"),
         [](const Form1Model& f) { EXPECT_EQ(f.Combo1.Text, "Aço CA-50A"); }},
        {"Windows-1252 bytes", edited([](Lines& l) { l[20] = "A\xE7o CA-25B"; }),
         [](const Form1Model& f) { EXPECT_EQ(f.Combo1.Text, "Aço CA-25B"); }},
        {"a quoted comma shifts nothing", edited([](Lines& l) { l[11] = "\"1,5\""; }),
         [](const Form1Model& f) { EXPECT_EQ(f.Text16.Text + "|" + f.Text17.Text, "1,5|10000"); }},
        {"28 is the right-angle hook", edited([](Lines& l) { l[27] = "True", l[28] = "False"; }),
         [](const Form1Model& f) { EXPECT_TRUE(f.Option7[1].Value && !f.Option7[0].Value); }},
        {"29 is the 45 degree hook, the later True wins", edited([](Lines& l) { l[27] = l[28] = "True"; }),
         [](const Form1Model& f) { EXPECT_TRUE(f.Option7[0].Value && !f.Option7[1].Value); }},
        {"True clears the group", edited([](Lines& l) { l[24] = "True", l[31] = "True"; }),
         [](const Form1Model& f) { EXPECT_TRUE(f.Option5.Value && !f.Option3.Value && f.Option2.Value && !f.Option1.Value); }},
    };
    for (const auto& r : rows) {
        TempDir dir;
        Fixture f;
        everyControlChanged(f.p);
        f.p.NomeArquivo = dir.file("editado.txt");
        writeBytes(f.p.NomeArquivo, r.file);
        f.p.Carrega33();
        EXPECT_EQ(f.p.ErroArquivo, "") << r.name;
        SCOPED_TRACE(r.name);
        r.expect(f.p.Form1);
    }

    // The hooks are found by caption, whatever their place in the array.
    TempDir dir;
    Fixture f;
    std::swap(f.p.Form1.Option7[0].Caption, f.p.Form1.Option7[1].Caption);
    f.p.NomeArquivo = dir.file("ganchos.txt");
    writeBytes(f.p.NomeArquivo, rows[3].file);
    f.p.Carrega33();
    EXPECT_TRUE(f.p.Form1.Option7[0].Value && !f.p.Form1.Option7[1].Value);
}

TEST(ProjectFile, AFileThatCannotBeReadIsToldAndLeavesTheWindowAsItWas)
{
    using Lines = std::vector<std::string>;
    TempDir dir;
    struct Row {
        const char* name;
        std::string path;
        std::string file; // written to path unless empty
        std::vector<std::string> told;
    };
    const std::vector<Row> rows{
        {"38 records", dir.file("a.txt"), edited([](Lines& l) { l.pop_back(); }), {"tem 38 registros", "registro 39"}},
        {"truth word", dir.file("b.txt"), edited([](Lines& l) { l[8] = "Sim"; }), {"registro 9 ", "\"Sim\""}},
        {"truth word in lower case", dir.file("c.txt"), edited([](Lines& l) { l[22] = "true"; }), {"registro 23 "}},
        {"check box 3", dir.file("d.txt"), edited([](Lines& l) { l[10] = " 3"; }), {"registro 11 ", "\"3\""}},
        {"unit not in its list", dir.file("e.txt"), edited([](Lines& l) { l[17] = "kN"; }), {"registro 18 ", "\"kN\""}},
        {"stirrup with a decimal comma", dir.file("f.txt"), edited([](Lines& l) { l[26] = "\"6,3 mm (1/4'')\""; }),
         {"registro 27 "}},
        {"an unquoted comma shifts the records", dir.file("g.txt"), edited([](Lines& l) { l[0] = "300,5"; }),
         {"registro 9 ", "\"\""}},
        {"a case without forces", dir.file("h.txt"),
         edited([](Lines& l) { l.insert(l.end(), {"Caso;topo", "Caso;base;400"}); }), {"registro 41 ", "Caso;NOME;Nd;Md"}},
        {"a case with a decimal comma", dir.file("i.txt"),
         edited([](Lines& l) { l.insert(l.end(), {"Caso;topo", "Caso;base;\"400,5\";10"}); }), {"registro 41"}},
        {"a bar that is no longitudinal bar", dir.file("j.txt"),
         edited([](Lines& l) { l.push_back("Bitola fixa;5 mm"); }), {"registro 40 ", "bitola fixada"}},
        {"a record of nobody's", dir.file("k.txt"), edited([](Lines& l) { l.push_back("Vento;3"); }),
         {"registro 40 "}},
        {"missing file", dir.file("nao_existe.txt"), "", {"não existe"}},
        {"a folder", dir.path_.string(), "", {"pasta"}},
    };
    for (const auto& r : rows) {
        Fixture f;
        everyControlChanged(f.p);
        f.p.Form1.Text9.Text = "4.00"; // a result on show stays on show
        f.p.Form1.Text30.Text = "Ok";
        const auto before = window(f.p, dir);
        if (!r.file.empty())
            writeBytes(r.path, r.file);
        f.p.NomeArquivo = r.path;
        f.p.Carrega33();
        const std::string erro = f.p.ErroArquivo;
        EXPECT_EQ(window(f.p, dir), before) << r.name;
        for (const auto& piece : r.told)
            EXPECT_NE(erro.find(piece), std::string::npos) << r.name << ": " << erro;
        EXPECT_NE(erro.find("\"" + r.path + "\""), std::string::npos) << r.name;
        ASSERT_EQ(f.dialogs.records.size(), 1u) << r.name;
        EXPECT_EQ(f.dialogs.records[0].mensagem, erro);
    }

    Fixture f;
    f.p.NomeArquivo = dir.file("sem/pasta.txt");
    f.p.Grava32();
    EXPECT_NE(f.p.ErroArquivo.find("Não foi possível gravar"), std::string::npos) << f.p.ErroArquivo;
}

TEST(ProjectFile, LoadCasesAndTheFixedBarFollowThe39RecordsAndComeBack)
{
    TempDir dir;
    Fixture f;
    f.p.NomeDoCaso1 = "topo";
    f.p.OutrosCasos = {{"base", "600", "4000"}, {"vento X", "-20.5", "15000"}};
    f.p.BitolaFixa = 6;
    f.p.NomeArquivo = dir.file("casos.txt");
    f.p.Grava32();
    const std::string bytes = readBytes(dir.file("casos.txt"));
    // The first 39 records are those of a project of one case; the rest follow them.
    EXPECT_EQ(bytes.substr(0, golden().size()), golden());
    EXPECT_EQ(bytes.substr(golden().size()),
              "Caso;topo\r\nCaso;base;600;4000\r\nCaso;vento X;-20.5;15000\r\nBitola fixa;16 mm (5/8'')\r\n");

    Fixture g;
    g.p.NomeArquivo = dir.file("casos.txt");
    g.p.Carrega33();
    ASSERT_TRUE(g.p.ErroArquivo.empty()) << g.p.ErroArquivo;
    EXPECT_EQ(g.p.NomeDoCaso1, "topo");
    ASSERT_EQ(g.p.OutrosCasos.size(), 2u);
    EXPECT_EQ(g.p.OutrosCasos[1].nome, "vento X");
    EXPECT_EQ(g.p.OutrosCasos[1].nd, "-20.5");
    EXPECT_EQ(g.p.BitolaFixa, 6);

    // Loading a project of one case drops the cases and the bar of the one before.
    g.p.NomeArquivo = dir.file("um.txt");
    writeBytes(g.p.NomeArquivo, golden());
    g.p.Carrega33();
    EXPECT_TRUE(g.p.OutrosCasos.empty());
    EXPECT_EQ(g.p.BitolaFixa, 0);
}

TEST(ProjectFile, StartCreatesTheDefaultsFileOnlyWhenMissing)
{
    TempDir dir;
    const auto home = fs::current_path();
    fs::current_path(dir.path_);
    Fixture first, second;
    first.p.Form_Load();
    EXPECT_EQ(readBytes("Padrão.txt"), golden());

    const auto mine = edited([](std::vector<std::string>& l) { l[1] = "30"; });
    writeBytes("Padrão.txt", mine);
    second.p.Form_Load();
    EXPECT_EQ(second.p.Form1.Text1.Text, "30");
    EXPECT_EQ(readBytes("Padrão.txt"), mine);

    // "&Abrir arquivo..." cancelled loads nothing but still calculates.
    second.p.Form1.Text1.Text = "25";
    second.p.mnuItemload_Click();
    EXPECT_EQ(second.p.Base, 25);
    EXPECT_EQ(second.p.Form1.Text30.Text, "Ok");
    fs::current_path(home);
}

TEST(ProjectFile, TheHeadingOfTheWorkFollowsTheRecordsEncodedAndComesBack)
{
    struct Row {
        const char* name;
        DadosDaObra obra;
        const char* after39; // what follows the 39 records
    };
    const Row rows[] = {
        {"none: the file as before", {}, ""},
        {"every field", {"Edifício Aurora", "Construtora X", "P12", "Ana Lima", "R1"},
         "Obra;Edifício Aurora\r\nCliente;Construtora X\r\nPilar;P12\r\nEngenheiro;Ana Lima\r\nRevisão;R1\r\n"},
        {"only the column", {"", "", "P3A", "", ""}, "Pilar;P3A\r\n"},
        // What the record's reader would split or trim is %-encoded, as case names are.
        {"separators and blanks", {"Bloco A; torre 2", "", "P1, P2", "", " R 2 "},
         "Obra;Bloco A%3B torre 2\r\nPilar;P1%2C P2\r\nRevisão;%20R 2%20\r\n"},
        {"a percent sign", {"100% concreto", "", "", "", ""}, "Obra;100%25 concreto\r\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        TempDir dir;
        Fixture f;
        f.p.Obra = row.obra;
        f.p.NomeArquivo = dir.file("obra.txt");
        f.p.Grava32();
        ASSERT_EQ(f.p.ErroArquivo, "");
        const std::string bytes = readBytes(f.p.NomeArquivo);
        EXPECT_EQ(bytes.substr(0, golden().size()), golden());
        EXPECT_EQ(bytes.substr(golden().size()), row.after39);

        Fixture g;
        g.p.Obra = {"antes", "antes", "antes", "antes", "antes"}; // a project before leaves nothing behind
        g.p.NomeArquivo = f.p.NomeArquivo;
        g.p.Carrega33();
        ASSERT_EQ(g.p.ErroArquivo, "");
        EXPECT_EQ(g.p.Obra.obra, row.obra.obra);
        EXPECT_EQ(g.p.Obra.cliente, row.obra.cliente);
        EXPECT_EQ(g.p.Obra.pilar, row.obra.pilar);
        EXPECT_EQ(g.p.Obra.engenheiro, row.obra.engenheiro);
        EXPECT_EQ(g.p.Obra.revisao, row.obra.revisao);
    }

    // A broken record is told and loads nothing.
    TempDir dir;
    Fixture h;
    h.p.NomeArquivo = dir.file("quebrado.txt");
    writeBytes(h.p.NomeArquivo, golden() + "Obra;50%\r\n");
    h.p.Carrega33();
    EXPECT_NE(h.p.ErroArquivo.find("Obra se grava como Obra;TEXTO"), std::string::npos) << h.p.ErroArquivo;
}
