#include "engine/spacing.h"

namespace pilarix::engine {

SpacingCheck checkSpacing(double b, double h, double dLinha, double nBase, double nAltura, double diamLong,
                          double aggregate, double smallerSide, bool withMessages, RuleSet rules)
{
    SpacingCheck c;
    auto& v = c.values;
    v.freeWidth = (b - 2 * dLinha) / (nBase - 1) - diamLong;
    v.freeDepth = (h - 2 * dLinha) / (nAltura - 1) - diamLong;
    v.axisWidth = (b - 2 * dLinha) / (nBase - 1);
    v.axisDepth = (h - 2 * dLinha) / (nAltura - 1);

    if (rules == RuleSet::Nbr2014) {
        const double byAggregate = 1.2 * aggregate;
        const double byBar = diamLong > 2 ? diamLong : 2;
        v.minimumFree = byBar < byAggregate ? byAggregate : byBar;
        c.freeLimit = byBar < byAggregate ? limits::kFreeByAggregate2014
                                          : (diamLong > 2 ? limits::kFreeByBar2014 : limits::kFreeAbsolute2014);
    } else if (const double byAggregate = 2 * 1.2 * aggregate, byBar = 4 * diamLong; byBar < byAggregate) {
        v.minimumFree = byAggregate;
        c.freeLimit = limits::kFreeByAggregate;
    } else {
        v.minimumFree = byBar;
        c.freeLimit = limits::kFreeByBar;
    }
    auto fail = [&](CheckId id, auto compose) {
        c.failures.push_back(withMessages ? compose() : Check{id, {}, clauseOf(id), true});
    };
    if (v.freeWidth < v.minimumFree)
        fail(CheckId::FreeSpacingWidth, [&] { return checks::freeSpacing(true, v.freeWidth, c.freeLimit, v.minimumFree); });
    if (v.freeDepth < v.minimumFree)
        fail(CheckId::FreeSpacingDepth, [&] { return checks::freeSpacing(false, v.freeDepth, c.freeLimit, v.minimumFree); });

    if (2 * smallerSide < 40) {
        v.maximumAxis = 2 * smallerSide;
        c.axisLimit = limits::kAxisBySide;
    } else {
        v.maximumAxis = 40;
        c.axisLimit = limits::kAxisAbsolute;
    }
    if (v.axisWidth > v.maximumAxis)
        fail(CheckId::AxisSpacingWidth, [&] { return checks::axisSpacing(true, v.axisWidth, c.axisLimit, v.maximumAxis); });
    if (v.axisDepth > v.maximumAxis)
        fail(CheckId::AxisSpacingDepth, [&] { return checks::axisSpacing(false, v.axisDepth, c.axisLimit, v.maximumAxis); });
    return c;
}

} // namespace pilarix::engine
