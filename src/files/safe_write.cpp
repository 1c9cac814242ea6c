#include "files/safe_write.h"

#include "export/save_failure.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pilarix::files {

namespace {

constexpr int kTentativasDeNome = 100;       // names tried for the new file
constexpr int kInterrupcoesSeguidas = 1000;  // writes interrupted by a signal in a row
constexpr std::size_t kBloco = std::size_t{1} << 20;

std::atomic<unsigned> contador{0};

std::string pastaDe(const std::string& path)
{
    const auto barra = path.find_last_of('/');
    if (barra == std::string::npos)
        return ".";
    return barra == 0 ? "/" : path.substr(0, barra);
}

std::string nomeDe(const std::string& path)
{
    const auto barra = path.find_last_of('/');
    return barra == std::string::npos ? path : path.substr(barra + 1);
}

// The file a symbolic link points to, so that the link itself stays; the path as
// given otherwise (or when the link leads nowhere: the write then makes the file).
std::string alvoReal(const std::string& path)
{
    struct stat l {};
    if (::lstat(path.c_str(), &l) != 0 || !S_ISLNK(l.st_mode))
        return path;
    char real[PATH_MAX];
    if (::realpath(path.c_str(), real) == nullptr)
        return path;
    return real;
}

// A new file beside `alvo`, hidden, with a name no other file has; -1 with errno.
int criaVizinho(const std::string& alvo, std::string& nome)
{
    const std::string base = pastaDe(alvo) + "/." + nomeDe(alvo) + ".pilarix-";
    for (int k = 0; k < kTentativasDeNome; ++k) {
        nome = base + std::to_string(::getpid()) + "-" + std::to_string(contador++);
        const int fd = ::open(nome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (fd >= 0 || errno != EEXIST)
            return fd;
    }
    errno = EEXIST;
    return -1;
}

// Every byte written, or the errno of the write that failed.
int escreveTudo(int fd, std::string_view bytes)
{
    int interrupcoes = 0;
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), std::min(bytes.size(), kBloco));
        if (n < 0) {
            if (errno == EINTR && ++interrupcoes < kInterrupcoesSeguidas)
                continue;
            return errno;
        }
        if (n == 0)
            return ENOSPC;
        interrupcoes = 0;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

} // namespace

std::string notARegularFile(const std::string& path)
{
    struct stat s {};
    if (::stat(path.c_str(), &s) != 0 || S_ISREG(s.st_mode) || S_ISDIR(s.st_mode))
        return {};
    const char* que = S_ISCHR(s.st_mode) || S_ISBLK(s.st_mode) ? "um dispositivo"
                      : S_ISFIFO(s.st_mode)                    ? "uma fila (FIFO)"
                      : S_ISSOCK(s.st_mode)                    ? "um soquete"
                                                               : "algo que não é um arquivo";
    return std::string("o nome é de ") + que + ", não de um arquivo comum, e não será substituído";
}

bool writeFileWhole(const std::string& path, std::string_view bytes, std::string& error)
{
    if (path.empty()) {
        error = exporting::missingFileName();
        return false;
    }
    if (const std::string porque = notARegularFile(path); !porque.empty()) {
        error = exporting::saveFailure(path, porque);
        return false;
    }
    const std::string alvo = alvoReal(path);
    if (const int obstaculo = exporting::obstacleToSaving(alvo)) {
        error = exporting::saveFailure(path, obstaculo);
        return false;
    }
    struct stat antigo {};
    const bool existe = ::stat(alvo.c_str(), &antigo) == 0;

    std::string vizinho;
    const int fd = criaVizinho(alvo, vizinho);
    if (fd < 0) {
        error = exporting::saveFailure(path, errno);
        return false;
    }
    int falha = 0;
    if (existe && ::fchmod(fd, antigo.st_mode & 07777) != 0)
        falha = errno;
    if (falha == 0)
        falha = escreveTudo(fd, bytes);
    if (falha == 0 && ::fsync(fd) != 0)
        falha = errno;
    if (::close(fd) != 0 && falha == 0)
        falha = errno;
    if (falha == 0 && ::rename(vizinho.c_str(), alvo.c_str()) != 0)
        falha = errno;
    if (falha != 0) {
        ::unlink(vizinho.c_str());
        error = exporting::saveFailure(path, falha);
        return false;
    }
    // The new name in the folder reaches the disk too (best effort: a folder that
    // cannot be opened for this does not make the file any less whole).
    const int pasta = ::open(pastaDe(alvo).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (pasta >= 0) {
        ::fsync(pasta);
        ::close(pasta);
    }
    return true;
}

} // namespace pilarix::files
