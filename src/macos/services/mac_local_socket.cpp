#include "posix/local_socket.h"

#include <climits>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vantrix {
namespace {

FileDescriptor prepared(int socket) {
    FileDescriptor descriptor(socket);
    if (!descriptor)
        return descriptor;
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
    ::fcntl(socket, F_SETFD, FD_CLOEXEC);
    return descriptor;
}

} // namespace

FileDescriptor makeLocalSocket() {
    // A stream: this system has no SOCK_SEQPACKET for local sockets.
    return prepared(::socket(AF_UNIX, SOCK_STREAM, 0));
}

FileDescriptor makeListeningSocket() {
    FileDescriptor descriptor = makeLocalSocket();
    if (descriptor)
        ::fcntl(descriptor.get(), F_SETFL, O_NONBLOCK);
    return descriptor;
}

FileDescriptor acceptConnection(int listener) {
    return prepared(::accept(listener, nullptr, nullptr));
}

bool sendQuietly(int socket, std::string_view text, int flags) {
    return ::send(socket, text.data(), text.size(), flags) >= 0;
}

std::optional<int> peerProcess(int socket) {
    pid_t peer = 0;
    socklen_t size = sizeof peer;
    if (::getsockopt(socket, SOL_LOCAL, LOCAL_PEERPID, &peer, &size) != 0)
        return std::nullopt;
    return peer;
}

bool isOwnPeer(int socket) {
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(socket, &user, &group) == 0 && user == ::geteuid();
}

std::string instancePrefix() {
    // This folder belongs to the user.
    char folder[PATH_MAX];
    const std::size_t size = ::confstr(_CS_DARWIN_USER_TEMP_DIR, folder, sizeof folder);
    return size > 0 && size <= sizeof folder ? std::string(folder) + "vantrix" : std::string();
}

} // namespace vantrix
