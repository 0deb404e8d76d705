#include "support/text_format.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(CompactPercent, RoundsHalfAwayFromZero) {
    EXPECT_EQ(compactPercent(0.125), "13%"); // 12.5 exactly
    EXPECT_EQ(compactPercent(-0.125), "-13%");
}

TEST(CompactRate, ChoosesUnitByTheRateItself) {
    const std::pair<double, const char*> rows[] = {
        {-5.0, "0K"},     {999.9, "0K"},          {1000.0, "1K"},       {999'500.0, "1000K"},
        {1.54e6, "1.5M"}, {9'999'999.0, "10.0M"}, {1e7, "10M"},         {25.4e6, "25M"},
        {1.15e9, "1.1G"}, {12.34e9, "12.3G"},     {std::nan(""), "0K"},
    };
    for (const auto& [rate, text] : rows)
        EXPECT_EQ(compactRate(rate), text) << rate;
    EXPECT_EQ(compactRate(infinity), "infG");
}

TEST(RoundedIntegerDeathTest, RejectsWhatIsNoFiniteNumber) {
    EXPECT_EQ(roundedInteger(-0.4), "0") << "without a sign";
    EXPECT_DEATH(roundedInteger(infinity), "no finite number");
    EXPECT_DEATH(compactPercent(std::nan("")), "no finite number");
}

} // namespace
} // namespace vantrix
