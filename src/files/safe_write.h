#pragma once
// A file written whole or not at all, for every file Pilarix writes (the project,
// the drawing in DXF, SVG and PNG, the report, the summary of a batch): the bytes go
// to a new file in the same folder, which is flushed to the disk, closed and only
// then renamed over the target. Any failure on the way (a full disk, a size limit,
// a failed close) removes the new file and leaves the old one untouched.

#include <string>
#include <string_view>

namespace pilarix::files {

// False, with "Não foi possível gravar o arquivo "<path>": <reason>." in `error`,
// when the file cannot be written whole. A target that exists and is not a regular
// file (a device such as /dev/null, a FIFO, a socket) is refused, never replaced.
// A symbolic link is followed: the file it points to is replaced, the link kept.
// An existing file keeps its permissions; a new one gets the usual ones (umask).
bool writeFileWhole(const std::string& path, std::string_view bytes, std::string& error);

// Why `path` cannot take a file, when it already names something that is not a
// regular file or a folder ("não é um arquivo comum ..."); empty otherwise.
std::string notARegularFile(const std::string& path);

} // namespace pilarix::files
