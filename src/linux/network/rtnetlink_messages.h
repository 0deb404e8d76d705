#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrix {

/// One rtnetlink message about a link.
struct LinkMessage {
    enum class Kind {
        link,    ///< a link is there, new or changed
        removed, ///< a link is gone
        done,    ///< the list that was asked for is complete
        failed,  ///< the list could not be given
        other,   ///< nothing of interest
    };

    Kind kind = Kind::other;
    std::uint32_t sequence = 0; ///< that of the question; news have that of whoever made the change
    bool isInterrupted = false; ///< links changed while the list was made
    int index = 0;              ///< of the link
    std::uint32_t flags = 0;    ///< IFF_…
    std::string_view name;      ///< part of the datagram; empty when not told
};

/// Takes the next message off the front of `datagram`. Absent when none is left or the rest makes no sense.
std::optional<LinkMessage> takeLinkMessage(std::string_view& datagram);

} // namespace vantrix
