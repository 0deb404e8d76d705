#pragma once

#include <memory>
#include <optional>

#include "linux/kernel/background.h"
#include "support/clock.h"

namespace vantrix {

/// A sensor whose reads are timed. One that takes longer than 2 ms twice in a row, or 20 ms once, is read in the
/// background from then on, so that it never delays a pass again. After those 20 ms, other sensors of its device, which
/// share the background, begin there. After many quick reads in a row it is read directly again: the machine had been
/// busy, the sensor was not slow.
class TimedSensor {
  public:
    class Probe {
      public:
        virtual ~Probe() = default;
        /// The present value; absent when the sensor has none. Called on one thread at a time.
        virtual std::optional<double> read() = 0;
    };

    static constexpr double slowAfter = 0.002;     ///< seconds
    static constexpr double verySlowAfter = 0.02;  ///< seconds
    static constexpr double staleAfter = 10.0;     ///< seconds
    static constexpr int quickReadsToReturn = 100; ///< in a row

    /// The clock is shared since a read that hangs may outlive the sensor. Any thread may ask it.
    TimedSensor(std::unique_ptr<Probe> probe, std::shared_ptr<Background> background,
                std::shared_ptr<const Clock> clock);

    /// The value now, or, of a slow sensor, the one that its last finished read gave. Absent when that read gave none,
    /// and when a slow sensor was asked more than 10 s ago and has not answered yet.
    std::optional<double> value();
    /// The same, at less cost when many sensors are read in turn: `now` is the clock's time, which each read moves on.
    std::optional<double> value(double& now);

    /// The last value without asking the sensor; absent when it is more than `age` seconds old.
    std::optional<double> lastValue(double age);

  private:
    struct Reading;

    void readDirectly(double& now);
    void readAside(double now);
    void collect();

    std::shared_ptr<Reading> reading_;
    std::shared_ptr<Background> background_;
    std::shared_ptr<const Clock> clock_;
    std::optional<double> last_;
    double takenAt_ = 0.0;
    std::optional<double> waitingSince_;
    int slowReads_ = 0;  // directly, in a row
    int quickReads_ = 0; // in the background, in a row
    bool isSlow_ = false;
    bool wasRead_ = false;
    bool isUnderWay_ = false;
};

} // namespace vantrix
