#include "support/checked.h"

#include <limits>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

constexpr auto most = std::numeric_limits<std::uint64_t>::max();

TEST(Checked, AllowsTheLargestResults) {
    EXPECT_EQ(checkedAdd(most - 1, 1, "sum"), most);
    EXPECT_EQ(checkedMultiply(most / 5, 5, "product"), most);
    EXPECT_EQ(checkedMultiply(most, 0, "product"), 0u);
}

TEST(CheckedDeathTest, NamesWhatOverflowed) {
    EXPECT_DEATH(checkedAdd(most, 1, "the sum of it overflows"), "vantrix: the sum of it overflows");
    EXPECT_DEATH(checkedMultiply(most / 2, 3, "the product overflows"), "the product overflows");
}

TEST(Differences, WrapOrClamp) {
    EXPECT_EQ(wrappingDifference(704, 4294967000u), 1000u);
    EXPECT_EQ(wrappingDifference(7, 7), 0u);
    EXPECT_EQ(clampedDifference(10, 4), 6u);
    EXPECT_EQ(clampedDifference(4, 10), 0u);
}

} // namespace
} // namespace vantrix
