#include "linux/services/session_bus.h"

#include <atomic>

#include <QFile>

#include "linux/services/bus_probe.h"

namespace vantrix {

namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";

/// The address that the environment no longer tells.
std::optional<QString>& keptAddress() {
    static std::optional<QString> address;
    return address;
}

QString nextConnectionName() {
    static std::atomic<int> count = 0; // connections are made on several threads
    return QStringLiteral("vantrix-%1").arg(++count);
}

} // namespace

std::optional<QString> sessionBusAddress() {
    if (keptAddress())
        return keptAddress();
    const QString address = qEnvironmentVariable(addressVariable);
    if (address.startsWith(u"autolaunch:") || address.startsWith(u"disabled:"))
        return std::nullopt;
    if (!address.isEmpty())
        return address;
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (socket.startsWith(u"/bus") || !QFile::exists(socket))
        return std::nullopt;
    return QStringLiteral("unix:path=") + socket;
}

void keepSilentBusFromToolkit(std::chrono::milliseconds patience) {
    const auto address = sessionBusAddress();
    if (!address || busAnswers(*address, patience))
        return;
    keptAddress() = address;
    qputenv(addressVariable, "disabled:");
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
