#include "platform/linux/sources/rtnetlink_messages.h"

#include <algorithm>
#include <cstring>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>

namespace vantrix {
namespace {

/// Copies a record out of the datagram, whose parts need not be aligned.
template<typename Record>
std::optional<Record> recordAt(std::string_view bytes) {
    Record record;
    if (bytes.size() < sizeof record)
        return std::nullopt;
    std::memcpy(&record, bytes.data(), sizeof record);
    return record;
}

void removeAligned(std::string_view& bytes, std::size_t length) {
    bytes.remove_prefix(std::min<std::size_t>(NLMSG_ALIGN(length), bytes.size()));
}

std::string_view findName(std::string_view attributes) {
    while (const auto header = recordAt<rtattr>(attributes)) {
        if (header->rta_len < sizeof(rtattr) || header->rta_len > attributes.size())
            break;
        if (header->rta_type == IFLA_IFNAME) {
            const auto text = attributes.substr(sizeof(rtattr), header->rta_len - sizeof(rtattr));
            const auto name = text.substr(0, text.find('\0'));
            return name.size() < IF_NAMESIZE ? name : std::string_view();
        }
        removeAligned(attributes, header->rta_len);
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
    message.name = findName(body.substr(NLMSG_ALIGN(sizeof(ifinfomsg))));
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
    const auto header = recordAt<nlmsghdr>(datagram);
    if (!header || header->nlmsg_len < sizeof(nlmsghdr) || header->nlmsg_len > datagram.size())
        return std::nullopt;
    const auto body = datagram.substr(NLMSG_HDRLEN, header->nlmsg_len - NLMSG_HDRLEN);
    removeAligned(datagram, header->nlmsg_len);
    LinkMessage message;
    message.kind = kindOf(*header);
    message.sequence = header->nlmsg_seq;
    message.isInterrupted = (header->nlmsg_flags & NLM_F_DUMP_INTR) != 0;
    if (message.kind == LinkMessage::Kind::link || message.kind == LinkMessage::Kind::removed)
        return parseLink(message, body);
    return message;
}

} // namespace vantrix
