#include "views/spring.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

TEST(Spring, ComesToRestOnItsTargetWithoutOvershoot) {
    Spring spring(0.4);
    spring.setTarget(1.0);
    double before = 0.0;
    double seconds = 0.0;
    for (; !spring.isAtRest(); seconds += 1.0 / 60.0) {
        ASSERT_LT(seconds, 2.0);
        spring.advance(1.0 / 60.0);
        EXPECT_GE(spring.value(), before);
        EXPECT_LE(spring.value(), 1.0);
        before = spring.value();
    }
    EXPECT_EQ(spring.value(), 1.0);
    EXPECT_GT(seconds, 0.4);
}

TEST(Spring, MovesTheSameWhateverTheFrames) {
    // Critically damped from rest: 1 - (1 + wt) e^-wt with w = 2 pi / 0.4.
    Spring one(0.4);
    one.setTarget(1.0);
    one.advance(0.1);
    EXPECT_NEAR(one.value(), 0.4656, 1e-4);
    Spring many(0.4);
    many.setTarget(1.0);
    for (int i = 0; i < 100; ++i)
        many.advance(0.001);
    EXPECT_NEAR(many.value(), one.value(), 1e-9);
}

TEST(Spring, ANewTargetOnTheWayKeepsPlaceAndSpeed) {
    Spring spring(0.4);
    spring.setTarget(1.0);
    spring.advance(0.1);
    const double place = spring.value();
    spring.setTarget(0.0);
    EXPECT_DOUBLE_EQ(spring.value(), place);
    spring.advance(0.005);
    EXPECT_GT(spring.value(), place); // still carried forward
    spring.jumpTo(0.5);
    EXPECT_TRUE(spring.isAtRest());
    EXPECT_EQ(spring.value(), 0.5);
}

} // namespace
} // namespace vantrix
