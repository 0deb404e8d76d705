#include "linux/network/rtnetlink_messages.h"

#include <net/if.h>
#include <sys/socket.h>

#include "linux/kernel/netlink_records.h"

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

LinkMessage parseLink(LinkMessage message, std::string_view body) {
    const auto link = recordAt<ifinfomsg>(body);
    // A bridge tells of its ports in messages of its own family: a port that left it is still there.
    if (!link || link->ifi_family != AF_UNSPEC) {
        message.kind = LinkMessage::Kind::other;
        return message;
    }
    message.index = link->ifi_index;
    message.flags = link->ifi_flags;
    message.name = findName(attributesAfter<ifinfomsg>(body));
    return message;
}

LinkMessage::Kind kindOf(const nlmsghdr& header) {
    switch (header.nlmsg_type) {
    case RTM_NEWLINK:
        return LinkMessage::Kind::link;
    case RTM_DELLINK:
        return LinkMessage::Kind::removed;
    case NLMSG_DONE:
        return LinkMessage::Kind::done;
    case NLMSG_ERROR:
        return LinkMessage::Kind::failed;
    default:
        return LinkMessage::Kind::other;
    }
}

} // namespace

std::optional<LinkMessage> takeLinkMessage(std::string_view& datagram) {
    const auto taken = takeNetlinkMessage(datagram);
    if (!taken)
        return std::nullopt;
    LinkMessage message;
    message.kind = kindOf(taken->header);
    message.sequence = taken->header.nlmsg_seq;
    message.isInterrupted = (taken->header.nlmsg_flags & NLM_F_DUMP_INTR) != 0;
    if (message.kind == LinkMessage::Kind::link || message.kind == LinkMessage::Kind::removed)
        return parseLink(message, taken->body);
    return message;
}

} // namespace vantrix
