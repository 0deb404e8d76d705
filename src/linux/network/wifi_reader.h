#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// The answer to one question about a Wi-Fi link.
struct WiFiReading {
    int signal = 0;       ///< dBm; 0 when not known
    int noise = 0;        ///< dBm; 0 when not known
    double bitRate = 0.0; ///< of sending, Mbit/s; 0 when not known
    std::string ssid;     ///< in UTF-8; empty when not known
    std::string problem;  ///< why there is no answer; empty when there is one

    /// Turns this into a failure, and keeps its memory.
    void fail(std::string_view why) {
        signal = 0;
        noise = 0;
        bitRate = 0.0;
        ssid.clear();
        problem = why;
    }

    bool operator==(const WiFiReading&) const = default;
};

class WiFiReader {
  public:
    virtual ~WiFiReader() = default;
    /// Replaces `reading`. May take as long as a driver takes to ask its device.
    virtual void read(int link, WiFiReading& reading) = 0;
};

} // namespace vantrix
