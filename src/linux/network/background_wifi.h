#pragma once

#include <chrono>
#include <memory>

#include "linux/kernel/background_thread.h"
#include "linux/network/wifi_reader.h"

namespace vantrix {

/// Reads Wi-Fi details in the background, as a driver may have to wait for its device.
class BackgroundWiFi {
  public:
    /// How long the first question about a link waits for its answer. Others take the last one.
    static constexpr std::chrono::milliseconds patience{2};
    /// An answer this many questions old is no longer given.
    static constexpr int questionsUntilStale = 5;

    explicit BackgroundWiFi(std::unique_ptr<WiFiReader> reader);
    ~BackgroundWiFi();
    BackgroundWiFi(const BackgroundWiFi&) = delete;
    BackgroundWiFi& operator=(const BackgroundWiFi&) = delete;

    /// The latest reading of a link, which holds until the next call. Asks for the next reading. One caller at a time.
    const WiFiReading& read(int link);

    /// Makes the next question a first one: what was read before is out of date.
    void forget() { link_ = 0; }

  private:
    struct Questions;

    std::shared_ptr<Questions> questions_; // shared with a thread that may outlive this
    BackgroundThread background_;
    WiFiReading current_;
    int link_ = 0;
    int unanswered_ = 0;
};

} // namespace vantrix
