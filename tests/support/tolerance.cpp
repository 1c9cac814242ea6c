#include "support/tolerance.h"

#include <algorithm>
#include <cmath>

namespace pilarix::test {

::testing::AssertionResult nearRel(double actual, double expected, double rel)
{
    const double scale = std::max(1.0, std::fabs(expected));
    if (std::fabs(actual - expected) <= rel * scale)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "got " << actual << ", expected " << expected << " (tolerance " << rel
                                         << " relative)";
}

} // namespace pilarix::test
