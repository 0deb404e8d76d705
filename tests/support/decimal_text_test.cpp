#include "support/decimal_text.h"

#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(FixedDecimal, RoundsTheExactValue) {
    EXPECT_EQ(fixedDecimal(1.15, 1), "1.1"); // 1.149999999999999911
    EXPECT_EQ(fixedDecimal(1234567.0, 0), "1234567");
    EXPECT_EQ(fixedDecimal(DBL_MAX, 1).size(), 311u);
}

TEST(RoundTripDecimal, IsShortAndLosesNothing) {
    const std::pair<double, const char*> rows[] = {{0.0, "0"},
                                                   {0.1, "0.1"},
                                                   {1'790'000'000.25, "1790000000.25"},
                                                   {1.0 / 3.0, "0.3333333333333333"},
                                                   {0.1 + 0.2, "0.30000000000000004"},
                                                   {-DBL_MIN, "-2.2250738585072014e-308"}};
    for (const auto& [value, text] : rows)
        EXPECT_EQ(roundTripDecimal(value), text);
    for (double value = std::numeric_limits<double>::denorm_min(); std::isfinite(value); value *= 1234.5678901)
        ASSERT_EQ(std::strtod(roundTripDecimal(value).c_str(), nullptr), value);
}

} // namespace
} // namespace vantrix
