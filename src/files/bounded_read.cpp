#include "files/bounded_read.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pilarix::files {

namespace {

constexpr int kInterrupcoesSeguidas = 1000;

std::string motivo(int e)
{
    switch (e) {
    case ENOENT: return "o arquivo ou a pasta não existe";
    case EACCES:
    case EPERM: return "sem permissão de acesso";
    case EISDIR: return "o nome é de uma pasta";
    case ENOTDIR: return "uma parte do caminho não é uma pasta";
    case ENAMETOOLONG: return "o nome é longo demais";
    default: return std::strerror(e);
    }
}

// Why a file of this kind and size is not read; empty when it may be.
std::string recusa(const struct stat& s, std::size_t maxBytes)
{
    if (S_ISDIR(s.st_mode))
        return "o nome é de uma pasta";
    if (!S_ISREG(s.st_mode))
        return std::string("não é um arquivo comum (é ")
               + (S_ISCHR(s.st_mode) || S_ISBLK(s.st_mode) ? "um dispositivo"
                  : S_ISFIFO(s.st_mode)                    ? "uma fila (FIFO)"
                  : S_ISSOCK(s.st_mode)                    ? "um soquete"
                                                           : "de um tipo desconhecido")
               + ")";
    if (s.st_size < 0 || static_cast<std::size_t>(s.st_size) > maxBytes)
        return "tem " + std::to_string(s.st_size) + " bytes, mais do que os " + std::to_string(maxBytes / 1024)
               + " kB que um arquivo destes pode ter";
    return {};
}

} // namespace

bool readBoundedFile(const std::string& path, std::size_t maxBytes, std::string& bytes, std::string& why)
{
    // Looked at before it is opened: opening a device may itself do something.
    struct stat antes {};
    if (::stat(path.c_str(), &antes) != 0) {
        why = motivo(errno);
        return false;
    }
    if (why = recusa(antes, maxBytes); !why.empty())
        return false;
    // Without blocking, in case the name was swapped for a FIFO in between.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        why = motivo(errno);
        return false;
    }
    struct stat aberto {};
    if (::fstat(fd, &aberto) != 0 || !(why = recusa(aberto, maxBytes)).empty()) {
        if (why.empty())
            why = motivo(errno);
        ::close(fd);
        return false;
    }
    // At most one byte more than allowed is read: a file that grew past the bound
    // while being read is refused too.
    bytes.assign(maxBytes + 1, '\0');
    std::size_t lidos = 0;
    int interrupcoes = 0;
    while (lidos < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + lidos, bytes.size() - lidos);
        if (n < 0) {
            if (errno == EINTR && ++interrupcoes < kInterrupcoesSeguidas)
                continue;
            why = "a leitura foi interrompida (" + motivo(errno) + ")";
            ::close(fd);
            bytes.clear();
            return false;
        }
        if (n == 0)
            break;
        interrupcoes = 0;
        lidos += static_cast<std::size_t>(n);
    }
    ::close(fd);
    if (lidos > maxBytes) {
        bytes.clear();
        why = "tem mais do que os " + std::to_string(maxBytes / 1024) + " kB que um arquivo destes pode ter";
        return false;
    }
    bytes.resize(lidos);
    return true;
}

} // namespace pilarix::files
