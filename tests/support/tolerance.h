#pragma once
// One place decides what "equal" means for the numbers of a calculation: every
// test says which tolerance it uses.

#include <gtest/gtest.h>

namespace pilarix::test {

// |actual - expected| <= rel * max(1, |expected|)
::testing::AssertionResult nearRel(double actual, double expected, double rel);

} // namespace pilarix::test

#define EXPECT_NEAR_REL(actual, expected, rel) EXPECT_TRUE(::pilarix::test::nearRel((actual), (expected), (rel)))
