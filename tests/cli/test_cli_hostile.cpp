// pilarix-cli given hostile input: bytes that are not UTF-8, an option where a
// value belongs, files that are not files. Never an abort, never a file written
// under another name: a message and status 2, or a run whose JSON parses.

#include "cli/cli.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

struct CliRun {
    int status;
    std::string out, err;
};

CliRun run(std::vector<std::string> args)
{
    std::ostringstream out, err;
    const int status = runCli(args, out, err);
    return {status, out.str(), err.str()};
}

class Folder {
public:
    Folder()
        : path_(fs::temp_directory_path()
                / ("pilarix_cli_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + "_"
                   + std::to_string(::getpid())))
    {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~Folder() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const fs::path path_;
};

} // namespace

TEST(CliHostile, RefusedArgumentsSayWhyWithStatus2)
{
    struct Row {
        const char* name;
        std::vector<std::string> args;
        const char* said;
    };
    Folder dir;
    const std::string fifo = dir.file("fila.dxf");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::vector<Row> rows{
        {"a box holding a byte that is not UTF-8", {"--sem-padrao", "--set", "Text16=\xc3", "--json"},
         "--set Text16: o valor não é texto UTF-8"},
        {"a case name that is not UTF-8", {"--sem-padrao", "--caso", "a\xff;1;2", "--json"},
         "--caso: o texto não é UTF-8"},
        {"an option where the file's name belongs", {"--sem-padrao", "--salvar", "--json"},
         "--salvar precisa de um valor, e \"--json\" é uma opção (um arquivo com esse nome se escreve \"./--json\")"},
        {"an option after --memorial", {"--sem-padrao", "--memorial", "--melhor"}, "--memorial precisa de um valor"},
        {"the cases from a device", {"--sem-padrao", "--casos", "/dev/zero"},
         "não foi possível ler os casos de \"/dev/zero\": não é um arquivo comum (é um dispositivo)"},
        {"a project from a device", {"/dev/zero", "--json"},
         "Não foi possível ler o arquivo \"/dev/zero\": não é um arquivo comum (é um dispositivo)."},
        {"a project saved to a device", {"--sem-padrao", "--salvar", "/dev/null"},
         "Não foi possível gravar o arquivo \"/dev/null\": o nome é de um dispositivo"},
        {"a drawing to a FIFO", {"--sem-padrao", "--desenho", fifo},
         "o nome é de uma fila (FIFO), não de um arquivo comum, e não será substituído"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        const CliRun got = run(r.args);
        EXPECT_EQ(got.status, 2);
        EXPECT_NE(got.err.find(r.said), std::string::npos) << got.err;
    }
    struct stat s {};
    ASSERT_EQ(::stat("/dev/null", &s), 0);
    EXPECT_TRUE(S_ISCHR(s.st_mode));
    ASSERT_EQ(::stat(fifo.c_str(), &s), 0);
    EXPECT_TRUE(S_ISFIFO(s.st_mode));
}

TEST(CliHostile, AFileNameThatIsNotUtf8GivesJsonThatParses)
{
    Folder dir;
    const std::string good = dir.file("a.txt");
    const std::string latin1 = dir.file("n\xe3o.txt");
    ASSERT_EQ(run({"--sem-padrao", "--salvar", good}).status, 0);
    fs::copy_file(good, latin1);
    const CliRun got = run({"--sem-padrao", good, latin1, "--json"});
    ASSERT_EQ(got.status, 0) << got.err;
    std::istringstream lines(got.out);
    int documents = 0;
    for (std::string line; std::getline(lines, line); ++documents)
        EXPECT_TRUE(nlohmann::json::accept(line)) << line.substr(0, 200);
    EXPECT_EQ(documents, 2);
    EXPECT_NE(got.out.find("n\xef\xbf\xbdo.txt"), std::string::npos) << "the byte comes out as U+FFFD";
}

TEST(CliHostile, AStoppedCalculationLeavesNoResultOfTheOneBefore)
{
    // Text11 ("Efetiva") holds a result before the run; Nd = 1e307 overflows in Ler02.
    const CliRun got = run({"--sem-padrao", "--set", "Text11=10.00", "--set", "Text16=1e307", "--json"});
    ASSERT_EQ(got.status, 0) << got.err;
    const auto doc = nlohmann::json::parse(got.out);
    EXPECT_EQ(doc["Erros"], "erro");
    for (const char* box : {"Text8", "Text9", "Text10", "Text11", "Text14", "Text19", "Text27"})
        EXPECT_EQ(doc["caixas"][box], "") << box;
}

TEST(CliHostile, AProjectSavedAfterItsCalculationGivesItBackWhenLoaded)
{
    Folder dir;
    const std::string a = dir.file("A.txt");
    const CliRun saved = run({"--sem-padrao", "--set", "Text4=5", "--salvar", a, "--json"});
    const CliRun loaded = run({"--sem-padrao", a, "--json"});
    ASSERT_EQ(saved.status, 0) << saved.err;
    ASSERT_EQ(loaded.status, 0) << loaded.err;
    const auto s = nlohmann::json::parse(saved.out), l = nlohmann::json::parse(loaded.out);
    EXPECT_EQ(l["Erros"], s["Erros"]);
    EXPECT_EQ(l["caixas"], s["caixas"]);
    EXPECT_EQ(l["caixas"]["Text4"], "5");
}
