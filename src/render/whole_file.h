#pragma once
// A file written whole or not at all: the bytes go to a file beside it, which is
// renamed into place only once complete, so that a failed write never leaves half
// a drawing or half a report where the old one stood.

#include <QByteArray>

#include <string>

namespace pilarix::render {

// False, with "Não foi possível gravar o arquivo "<path>": <reason>." in `error`,
// when the file cannot be written.
bool saveWholeFile(const QByteArray& bytes, const std::string& path, std::string& error);

} // namespace pilarix::render
