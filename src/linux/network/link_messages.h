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
    int type = 0;            ///< ARPHRD_…
    int master = 0;          ///< the link that it is enslaved to; 0 for none
    int lower = 0;           ///< the link of this network namespace that it is stacked on; 0 for none
    std::string_view name;   ///< part of the datagram; empty when not told
};

/// Absent for a message about something else.
std::optional<LinkMessage> parseLinkMessage(const NetlinkMessage& message);

} // namespace vantrix
