// Files written whole or not at all, and input files read within bounds: a full
// disk never leaves a fragment where the old file stood, a device or a FIFO is
// never replaced nor read without end.

#include "cli/batch.h"
#include "export/dxf_writer.h"
#include "files/bounded_read.h"
#include "files/safe_write.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

class Folder {
public:
    Folder()
        : path_(fs::temp_directory_path()
                / ("pilarix_safe_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())
                   + "_" + std::to_string(::getpid())))
    {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~Folder() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::size_t entries() const { return static_cast<std::size_t>(std::distance(fs::directory_iterator(path_), {})); }
    const fs::path path_;
};

std::string bytesOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Runs `write` in a child whose files may not grow past 4 kB, as on a full disk;
// the child's message comes back through a pipe. False when the child said it wrote.
bool failsOnAFullDisk(const std::function<bool(std::string&)>& write, std::string& message)
{
    int pipefd[2];
    if (::pipe(pipefd) != 0)
        return false;
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipefd[0]);
        std::signal(SIGXFSZ, SIG_IGN); // the write then fails with EFBIG
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::string error;
        const bool ok = write(error);
        [[maybe_unused]] const auto n = ::write(pipefd[1], error.data(), error.size());
        ::_exit(ok ? 0 : 1);
    }
    ::close(pipefd[1]);
    char buffer[4096];
    ssize_t n = 0;
    while ((n = ::read(pipefd[0], buffer, sizeof buffer)) > 0)
        message.append(buffer, static_cast<std::size_t>(n));
    ::close(pipefd[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

const std::string kOld = "o projeto de antes\r\n";

} // namespace

TEST(SafeFiles, AFullDiskLeavesTheOldFileWholeAndNothingBeside)
{
    PolicyDialogs dialogs;
    Program calculated(dialogs);
    calculated.Command1_Click();
    ASSERT_TRUE(calculated.Desenho.has_value());
    // Each writer asked to write more than the 4 kB the child may.
    struct Row {
        const char* name;
        const char* file;
        std::function<bool(const std::string& path, std::string& error)> write;
    };
    const std::vector<Row> rows{
        {"bytes", "a.bin",
         [](const std::string& path, std::string& error) {
             return files::writeFileWhole(path, std::string(64 * 1024, 'x'), error);
         }},
        {"project with many load cases", "p.txt",
         [&](const std::string& path, std::string& error) {
             Program p(dialogs);
             for (int k = 0; k < 400; ++k)
                 p.OutrosCasos.push_back({"caso " + std::to_string(k), "100", "2000"});
             p.NomeArquivo = path;
             p.Grava32();
             error = p.ErroArquivo;
             return error.empty();
         }},
        {"DXF drawing", "d.dxf",
         [&](const std::string& path, std::string& error) {
             return exporting::writeDxf(*calculated.Desenho, path, error);
         }},
        {"CSV summary", "r.csv",
         [](const std::string& path, std::string& error) {
             std::vector<BatchRow> rows(300, BatchRow{"pilar.txt", {"20", "50", "2 x 4"}, "Ok"});
             std::ostringstream err;
             const bool ok = writeBatchCsv(path, rows, err);
             error = err.str();
             return ok;
         }},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        Folder dir;
        const std::string path = dir.file(r.file);
        std::ofstream(path, std::ios::binary) << kOld;
        std::string message;
        EXPECT_TRUE(failsOnAFullDisk([&](std::string& e) { return r.write(path, e); }, message));
        EXPECT_NE(message.find("Não foi possível gravar o arquivo \"" + path + "\""), std::string::npos) << message;
        EXPECT_NE(message.find("tamanho que o sistema permite"), std::string::npos) << message;
        EXPECT_EQ(bytesOf(path), kOld);
        EXPECT_EQ(dir.entries(), 1u) << "a temporary file was left beside";
    }
}

TEST(SafeFiles, ATargetThatIsNotARegularFileIsRefusedAndKept)
{
    Folder dir;
    const std::string fifo = dir.file("fila");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    struct Row {
        const char* name;
        std::string path;
        const char* said;
    };
    const std::vector<Row> rows{{"a character device", "/dev/null", "um dispositivo"},
                                {"a FIFO", fifo, "uma fila (FIFO)"}};
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        std::string error;
        EXPECT_FALSE(files::writeFileWhole(r.path, "x", error));
        EXPECT_NE(error.find("\"" + r.path + "\": o nome é de " + r.said), std::string::npos) << error;
        struct stat s {};
        ASSERT_EQ(::stat(r.path.c_str(), &s), 0);
        EXPECT_FALSE(S_ISREG(s.st_mode));
    }
    EXPECT_EQ(dir.entries(), 1u);
}

TEST(SafeFiles, AReplacedFileKeepsItsPermissionsAndALinkStaysALink)
{
    Folder dir;
    const std::string real = dir.file("real.txt");
    const std::string link = dir.file("atalho.txt");
    std::ofstream(real) << "velho";
    ::chmod(real.c_str(), 0640);
    fs::create_symlink(real, link);
    std::string error;
    ASSERT_TRUE(files::writeFileWhole(link, "novo", error)) << error;
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(bytesOf(real), "novo");
    struct stat s {};
    ::stat(real.c_str(), &s);
    EXPECT_EQ(s.st_mode & 0777, 0640u);
    // A name that is not UTF-8 is written as the bytes it is.
    const std::string latin1 = dir.file("m\xe3o.txt");
    ASSERT_TRUE(files::writeFileWhole(latin1, "x", error)) << error;
    EXPECT_TRUE(fs::exists(fs::path(latin1)));
}

TEST(SafeFiles, InputFilesAreReadWithinBounds)
{
    Folder dir;
    const std::string fifo = dir.file("fila");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::string big = dir.file("grande.txt");
    std::ofstream(big, std::ios::binary) << std::string(files::kMaxInputBytes + 1, 'a');
    const std::string exact = dir.file("limite.txt");
    std::ofstream(exact, std::ios::binary) << std::string(files::kMaxInputBytes, 'a');
    struct Row {
        const char* name;
        std::string path;
        const char* why; // empty: read
    };
    const std::vector<Row> rows{
        {"/dev/zero would be read for ever", "/dev/zero", "não é um arquivo comum (é um dispositivo)"},
        {"a FIFO would wait for a writer", fifo, "não é um arquivo comum (é uma fila (FIFO))"},
        {"one byte past the bound", big, "mais do que os 512 kB"},
        {"exactly the bound", exact, ""},
        {"a folder", dir.path_.string(), "o nome é de uma pasta"},
        {"nothing there", dir.file("nada.txt"), "o arquivo ou a pasta não existe"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        std::string bytes, why;
        const bool read = files::readBoundedFile(r.path, files::kMaxInputBytes, bytes, why);
        EXPECT_EQ(read, *r.why == '\0');
        EXPECT_NE(why.find(r.why), std::string::npos) << why;
    }
    // Loading a project names the file.
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.NomeArquivo = "/dev/zero";
    p.Carrega33();
    EXPECT_EQ(p.ErroArquivo, "Não foi possível ler o arquivo \"/dev/zero\": não é um arquivo comum (é um dispositivo).");
}
