#include "report/report_numbers.h"

#include "base/number_text.h"
#include "app/units.h"

#include <algorithm>
#include <cmath>

namespace pilarix::report::numbers {

std::string fixed(double x, int decimals)
{
    if (!std::isfinite(x))
        return "—";
    std::string mask = "##0";
    if (decimals > 0)
        mask += "." + std::string(static_cast<std::size_t>(decimals), '0');
    return Format(x, mask);
}

std::string significant(double x, int least)
{
    if (!std::isfinite(x))
        return "—";
    const double a = std::abs(x);
    int decimals = a > 0 ? 3 - static_cast<int>(std::floor(std::log10(a))) : 1;
    decimals = std::clamp(decimals, least, 6);
    return fixed(x, decimals);
}

std::string forceText(double kgf, const Unit& u, bool typed)
{
    const double v = kgf / u.factor;
    return (typed ? Str(v) : significant(v)) + " " + u.name + " (" + fixed(kgf / kKgfPerKn, 1) + " kN)";
}

std::string momentText(double kgfCm, const Unit& u, bool typed)
{
    const double v = kgfCm / u.factor;
    return (typed ? Str(v) : significant(v)) + " " + u.name + " (" + fixed(kgfCm / kKgfCmPerKnM, 2) + " kN·m)";
}

} // namespace pilarix::report::numbers
