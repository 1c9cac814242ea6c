#include "render/whole_file.h"

#include "files/safe_write.h"

#include <string_view>

namespace pilarix::render {

bool saveWholeFile(const QByteArray& bytes, const std::string& path, std::string& error)
{
    // The name goes to the system as the bytes it was given: a name that is not
    // UTF-8 would not survive a QString.
    return files::writeFileWhole(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
                                 error);
}

} // namespace pilarix::render
