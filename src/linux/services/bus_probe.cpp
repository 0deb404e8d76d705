#include "linux/services/bus_probe.h"

#include <cstddef>
#include <cstring>
#include <optional>

#include <QStringList>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "posix/file_descriptor.h"

namespace vantrix {
namespace {

struct SocketAddress {
    sockaddr_un address{};
    socklen_t length = 0;
};

/// The first address in the list. Absent when it is no Unix socket.
std::optional<SocketAddress> socketAddress(const QString& list) {
    const QString first = list.section(u';', 0, 0);
    const qsizetype colon = first.indexOf(u':');
    if (first.left(colon) != u"unix")
        return std::nullopt;
    for (const QString& option : first.mid(colon + 1).split(u',')) {
        const bool isAbstract = option.startsWith(u"abstract=");
        if (!isAbstract && !option.startsWith(u"path="))
            continue;
        const QByteArray name = QByteArray::fromPercentEncoding(option.section(u'=', 1).toUtf8());
        SocketAddress socket;
        const auto begin = static_cast<std::size_t>(isAbstract ? 1 : 0);
        const auto size = static_cast<std::size_t>(name.size());
        if (begin + size >= sizeof socket.address.sun_path)
            return std::nullopt;
        socket.address.sun_family = AF_UNIX;
        std::memcpy(socket.address.sun_path + begin, name.constData(), size);
        socket.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + begin + size);
        return socket;
    }
    return std::nullopt;
}

} // namespace

bool busAnswers(const QString& address, std::chrono::milliseconds patience) {
    const auto place = socketAddress(address);
    if (!place)
        return true;
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket || connect(socket.get(), reinterpret_cast<const sockaddr*>(&place->address), place->length) != 0)
        return false;
    const QByteArray user = QByteArray::number(getuid()).toHex();
    const QByteArray question = QByteArray(1, '\0') + "AUTH EXTERNAL " + user + "\r\n";
    if (send(socket.get(), question.constData(), static_cast<std::size_t>(question.size()), MSG_NOSIGNAL) !=
        question.size())
        return false;
    pollfd answer{socket.get(), POLLIN, 0};
    char word = 0;
    return poll(&answer, 1, static_cast<int>(patience.count())) > 0 && recv(socket.get(), &word, 1, 0) == 1;
}

} // namespace vantrix
