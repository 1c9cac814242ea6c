#pragma once
// Reading a small input file (a project, a list of load cases) with bounds: only a
// regular file is read, never a device (/dev/zero would be read for ever) nor a FIFO
// (which would wait for a writer), and never more than a file of its kind can hold.

#include <cstddef>
#include <string>

namespace pilarix::files {

// No project (39 records, its load cases and the fixed bar) nor list of cases comes
// near this; a larger file is not one of them.
inline constexpr std::size_t kMaxInputBytes = 512 * 1024;

// The bytes of `path`, or false with the reason in Portuguese in `why` (without the
// file's name, which the caller's message gives): it does not exist, it is a folder,
// it is not a regular file, it is larger than `maxBytes`, or the read failed.
bool readBoundedFile(const std::string& path, std::size_t maxBytes, std::string& bytes, std::string& why);

} // namespace pilarix::files
