#include "cli/memorial.h"

namespace pilarix {

bool writeMemorial(const app::CalculationRecord& record, const std::string& path, const ReportWriter& writer,
                   std::string& error)
{
    if (!writer) {
        error = "\"" + path + "\": o memorial de cálculo em PDF precisa do pilarix-cli feito com o Qt (Qt Gui)";
        return false;
    }
    return writer(record, path, error);
}

} // namespace pilarix
