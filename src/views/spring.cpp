#include "views/spring.h"

#include <cmath>
#include <numbers>

namespace vantrix {
namespace {

constexpr double settled = 0.0005; // finer than a pixel of any gauge

} // namespace

Spring::Spring(double response) : frequency_(2.0 * std::numbers::pi / response) {}

void Spring::setTarget(double target) {
    distance_ += target_ - target;
    target_ = target;
}

void Spring::jumpTo(double target) {
    target_ = target;
    distance_ = 0.0;
    velocity_ = 0.0;
}

void Spring::advance(double seconds) {
    const double decay = std::exp(-frequency_ * seconds);
    const double slope = velocity_ + frequency_ * distance_;
    distance_ = (distance_ + slope * seconds) * decay;
    velocity_ = (velocity_ - frequency_ * slope * seconds) * decay;
    if (std::abs(distance_) < settled && std::abs(velocity_) < settled * frequency_)
        jumpTo(target_);
}

} // namespace vantrix
