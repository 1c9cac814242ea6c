#include "render/whole_file.h"

#include "export/save_failure.h"

#include <QSaveFile>

#include <cerrno>

namespace pilarix::render {

bool saveWholeFile(const QByteArray& bytes, const std::string& path, std::string& error)
{
    QSaveFile file(QString::fromStdString(path));
    errno = 0;
    const bool ok = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (ok)
        return true;
    const int errnum = errno;
    switch (file.error()) {
    case QFileDevice::PermissionsError: error = exporting::saveFailure(path, EACCES); break;
    case QFileDevice::ResourceError: error = exporting::saveFailure(path, ENOSPC); break;
    default:
        error = errnum ? exporting::saveFailure(path, errnum)
                       : exporting::saveFailure(path, "erro de gravação (" + file.errorString().toStdString() + ")");
        break;
    }
    file.cancelWriting();
    return false;
}

} // namespace pilarix::render
