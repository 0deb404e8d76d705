#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "posix/file_descriptor.h"

namespace vantrix {

/// A conversation with the kernel in datagrams of netlink messages. Nothing here waits: the kernel answers a question
/// while it is sent, and continues a long answer as it is read.
class NetlinkChannel {
  public:
    enum class Received {
        datagram, ///< bytes from the kernel
        nothing,  ///< there is none now
        lost,     ///< more came than the socket holds
        failed,
    };

    virtual ~NetlinkChannel() = default;
    /// True, too, when it is open already. On failure errno tells why.
    virtual bool open() = 0;
    /// Drops what is left of the conversation.
    virtual void close() = 0;
    /// False unless it was sent whole; errno tells why.
    virtual bool send(std::string_view question) = 0;
    /// `datagram` holds until the next call; it is empty when somebody other than the kernel sent it.
    virtual Received receive(std::string_view& datagram) = 0;
};

class NetlinkSocket : public NetlinkChannel {
  public:
    /// `protocol` is one of NETLINK_…; `groups` are the RTMGRP_… whose news to receive.
    explicit NetlinkSocket(int protocol, std::uint32_t groups = 0) : protocol_(protocol), groups_(groups) {}

    bool open() override;
    void close() override { socket_.close(); }
    bool send(std::string_view question) override;
    Received receive(std::string_view& datagram) override;

  private:
    int protocol_;
    std::uint32_t groups_;
    FileDescriptor socket_;
    std::vector<char> buffer_;
};

} // namespace vantrix
