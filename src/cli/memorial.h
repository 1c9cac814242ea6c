#pragma once
// pilarix-cli --memorial OUT.pdf: the calculation report of the run. The PDF is
// made by Qt Gui, which the command-line library does not link: pilarix-cli's main
// hands in the writer where it was built with Qt.

#include <functional>
#include <string>

namespace pilarix {

namespace app {
struct CalculationRecord;
}

// Writes the report of a calculation's record to `path`; false, with the file and
// the reason in Portuguese, when it cannot.
using ReportWriter =
    std::function<bool(const app::CalculationRecord& record, const std::string& path, std::string& error)>;

// The report through `writer`; without one (a build without Qt Gui) false, saying so.
bool writeMemorial(const app::CalculationRecord& record, const std::string& path, const ReportWriter& writer,
                   std::string& error);

} // namespace pilarix
