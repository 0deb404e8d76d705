#pragma once

#include <memory>
#include <optional>

#include "linux/kernel/background.h"
#include "support/clock.h"

namespace vantrix {

/// A sensor that never delays a pass. Any device may hang, so it is read in the background, and a pass takes the value
/// of the last read that has finished. Only for a first one it is waited, and where the last is old but was quick.
/// Registers of the processor answer at once, and are read directly when the first read has shown that they do; one
/// that takes longer than 0.5 ms twice in a row, or 20 ms once, is treated as a device, until many reads in a row were
/// quick: then the machine had been busy.
class TimedSensor {
  public:
    class Probe {
      public:
        virtual ~Probe() = default;
        /// The present value; absent when the sensor has none. Called on one thread at a time.
        virtual std::optional<double> read() = 0;
    };

    enum class Kind { device, registers };

    static constexpr double slowAfter = 0.0005;    ///< seconds; who answers later talks to hardware over a slow bus
    static constexpr double verySlowAfter = 0.02;  ///< seconds
    static constexpr double quickUntil = 0.005;    ///< seconds; who takes no longer may be waited for
    static constexpr double oldAfter = 3.0;        ///< seconds
    static constexpr double staleAfter = 10.0;     ///< seconds
    static constexpr int quickReadsToReturn = 100; ///< in a row

    /// The clock is shared since a read that hangs may outlive the sensor. Any thread may ask it.
    TimedSensor(std::unique_ptr<Probe> probe, std::shared_ptr<Background> background,
                std::shared_ptr<const Clock> clock, Kind kind = Kind::device);

    /// The value now, or, of a device, the one that its last finished read gave. Absent when that read gave none,
    /// before the first has finished, and when a device was asked more than 10 s ago and has not answered yet.
    std::optional<double> value();
    /// The same, at less cost when many sensors are read in turn: `now` is the clock's time, which each read moves on.
    std::optional<double> value(double& now);

    /// To be called for each of many sensors before the value of the first, so that those that have to be waited for
    /// are waited for together.
    void ask(double now);

    /// The last value without asking the sensor; absent when it is more than `age` seconds old at `now`.
    std::optional<double> lastValue(double now, double age);

  private:
    struct Reading;

    void readDirectly(double& now);
    void readAside(double& now);
    void askAside(double now);
    void collect(double now);

    std::shared_ptr<Reading> reading_;
    std::shared_ptr<Background> background_;
    std::shared_ptr<const Clock> clock_;
    Kind kind_;
    bool isDirect_ = false;
    std::optional<double> last_;
    std::optional<double> finishedAt_; // the last read
    double duration_ = 0.0;            // of it, in seconds
    double takenAt_ = 0.0;
    std::optional<double> waitingSince_;
    int slowReads_ = 0;                       // directly, in a row
    int quickReads_ = quickReadsToReturn - 1; // in the background, in a row
    bool isUnderWay_ = false;
    bool isAsked_ = false; // for the next value
};

} // namespace vantrix
