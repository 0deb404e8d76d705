#pragma once

#include <cstdint>
#include <memory>

#include "linux/kernel/netlink_socket.h"
#include "linux/network/nl80211_messages.h"
#include "linux/network/wifi_reader.h"

namespace vantrix {

/// Asks the kernel's Wi-Fi interface, nl80211. The signal is asked for every time; the network's name and the noise,
/// for which some drivers search all channels, only after another access point was joined and every so often.
class Nl80211Reader : public WiFiReader {
  public:
    static constexpr int readsPerDetail = 8;

    /// `channel` talks to NETLINK_GENERIC.
    explicit Nl80211Reader(std::unique_ptr<NetlinkChannel> channel) : channel_(std::move(channel)) {}

    void read(int link, WiFiReading& reading) override;

  private:
    int prepare(int link);
    int readStation(WiFiReading& reading);
    void readDetails();
    template<typename Take>
    int ask(std::string& question, Take take);
    template<typename Take>
    int hear(std::uint32_t sequence, Take take);

    std::unique_ptr<NetlinkChannel> channel_;
    std::uint32_t sequence_ = 0;
    std::uint16_t family_ = 0; // 0 until it is known
    int link_ = 0;             // the one that the questions are about
    std::string interfaceQuestion_;
    std::string stationQuestion_;
    std::string surveyQuestion_;
    std::string scanQuestion_;

    std::array<std::uint8_t, 6> accessPoint_{};
    int readsUntilDetail_ = 0;
    std::string ssid_;
    int noise_ = 0;
};

} // namespace vantrix
