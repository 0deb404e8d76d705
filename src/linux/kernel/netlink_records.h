#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>

namespace vantrix {

/// Copies a record out of a datagram, whose parts need not be aligned.
template<typename Record>
std::optional<Record> recordAt(std::string_view bytes) {
    Record record;
    if (bytes.size() < sizeof record)
        return std::nullopt;
    std::memcpy(&record, bytes.data(), sizeof record);
    return record;
}

/// Removes `length` bytes and the padding behind them.
inline void removeAligned(std::string_view& bytes, std::size_t length) {
    bytes.remove_prefix(std::min<std::size_t>(NLMSG_ALIGN(length), bytes.size()));
}

struct NetlinkMessage {
    nlmsghdr header;
    std::string_view body;
};

/// Takes the next message off the front of `datagram`. Absent when none is left or the rest makes no sense.
inline std::optional<NetlinkMessage> takeNetlinkMessage(std::string_view& datagram) {
    const auto header = recordAt<nlmsghdr>(datagram);
    if (!header || header->nlmsg_len < sizeof(nlmsghdr) || header->nlmsg_len > datagram.size())
        return std::nullopt;
    const auto body = datagram.substr(NLMSG_HDRLEN, header->nlmsg_len - NLMSG_HDRLEN);
    removeAligned(datagram, header->nlmsg_len);
    return NetlinkMessage{*header, body};
}

/// The errno that an NLMSG_ERROR message begins with; 0 when it acknowledges.
inline int errorNumber(std::string_view body) {
    constexpr int highest = 4095; // of the kernel's
    const int code = recordAt<int>(body).value_or(-EBADMSG);
    return code <= 0 && code >= -highest ? -code : EBADMSG;
}

/// The attributes behind the fixed record that a body begins with.
template<typename Record>
std::string_view attributesAfter(std::string_view body) {
    removeAligned(body, sizeof(Record));
    return body;
}

struct NetlinkAttribute {
    int type = 0; ///< IFLA_…, RTA_…
    std::string_view value;
};

/// Takes the next attribute off the front, as `takeNetlinkMessage` does with messages.
inline std::optional<NetlinkAttribute> takeAttribute(std::string_view& attributes) {
    const auto header = recordAt<rtattr>(attributes);
    if (!header || header->rta_len < sizeof(rtattr) || header->rta_len > attributes.size())
        return std::nullopt;
    const auto value = attributes.substr(sizeof(rtattr), header->rta_len - sizeof(rtattr));
    removeAligned(attributes, header->rta_len);
    return NetlinkAttribute{header->rta_type & NLA_TYPE_MASK, value};
}

} // namespace vantrix
