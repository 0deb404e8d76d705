#include "platform/linux/desktop/session_bus.h"

#include <QFile>

namespace vantrix {

namespace {

QString nextConnectionName() {
    static int count = 0;
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

BusConnection::BusConnection(const QString& address)
    : name_(nextConnectionName()), bus_(QDBusConnection::connectToBus(address, name_)) {}

BusConnection::~BusConnection() {
    QDBusConnection::disconnectFromBus(name_);
}

} // namespace vantrix
