#include "engine/cover.h"

#include "base/number_text.h"

namespace pilarix::engine {

double nominalCover(ExposureClass exposure, double deltaC)
{
    switch (exposure) {
    case ExposureClass::I:
        return 1.5 + deltaC;
    case ExposureClass::II:
        return 2 + deltaC;
    case ExposureClass::III:
        return 3 + deltaC;
    case ExposureClass::IV:
        return 4 + deltaC;
    }
    return 2 + deltaC;
}

double roundUpToHalf(double c)
{
    const double f = c - Int(c);
    if (f > 0.5)
        return Int(c) + 1;
    if (f > 0)
        return Int(c) + 0.5;
    return c;
}

double coverForAggregate(double aggregate) { return roundUpToHalf(aggregate / 1.2); }

WholeInnerDepth coverForWholeInnerDepth(double depth, double nominal)
{
    // Only the depth enters: the stirrup's inner depth becomes whole centimetres.
    WholeInnerDepth w;
    w.innerDepth = Int(depth - 2 * nominal);
    w.cover = (depth - w.innerDepth) / 2;
    return w;
}

// Covers are compared as they are shown, to four decimals, so that a cover
// recomputed from the same numbers never fails by a last-bit difference.
double roundedCover(double x) { return Int(x * 10000 + 0.5) / 10000; }

} // namespace pilarix::engine
