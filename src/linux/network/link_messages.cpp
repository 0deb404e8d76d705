#include "linux/network/link_messages.h"

#include <net/if.h>
#include <sys/socket.h>

namespace vantrix {
namespace {

std::string_view findName(std::string_view attributes) {
    while (const auto attribute = takeAttribute(attributes)) {
        if (attribute->type != IFLA_IFNAME)
            continue;
        const auto name = attribute->value.substr(0, attribute->value.find('\0'));
        return name.size() < IF_NAMESIZE ? name : std::string_view();
    }
    return {};
}

} // namespace

std::optional<LinkMessage> parseLinkMessage(const NetlinkMessage& message) {
    const int type = message.header.nlmsg_type;
    if (type != RTM_NEWLINK && type != RTM_DELLINK)
        return std::nullopt;
    const auto link = recordAt<ifinfomsg>(message.body);
    // A bridge tells of its ports in messages of its own family: a port that left it is still there.
    if (!link || link->ifi_family != AF_UNSPEC)
        return std::nullopt;
    return LinkMessage{link->ifi_index, type == RTM_DELLINK, link->ifi_flags,
                       findName(attributesAfter<ifinfomsg>(message.body))};
}

} // namespace vantrix
