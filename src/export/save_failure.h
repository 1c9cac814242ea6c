#pragma once
// Why a drawing could not be saved, in the words the engineer reads: the file named
// and the reason in Portuguese, never an exception.

#include <string>

namespace pilarix::exporting {

// What is known to stand in the way of writing `path` before trying: the errno the
// write would end in (EISDIR for a folder, ENOENT for a missing folder, ENOTDIR
// when part of the way is a file, EACCES for a read-only file), or 0.
int obstacleToSaving(const std::string& path);

// "Não foi possível gravar o arquivo "<path>": <reason>." for an errno value.
std::string saveFailure(const std::string& path, int errnum);

// The same with the reason already in words.
std::string saveFailure(const std::string& path, const std::string& reason);

// The message for a path that is empty or names no file.
std::string missingFileName();

} // namespace pilarix::exporting
