#pragma once

#include <cerrno>
#include <deque>
#include <string>
#include <string_view>

#include "linux/kernel/netlink_records.h"
#include "linux/kernel/netlink_socket.h"

namespace vantrix {

template<typename Record>
std::string bytesOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

inline std::string padded(std::string bytes) {
    bytes.resize(NLMSG_ALIGN(bytes.size()));
    return bytes;
}

inline std::string attribute(int type, std::string_view value) {
    nlattr header{};
    header.nla_len = static_cast<std::uint16_t>(sizeof header + value.size());
    header.nla_type = static_cast<std::uint16_t>(type);
    return padded(bytesOf(header) + std::string(value));
}

template<typename Number>
std::string numberAttribute(int type, Number number) {
    return attribute(type, bytesOf(number));
}

inline std::string message(int type, const std::string& body, int flags = 0, std::uint32_t sequence = 0) {
    nlmsghdr header{};
    header.nlmsg_len = static_cast<std::uint32_t>(sizeof header + body.size());
    header.nlmsg_type = static_cast<std::uint16_t>(type);
    header.nlmsg_flags = static_cast<std::uint16_t>(flags);
    header.nlmsg_seq = sequence;
    return padded(bytesOf(header) + body);
}

/// A conversation with a kernel that tells what is in the queue.
struct FakeNetlink : NetlinkChannel {
    struct Turn {
        Received kind;
        std::string datagram;
    };
    std::deque<Turn> queue;
    std::string current;
    bool canOpen = true;
    int closings = 0;

    void tell(const std::string& datagram) { queue.push_back({Received::datagram, datagram}); }

    bool open() override {
        errno = EPERM;
        return canOpen;
    }
    void close() override {
        ++closings;
        queue.clear();
    }
    Received receive(std::string_view& datagram) override {
        if (queue.empty())
            return Received::nothing;
        const auto kind = queue.front().kind;
        current = std::move(queue.front().datagram);
        queue.pop_front();
        datagram = current;
        return kind;
    }
};

} // namespace vantrix
