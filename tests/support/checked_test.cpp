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

} // namespace
} // namespace vantrix
