#include "linux/services/session_bus.h"

#include <atomic>

#include <QFile>

namespace vantrix {

namespace {

QString nextConnectionName() {
    static std::atomic<int> count = 0; // connections are made on several threads
    return QStringLiteral("vantrix-%1").arg(++count);
}

} // namespace

std::optional<QString> sessionBusAddress() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (address.startsWith(u"autolaunch:") || address.startsWith(u"disabled:"))
        return std::nullopt;
    if (!address.isEmpty())
        return address;
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (socket.startsWith(u"/bus") || !QFile::exists(socket))
        return std::nullopt;
    return QStringLiteral("unix:path=") + socket;
}

std::optional<QString> systemBusAddress() {
    const QString address = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QString socket = QStringLiteral("/run/dbus/system_bus_socket");
    return QFile::exists(socket) ? std::optional(QStringLiteral("unix:path=") + socket) : std::nullopt;
}

BusConnection::BusConnection(const QString& address)
    : name_(nextConnectionName()), bus_(QDBusConnection::connectToBus(address, name_)) {}

BusConnection::~BusConnection() {
    QDBusConnection::disconnectFromBus(name_);
}

} // namespace vantrix
