#include "platform/desktop_services.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <QSocketNotifier>

#include "posix/local_socket.h"

namespace vantrix {
namespace {

constexpr int answerTimeout = 2; // seconds
constexpr int patience = 100;    // milliseconds
constexpr std::size_t mostBytes = 256;

std::string pathWith(const char* ending) {
    const std::string prefix = instancePrefix();
    return prefix.empty() ? prefix : prefix + ending;
}

std::optional<sockaddr_un> socketAddress() {
    const std::string path = pathWith(".socket");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

const sockaddr* generic(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

void limitWaiting(int socket) {
    const timeval limit{answerTimeout, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

class SocketChannel final : public InstanceChannel {
  public:
    SocketChannel(FileDescriptor lock, FileDescriptor listener)
        : lock_(std::move(lock)), listener_(std::move(listener)) {
        if (!listener_)
            return;
        notifier_ = std::make_unique<QSocketNotifier>(listener_.get(), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { serve(); });
    }

    ~SocketChannel() override {
        // The lock file stays: without it two instances could lock two files of the same name.
        if (const auto address = socketAddress(); address && listener_)
            ::unlink(address->sun_path);
    }

  private:
    void serve() {
        const FileDescriptor peer = acceptConnection(listener_.get());
        if (!peer || !isOwnPeer(peer.get()))
            return;
        // A request follows its connection at once; the main thread cannot wait for a slow client.
        pollfd readable{peer.get(), POLLIN, 0};
        ::poll(&readable, 1, patience);
        char request[mostBytes];
        const ssize_t length = ::recv(peer.get(), request, sizeof request, MSG_DONTWAIT);
        if (length <= 0)
            return;
        const std::string text(request, static_cast<std::size_t>(length));
        const std::string told = answer ? answer(text) : std::string();
        sendQuietly(peer.get(), told.empty() ? "ok" : told, MSG_DONTWAIT);
        if (received)
            received(text);
    }

    FileDescriptor lock_;
    FileDescriptor listener_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

FileDescriptor listenAt(const sockaddr_un& address) {
    FileDescriptor listener = makeListeningSocket();
    ::unlink(address.sun_path); // left behind by an instance that was killed; the lock says that none runs
    if (!listener || ::bind(listener.get(), generic(address), sizeof address) != 0)
        return FileDescriptor();
    // Nobody can connect before it listens.
    if (::chmod(address.sun_path, 0600) != 0 || ::listen(listener.get(), 4) != 0)
        return FileDescriptor();
    return listener;
}

FileDescriptor connectToInstance() {
    const auto address = socketAddress();
    FileDescriptor socket = makeLocalSocket();
    if (!address || !socket)
        return FileDescriptor();
    limitWaiting(socket.get());
    const bool isConnected = ::connect(socket.get(), generic(*address), sizeof *address) == 0;
    return isConnected ? std::move(socket) : FileDescriptor();
}

} // namespace

std::unique_ptr<InstanceChannel> claimInstance() {
    const std::string lockPath = pathWith(".lock");
    FileDescriptor lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (lock && ::flock(lock.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return nullptr;
    const auto address = socketAddress();
    // Without a place for the socket the program still runs, but others cannot talk to it.
    FileDescriptor listener = lock && address ? listenAt(*address) : FileDescriptor();
    return std::make_unique<SocketChannel>(std::move(lock), std::move(listener));
}

std::optional<std::string> sendToRunningInstance(const std::string& request) {
    const FileDescriptor socket = connectToInstance();
    char answer[mostBytes];
    if (!socket || !sendQuietly(socket.get(), request))
        return std::nullopt;
    const ssize_t length = ::recv(socket.get(), answer, sizeof answer, 0);
    return length > 0 ? std::optional(std::string(answer, static_cast<std::size_t>(length))) : std::nullopt;
}

std::optional<int> runningInstance() {
    const FileDescriptor socket = connectToInstance();
    // The kernel knows who listens, so even an instance that hangs is found.
    return socket ? peerProcess(socket.get()) : std::nullopt;
}

} // namespace vantrix
