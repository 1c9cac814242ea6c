#pragma once
// pilarix-cli --memorial OUT.pdf: the calculation report of the run. The PDF is
// made by Qt Gui, which the command-line library does not link: pilarix-cli's main
// hands in the writer where it was built with Qt.

#include <functional>
#include <string>

namespace pilarix {

class Program;

// Writes the report of the program's last calculation to `path`; false, with the
// file and the reason in Portuguese, when it cannot.
using ReportWriter = std::function<bool(const Program& program, const std::string& path, std::string& error)>;

// The report through `writer`; without one (a build without Qt Gui) false, saying so.
bool writeMemorial(const Program& program, const std::string& path, const ReportWriter& writer, std::string& error);

} // namespace pilarix
