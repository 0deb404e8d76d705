#pragma once

namespace vantrix {

/// A value that moves to its target as a critically damped spring moves: at once, without overshoot.
class Spring {
  public:
    /// `response`: seconds of one undamped swing; larger is slower.
    explicit Spring(double response);

    double value() const { return target_ + distance_; }
    bool isAtRest() const { return distance_ == 0.0 && velocity_ == 0.0; }

    void setTarget(double target);
    /// Puts it on the target, at rest.
    void jumpTo(double target);
    /// Exact for any step; a value close to its target settles on it.
    void advance(double seconds);

  private:
    double frequency_; ///< radians per second
    double target_ = 0.0;
    double distance_ = 0.0; ///< from the target
    double velocity_ = 0.0; ///< per second
};

} // namespace vantrix
