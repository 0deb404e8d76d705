#include "posix/local_socket.h"

#include <cctype>
#include <cstdlib>
#include <sys/socket.h>
#include <sys/stat.h>

namespace vantrix {
namespace {

/// A folder that only this user can write to; empty when there is none.
std::string runtimeFolder() {
    const char* given = std::getenv("XDG_RUNTIME_DIR");
    if (given && given[0] == '/')
        return given;
    const std::string folder = "/tmp/vantrix-" + std::to_string(::getuid());
    ::mkdir(folder.c_str(), 0700);
    struct stat status {};
    const bool mine = ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid() &&
                      (status.st_mode & 077) == 0;
    return mine ? folder : std::string();
}

/// Part of the names of the socket and the lock, because each graphical session of a user has an instance of its own.
std::string sessionName() {
    std::string name;
    for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"})
        if (const char* value = std::getenv(variable); value && name.empty())
            name = value;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '-';
    return name.empty() ? "console" : name;
}

std::optional<ucred> peerOf(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    const bool isTold = ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    return isTold ? std::optional(peer) : std::nullopt;
}

} // namespace

FileDescriptor makeLocalSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
}

FileDescriptor makeListeningSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

FileDescriptor acceptConnection(int listener) {
    return FileDescriptor(::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC));
}

bool sendQuietly(int socket, std::string_view text, int flags) {
    return ::send(socket, text.data(), text.size(), MSG_NOSIGNAL | flags) >= 0;
}

std::optional<int> peerProcess(int socket) {
    const auto peer = peerOf(socket);
    return peer ? std::optional(peer->pid) : std::nullopt;
}

bool isOwnPeer(int socket) {
    const auto peer = peerOf(socket);
    return peer && peer->uid == ::geteuid();
}

std::string instancePrefix() {
    const std::string folder = runtimeFolder();
    return folder.empty() ? folder : folder + "/vantrix-" + sessionName();
}

} // namespace vantrix
