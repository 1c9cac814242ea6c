#include "engine/arrangement_check.h"

#include "engine/bar_choice.h"
#include "engine/catalogue.h"
#include "engine/cover.h"
#include "engine/spacing.h"
#include "engine/steel_limits.h"
#include "engine/stirrups.h"

#include <cmath>

namespace pilarix::engine {

namespace {
// Stirrup diameters and spacings come from the catalogue and from whole centimetres;
// this only keeps a figure written two ways from failing against itself.
constexpr double kSlack = 1e-9;

// The catalogue stirrup (1 to 4) of a diameter, 0 when it is none of them.
int stirrupIndex(double diameter)
{
    for (int k = 1; k <= 4; ++k)
        if (std::fabs(bar(k).diameter - diameter) <= kSlack)
            return k;
    return 0;
}
} // namespace

std::vector<Check> recheckArrangement(const FinalArrangement& a)
{
    std::vector<Check> failed;
    const double smaller = classifyColumn(a.base, a.depth).smallerSide;

    // Cover: what is left outside the stirrup with the bar and the stirrup detailed,
    // compared as the cover stage compares, to four decimals.
    const double cover = a.dLinha - a.stirrupDiameter - a.barDiameter / 2;
    if (roundedCover(a.nominalCover) > roundedCover(cover))
        failed.push_back(checks::finalCoverBelowNominal(cover, a.nominalCover, a.barDiameter, a.stirrupDiameter));
    if (roundedCover(cover + a.stirrupDiameter) < roundedCover(a.barDiameter))
        failed.push_back(checks::finalCoverBelowBar(cover + a.stirrupDiameter, a.barDiameter));

    if (exceedsEighthOfSide(a.barDiameter, smaller))
        failed.push_back(checks::finalBarAboveEighthOfSide(a.barDiameter, smaller));

    // The stirrup against the rules of the final bar: the thinnest allowed at the
    // normal spacing, or a thinner one of the bars' own steel at its own spacing.
    const StirrupRules rules = stirrupRules(a.barDiameter, smaller, a.steel, a.rules);
    double spacingLimit = rules.spacing;
    if (a.stirrupDiameter + kSlack < rules.minimumDiameter) {
        const int k = stirrupIndex(a.stirrupDiameter);
        if (a.stirrupsOfBarSteel && k >= 1 && k <= 3)
            spacingLimit = rules.sameSteelSpacing.at(static_cast<std::size_t>(k));
        else
            failed.push_back(
                checks::finalStirrupTooThin(a.stirrupDiameter, rules.minimumDiameter, a.barDiameter));
    }
    if (a.stirrupSpacing > spacingLimit + kSlack)
        failed.push_back(checks::finalStirrupSpacing(a.stirrupSpacing, spacingLimit, a.barDiameter));

    // The bars fit their faces, clear of each other and within the largest spacing.
    const SpacingCheck s = checkSpacing(a.base, a.depth, a.dLinha, a.barsOnWidthFace, a.barsOnDepthFace,
                                        a.barDiameter, a.aggregate, smaller, true, a.rules);
    failed.insert(failed.end(), s.failures.begin(), s.failures.end());
    return failed;
}

} // namespace pilarix::engine
