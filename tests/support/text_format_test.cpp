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

TEST(LoadTexts, AddUp) {
    const struct {
        double user, system;
        const char* texts; // total, user, system, idle
    } rows[] = {
        {0.0, 0.0, "0% = 0% + 0%, 100%"},    {1.0, 0.0, "100% = 100% + 0%, 0%"},
        {0.065, 0.025, "9% = 7% + 2%, 91%"}, {0.025, 0.065, "9% = 3% + 6%, 91%"},
        {0.064, 0.026, "9% = 6% + 3%, 91%"}, {0.0625, 0.0625, "13% = 7% + 6%, 87%"},
        {0.004, 0.004, "1% = 1% + 0%, 99%"}, {0.002, 0.004, "1% = 0% + 1%, 99%"},
        {0.29, 0.03, "32% = 29% + 3%, 68%"}, {0.0049, 0.9950, "100% = 0% + 100%, 0%"},
    };
    for (const auto& [user, system, texts] : rows) {
        const auto parts = loadTexts(user + system, user, system);
        EXPECT_EQ(compactPercent(user + system) + " = " + parts.user + " + " + parts.system + ", " + parts.idle, texts);
    }
}

TEST(CompactRate, ChoosesUnitByTheRateItself) {
    const std::pair<double, const char*> rows[] = {
        {-5.0, "0K"},     {999.9, "0K"},          {1000.0, "1K"},       {999'500.0, "1000K"},
        {1.54e6, "1.5M"}, {9'999'999.0, "10.0M"}, {1e7, "10M"},         {25.4e6, "25M"},
        {1.15e9, "1.1G"}, {12.34e9, "12.3G"},     {std::nan(""), "0K"},
    };
    for (const auto& [rate, text] : rows)
        EXPECT_EQ(compactRate(rate, NetworkUnit::bytes), text) << rate;
    EXPECT_EQ(compactRate(infinity, NetworkUnit::bytes), "infG");
    for (const auto& [rate, text] : {std::pair(124.9, "0kb"), {125.0, "1kb"}, {3e5, "2.4Mb"}, {1.5e9, "12.0Gb"}})
        EXPECT_EQ(compactRate(rate, NetworkUnit::bits), text) << rate;
}

TEST(RoundedIntegerDeathTest, RejectsWhatIsNoFiniteNumber) {
    EXPECT_EQ(roundedInteger(-0.4), "0") << "without a sign";
    EXPECT_EQ(roundedInteger(-1e300), "-9200000000000000000");
    EXPECT_DEATH(roundedInteger(infinity), "no finite number");
    EXPECT_DEATH(compactPercent(std::nan("")), "no finite number");
}

} // namespace
} // namespace vantrix
