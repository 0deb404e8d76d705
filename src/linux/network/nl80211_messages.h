#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// One generic netlink message in answer to a question.
struct GenericAnswer {
    enum class Kind {
        part, ///< holds attributes; more may follow
        last, ///< holds attributes, and nothing follows
        done, ///< holds nothing, and nothing follows
        failed,
    };

    Kind kind = Kind::done;
    std::uint32_t sequence = 0; ///< that of the question
    int error = 0;              ///< errno of a failure
    std::string_view attributes;
};

/// Takes the next message off the front of `datagram`. Absent when none is left or the rest makes no sense.
std::optional<GenericAnswer> takeGenericAnswer(std::string_view& datagram);

/// The questions as the kernel takes them, but for their sequence number; empty when memory is short.
std::string nl80211FamilyQuestion();
/// `command` is one of NL80211_CMD_GET_…; a dump lists all there are for the link.
std::string nl80211Question(std::uint16_t family, std::uint8_t command, int link, bool isDump);
void numberQuestion(std::string& question, std::uint32_t sequence);

struct WiFiStation {
    std::array<std::uint8_t, 6> address{};
    int signal = 0;       ///< dBm; 0 when not known
    double bitRate = 0.0; ///< of sending, Mbit/s; 0 when not known
};

/// Each takes the attributes of one answer; absent when they lack what is asked for, or are garbled.

/// The number that the kernel gave nl80211 when it started.
std::optional<std::uint16_t> parseFamilyNumber(std::string_view attributes);
/// The network's name, as raw bytes, of an interface.
std::optional<std::string_view> parseInterfaceName(std::string_view attributes);
/// The access point; absent for a direct link to a neighbour.
std::optional<WiFiStation> parseStation(std::string_view attributes);
/// The noise in dBm of the channel in use.
std::optional<int> parseNoise(std::string_view attributes);
/// The network's name, as raw bytes, in a scan result; absent unless it is the network joined.
std::optional<std::string_view> parseJoinedNetwork(std::string_view attributes);

} // namespace vantrix
