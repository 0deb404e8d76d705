#include "linux/network/link_messages.h"

#include <net/if.h>
#include <sys/socket.h>

namespace vantrix {
namespace {

std::string_view nameIn(std::string_view value) {
    const auto name = value.substr(0, value.find('\0'));
    return name.size() < IF_NAMESIZE ? name : std::string_view();
}

void takeAttributes(std::string_view attributes, LinkMessage& link) {
    bool isLowerElsewhere = false;
    while (const auto attribute = takeAttribute(attributes)) {
        if (attribute->type == IFLA_IFNAME)
            link.name = nameIn(attribute->value);
        else if (attribute->type == IFLA_MASTER)
            link.master = recordAt<int>(attribute->value).value_or(0);
        else if (attribute->type == IFLA_LINK)
            link.lower = recordAt<int>(attribute->value).value_or(0);
        else if (attribute->type == IFLA_LINK_NETNSID)
            isLowerElsewhere = true;
    }
    if (isLowerElsewhere)
        link.lower = 0; // a number of another namespace
}

} // namespace

std::optional<LinkMessage> parseLinkMessage(const NetlinkMessage& message) {
    const int type = message.header.nlmsg_type;
    if (type != RTM_NEWLINK && type != RTM_DELLINK)
        return std::nullopt;
    const auto header = recordAt<ifinfomsg>(message.body);
    // A bridge tells of its ports in messages of its own family: a port that left it is still there.
    if (!header || header->ifi_family != AF_UNSPEC)
        return std::nullopt;
    LinkMessage link{.index = header->ifi_index,
                     .isGone = type == RTM_DELLINK,
                     .flags = header->ifi_flags,
                     .type = header->ifi_type};
    takeAttributes(attributesAfter<ifinfomsg>(message.body), link);
    return link;
}

} // namespace vantrix
