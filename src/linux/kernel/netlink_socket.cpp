#include "linux/kernel/netlink_socket.h"

#include <cerrno>

#include <linux/netlink.h>
#include <sys/socket.h>

namespace vantrix {
namespace {

constexpr std::size_t largestDatagram = 32768; // the most that the kernel packs into one

} // namespace

bool NetlinkSocket::open() {
    if (socket_)
        return true;
    FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, protocol_));
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = groups_;
    if (!socket || bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return false;
    socket_ = std::move(socket);
    buffer_.resize(largestDatagram);
    return true;
}

bool NetlinkSocket::send(std::string_view question) {
    return ::send(socket_.get(), question.data(), question.size(), 0) == static_cast<ssize_t>(question.size());
}

NetlinkChannel::Received NetlinkSocket::receive(std::string_view& datagram) {
    sockaddr_nl sender{};
    socklen_t senderSize = sizeof sender;
    ssize_t length = 0;
    do
        length = recvfrom(socket_.get(), buffer_.data(), buffer_.size(), MSG_DONTWAIT | MSG_TRUNC,
                          reinterpret_cast<sockaddr*>(&sender), &senderSize);
    while (length < 0 && errno == EINTR);
    if (length < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return Received::nothing;
    if (length < 0)
        return errno == ENOBUFS ? Received::lost : Received::failed;
    const auto size = static_cast<std::size_t>(length);
    if (size > buffer_.size())
        return Received::lost;
    // Only the kernel has port 0; what other programs send is ignored.
    datagram = {buffer_.data(), sender.nl_pid == 0 ? size : 0};
    return Received::datagram;
}

} // namespace vantrix
