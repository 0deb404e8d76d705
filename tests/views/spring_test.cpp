#include "views/spring.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

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

} // namespace
} // namespace vantrix
