#include "linux/kernel/timed_sensor.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <utility>

namespace vantrix {

/// What a background read works on. It belongs to the reading thread until `isDone`.
struct TimedSensor::Reading : Background::Job {
    Reading(std::unique_ptr<Probe> sensor, std::shared_ptr<const Clock> watch)
        : probe(std::move(sensor)), clock(std::move(watch)) {}

    void perform() override {
        read(clock->uptime());
        isDone.store(true, std::memory_order_release);
    }

    void read(double begin) {
        value = probe->read();
        finishedAt = clock->uptime();
        duration = finishedAt - begin;
    }

    std::unique_ptr<Probe> probe;
    std::shared_ptr<const Clock> clock;
    std::optional<double> value;
    double finishedAt = 0.0;
    double duration = 0.0; // seconds
    std::atomic<bool> isDone{false};
};

TimedSensor::TimedSensor(std::unique_ptr<Probe> probe, std::shared_ptr<Background> background,
                         std::shared_ptr<const Clock> clock, Kind kind)
    : reading_(std::make_shared<Reading>(std::move(probe), clock)), background_(std::move(background)),
      clock_(std::move(clock)), kind_(kind) {}

std::optional<double> TimedSensor::value() {
    double now = clock_->uptime();
    return value(now);
}

std::optional<double> TimedSensor::value(double& now) {
    collect(now);
    if (isDirect_)
        readDirectly(now);
    else
        readAside(now);
    return now - waitingSince_.value_or(now) > staleAfter ? std::nullopt : last_;
}

void TimedSensor::ask(double now) {
    collect(now);
    if (isDirect_)
        return;
    askAside(now);
    isAsked_ = true;
}

std::optional<double> TimedSensor::lastValue(double now, double age) {
    collect(now);
    return now - takenAt_ > age ? std::nullopt : last_;
}

void TimedSensor::readDirectly(double& now) {
    reading_->read(now);
    now = reading_->finishedAt;
    finishedAt_ = now;
    last_ = reading_->value;
    takenAt_ = now;
    slowReads_ = reading_->duration > slowAfter ? slowReads_ + 1 : 0;
    isDirect_ = slowReads_ < 2 && reading_->duration <= verySlowAfter;
    quickReads_ = 0;
}

void TimedSensor::askAside(double now) {
    if (!waitingSince_)
        waitingSince_ = now;
    if (isUnderWay_)
        return;
    reading_->isDone.store(false, std::memory_order_relaxed);
    isUnderWay_ = background_->run(reading_);
}

void TimedSensor::readAside(double& now) {
    if (!std::exchange(isAsked_, false))
        askAside(now);
    const bool isOld = !finishedAt_ || (now - *finishedAt_ > oldAfter && duration_ < quickUntil);
    if (isUnderWay_ && isOld) {
        background_->wait(std::chrono::milliseconds(std::lround(verySlowAfter * 1e3)));
        now = clock_->uptime();
    }
    collect(now);
}

void TimedSensor::collect(double now) {
    if (!isUnderWay_ || !reading_->isDone.load(std::memory_order_acquire))
        return;
    isUnderWay_ = false;
    waitingSince_.reset();
    last_ = reading_->value;
    finishedAt_ = reading_->finishedAt;
    duration_ = reading_->duration;
    takenAt_ = now; // not when it was read: passes may be further apart than values may be old
    quickReads_ = reading_->duration > slowAfter ? 0 : quickReads_ + 1;
    isDirect_ = kind_ == Kind::registers && quickReads_ >= quickReadsToReturn;
    slowReads_ = 0;
}

} // namespace vantrix
