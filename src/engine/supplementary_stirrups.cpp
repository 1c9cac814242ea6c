#include "engine/supplementary_stirrups.h"

#include "base/number_text.h"

#include <cmath>

namespace pilarix::engine {

namespace {

// One row of a marking table: what the middle bar gets, and where the marks start
// below and above it. A second start, where there is one, takes over after the
// first mark.
struct Row {
    TieFlag centre; // Unset leaves the middle bar as it is
    int down, downAfter;
    int up, upAfter;
};
constexpr int kNone = 0; // no second start
constexpr TieFlag S = TieFlag::Tie, N = TieFlag::NoTie, U = TieFlag::Unset;

// Each protected bar holds two neighbours on each side (rows by n mod 10, step 5).
constexpr Row kTwoEachSide[10] = {
    {S, -4, kNone, +5, kNone}, {S, -5, kNone, +5, kNone}, {N, -2, -5, +2, +6},       {N, -2, -6, +2, +6},
    {N, -2, -6, +2, kNone},    {N, -2, kNone, +2, kNone}, {N, -2, kNone, +3, kNone}, {S, -3, kNone, +3, kNone},
    {S, -3, kNone, +4, kNone}, {S, -4, kNone, +4, kNone},
};
// Each protected bar holds one neighbour on each side (rows by n mod 6, step 3).
// The asymmetries (n mod 6 = 2 ties both the middle bar and the next) are the
// program's own and fix the weight and the drawing.
constexpr Row kOneEachSide[6] = {
    {S, -2, kNone, +3, kNone}, {S, -3, kNone, +3, kNone}, {S, -3, kNone, +1, kNone},
    {U, -1, kNone, +1, kNone}, {U, -1, kNone, +2, kNone}, {S, -2, kNone, +2, kNone},
};

void mark(VbArray<TieFlag, 1, 500>& sup, double n, long m, const Row& row, int step)
{
    if (row.centre != TieFlag::Unset)
        sup(m) = row.centre;
    // Corner bars (1 and n) are held by the stirrup itself and are never marked.
    long j = m + row.down;
    if (j > 1) {
        sup(j) = TieFlag::Tie;
        for (j = row.downAfter != kNone ? m + row.downAfter : j - step; j > 1; j -= step)
            sup(j) = TieFlag::Tie;
    }
    j = m + row.up;
    if (j < n) {
        sup(j) = TieFlag::Tie;
        for (j = row.upAfter != kNone ? m + row.upAfter : j + step; j < n; j += step)
            sup(j) = TieFlag::Tie;
    }
}

} // namespace

namespace detail {

double markFaceTies(double length, double dLinha, double n, double stirrupDiameter, double& axisSpacing,
                    std::int16_t& middleBar, VbArray<TieFlag, 1, 500>& sup, long& counter)
{
    const double s = (length - 2 * dLinha) / (n - 1);
    axisSpacing = s;
    for (counter = 1; counter <= n; ++counter)
        sup(counter) = TieFlag::Unset;
    middleBar = CInt16(Int(n / 2 + 0.5), "barra do meio da face");
    const long m = middleBar;
    const double twentyPhi = 20 * stirrupDiameter;
    // The table row is taken as an integer remainder takes its operand: rounded half to even.
    const long whole = static_cast<long>(std::nearbyint(n));

    if (s > twentyPhi) {
        for (counter = 2; counter <= n - 1; ++counter)
            sup(counter) = TieFlag::Tie;
    } else if (n >= 5 && 2 * s > twentyPhi) {
        mark(sup, n, m, kOneEachSide[whole % 6], 3);
    } else if (n >= 7) {
        mark(sup, n, m, kTwoEachSide[whole % 10], 5);
    }

    double count = 0;
    for (counter = 1; counter <= n; ++counter)
        if (sup(counter) == TieFlag::Tie)
            count = count + 1;
    return count;
}

} // namespace detail

FaceTies faceTies(double length, double dLinha, double n, double stirrupDiameter)
{
    VbArray<TieFlag, 1, 500> sup{"SupH"};
    FaceTies t;
    long counter = 0;
    const double count = detail::markFaceTies(length, dLinha, n, stirrupDiameter, t.axisSpacing, t.middleBar, sup, counter);
    t.count = static_cast<int>(count);
    for (long i = 1; i <= n && i <= 500; ++i)
        t.flags.push_back(sup(i));
    return t;
}

} // namespace pilarix::engine
