#include "export/save_failure.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace pilarix::exporting {

namespace fs = std::filesystem;

int obstacleToSaving(const std::string& path)
{
    std::error_code ec;
    const fs::path p(path);
    if (fs::is_directory(p, ec))
        return EISDIR;
    const fs::path folder = p.parent_path();
    if (!folder.empty()) {
        const fs::file_status s = fs::status(folder, ec);
        if (s.type() == fs::file_type::not_found)
            return ENOENT;
        if (fs::exists(s) && !fs::is_directory(s))
            return ENOTDIR;
    }
    // The file is written beside and then put in place of the old one; a file the
    // engineer made read-only must not be replaced behind his back.
    if (fs::exists(p, ec) && ::access(path.c_str(), W_OK) != 0)
        return EACCES;
    return 0;
}

std::string saveFailure(const std::string& path, int errnum)
{
    std::string reason;
    switch (errnum) {
    case EISDIR: reason = "o caminho é uma pasta, não um arquivo"; break;
    case ENOENT: {
        const std::string folder = fs::path(path).parent_path().string();
        reason = folder.empty() ? "o caminho não existe" : "a pasta \"" + folder + "\" não existe";
        break;
    }
    case ENOTDIR: reason = "uma parte do caminho não é uma pasta"; break;
    case EACCES:
    case EPERM: reason = "sem permissão de escrita"; break;
    case ENOSPC:
    case EDQUOT: reason = "não há espaço no disco"; break;
    case EFBIG: reason = "o arquivo passaria do tamanho que o sistema permite"; break;
    case EROFS: reason = "o disco só permite leitura"; break;
    case ENAMETOOLONG: reason = "o nome é longo demais"; break;
    case 0: reason = "erro de gravação"; break;
    default: reason = std::strerror(errnum); break;
    }
    return saveFailure(path, reason);
}

std::string saveFailure(const std::string& path, const std::string& reason)
{
    return "Não foi possível gravar o arquivo \"" + path + "\": " + reason + ".";
}

std::string missingFileName() { return "Não foi indicado o nome do arquivo do desenho."; }

} // namespace pilarix::exporting
