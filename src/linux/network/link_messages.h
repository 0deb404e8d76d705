#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "linux/kernel/netlink_records.h"

namespace vantrix {

/// What one rtnetlink message tells of a link.
struct LinkMessage {
    int index = 0; ///< of the link
    bool isGone = false;
    std::uint32_t flags = 0; ///< IFF_…
    std::string_view name;   ///< part of the datagram; empty when not told
};

/// Absent for a message about something else.
std::optional<LinkMessage> parseLinkMessage(const NetlinkMessage& message);

} // namespace vantrix
