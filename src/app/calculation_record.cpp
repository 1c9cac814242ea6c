#include "app/calculation_record.h"

#include <algorithm>
#include <cmath>

namespace pilarix::app {

const SolutionRow* CalculationRecord::solutionOnShow() const
{
    if (solutions.empty() || solutionShown < 1 || static_cast<std::size_t>(solutionShown) > solutions.size())
        return nullptr;
    const SolutionRow& s = solutions[static_cast<std::size_t>(solutionShown) - 1];
    const engine::ColumnInput& in = project.column;
    const bool sameBars = in.barsOnWidthFace == s.nBase && in.barsOnDepthFace == s.nAltura;
    const bool sameStirrup =
        in.stirrupMode == engine::StirrupMode::Predefined && in.predefinedStirrup == static_cast<int>(s.IndiceEstribo);
    // The candidate's d' went into the box as text and was read back.
    const bool sameDLinha =
        !in.dLinha.automatic && std::abs(in.dLinha.typed - s.dLinha) <= 1e-9 * std::max(1.0, std::abs(s.dLinha));
    return sameBars && sameStirrup && sameDLinha ? &s : nullptr;
}

std::string withoutAccessKey(std::string_view caption)
{
    std::string out;
    out.reserve(caption.size());
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) {
            out += caption[++i]; // "&&" leaves one ampersand, "&x" the x
            continue;
        }
        out += caption[i];
    }
    return out;
}

} // namespace pilarix::app
