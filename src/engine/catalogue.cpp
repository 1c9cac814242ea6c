#include "engine/catalogue.h"

#include "base/calc_error.h"

#include <array>
#include <string>

namespace pilarix::engine {

namespace {
constexpr std::array<Bar, kBarCount> kBars{{
    {1, 0.5, 0.2, 0.16, "5 mm", "5 mm", "5"},
    {2, 0.63, 0.315, 0.25, "6.3 mm (1/4'')", "6,3 mm (1/4'')", "6.3"},
    {3, 0.8, 0.5, 0.4, "8 mm (5/16'')", "8 mm (5/16'')", "8"},
    {4, 1, 0.8, 0.63, "10 mm (3/8'')", "10 mm (3/8'')", "10"},
    {5, 1.25, 1.25, 1.0, "12.5 mm (1/2'')", "12,5 mm (1/2'')", "12.5"},
    {6, 1.6, 2, 1.6, "16 mm (5/8'')", "16 mm (5/8'')", "16"},
    {7, 2, 3.15, 2.5, "20 mm (3/4'')", "20 mm (3/4'')", "20"},
    {8, 2.25, 4, 3.15, "22.5 mm (7/8'')", "22,5 mm (7/8'')", "22.5"},
    {9, 2.5, 5, 4.0, "25 mm (1'')", "25 mm (1'')", "25"},
    {10, 3.2, 8, 6.3, "32 mm (1 1/4'')", "32 mm (1 1/4'')", "32"},
    {11, 4, 12.5, 10.0, "40 mm", "40 mm", "40"},
}};
} // namespace

std::span<const Bar> catalogue() { return kBars; }

const Bar& bar(int index, const char* column)
{
    if (index < 1 || index > kBarCount)
        throw CalcError("Índice fora dos limites: " + std::string(column) + "(" + std::to_string(index)
                        + "), permitido de 1 a " + std::to_string(kBarCount) + ".");
    return kBars[static_cast<std::size_t>(index - 1)];
}

int barIndexByLabel(std::string_view text)
{
    for (const auto& b : kBars)
        if (b.label == text || b.labelComma == text)
            return b.index;
    return 0;
}

} // namespace pilarix::engine
