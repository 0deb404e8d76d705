#include "support/localization.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(Formatted, FillsMarksInOrderOrByPosition) {
    EXPECT_EQ(formatted("%lld cores (%lldP + %lldE)", {10, 8, 2}), "10 cores (8P + 2E)");
    EXPECT_EQ(formatted("%3$lld von %1$lld", {10, 8, 2}), "2 von 10");
    EXPECT_EQ(formatted("%@ of %@", {"1 GB", "2 GB"}), "1 GB of 2 GB");
    EXPECT_EQ(formatted("%2$@中%1$@が", {"%2$@", "%@"}), "%@中%2$@が") << "values are taken as they are";
}

TEST(Formatted, LeavesWhatHasNoValue) {
    EXPECT_EQ(formatted("%lld %lld", {1}), "1 %lld");
    EXPECT_EQ(formatted("%9$lld", {1}), "%9$lld");
    EXPECT_EQ(formatted("100% %d %", {1}), "100% %d %");
}

} // namespace
} // namespace vantrix
