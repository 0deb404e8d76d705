#include "platform/desktop_services.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace vantrix {
namespace {

constexpr int answerTimeout = 2; // seconds
constexpr int patience = 100;    // milliseconds

class Descriptor {
  public:
    explicit Descriptor(int value = -1) : value_(value) {}
    ~Descriptor() {
        if (value_ >= 0)
            ::close(value_);
    }
    Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }

    int get() const { return value_; }
    explicit operator bool() const { return value_ >= 0; }

  private:
    int value_;
};

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

/// Two graphical sessions of one user each have an instance of their own.
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

std::string pathWith(const char* ending) {
    const std::string folder = runtimeFolder();
    return folder.empty() ? folder : folder + "/vantrix-" + sessionName() + ending;
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
    SocketChannel(Descriptor lock, Descriptor listener) : lock_(std::move(lock)), listener_(std::move(listener)) {
        if (!listener_)
            return;
        notifier_ = std::make_unique<QSocketNotifier>(listener_.get(), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { answer(); });
    }

    ~SocketChannel() override {
        // The lock file stays: removing it would let two instances lock two files of one name.
        if (const auto address = socketAddress(); address && listener_)
            ::unlink(address->sun_path);
    }

  private:
    void answer() {
        const Descriptor peer(::accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (!peer)
            return;
        // A request follows its connection at once; whoever dawdles is not served, for this is the main thread.
        pollfd readable{peer.get(), POLLIN, 0};
        ::poll(&readable, 1, patience);
        char request[256];
        const ssize_t length = ::recv(peer.get(), request, sizeof request, MSG_DONTWAIT);
        if (length <= 0)
            return;
        ::send(peer.get(), "ok", 2, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (received)
            received(std::string(request, static_cast<std::size_t>(length)));
    }

    Descriptor lock_;
    Descriptor listener_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

Descriptor listenAt(const sockaddr_un& address) {
    Descriptor listener(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    ::unlink(address.sun_path); // left behind by an instance that was killed; the lock says that none runs
    if (!listener || ::bind(listener.get(), generic(address), sizeof address) != 0 || ::listen(listener.get(), 4) != 0)
        return Descriptor();
    return listener;
}

Descriptor connectToInstance() {
    const auto address = socketAddress();
    Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
    if (!address || !socket)
        return Descriptor();
    limitWaiting(socket.get());
    const bool isConnected = ::connect(socket.get(), generic(*address), sizeof *address) == 0;
    return isConnected ? std::move(socket) : Descriptor();
}

} // namespace

std::unique_ptr<InstanceChannel> claimInstance() {
    const std::string lockPath = pathWith(".lock");
    Descriptor lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (lock && ::flock(lock.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return nullptr;
    const auto address = socketAddress();
    // Without a place for the socket the program still runs; only others cannot talk to it.
    Descriptor listener = lock && address ? listenAt(*address) : Descriptor();
    return std::make_unique<SocketChannel>(std::move(lock), std::move(listener));
}

bool sendToRunningInstance(const std::string& request) {
    const Descriptor socket = connectToInstance();
    char answer[8];
    return socket && ::send(socket.get(), request.data(), request.size(), MSG_NOSIGNAL) >= 0 &&
           ::recv(socket.get(), answer, sizeof answer, 0) > 0;
}

std::optional<int> runningInstance() {
    const Descriptor socket = connectToInstance();
    ucred listener{};
    socklen_t size = sizeof listener;
    // The kernel remembers who listens; one that hangs can be found too.
    if (!socket || ::getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &listener, &size) != 0)
        return std::nullopt;
    return listener.pid;
}

} // namespace vantrix
