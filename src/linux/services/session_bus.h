#pragma once

#include <chrono>
#include <optional>

#include <QDBusConnection>
#include <QString>

namespace vantrix {

/// Address of the user's session bus: `DBUS_SESSION_BUS_ADDRESS`, else the socket `$XDG_RUNTIME_DIR/bus`. Absent when
/// there is neither; the D-Bus library would then start a daemon of its own, so it must not be asked.
std::optional<QString> sessionBusAddress();

/// Keeps the session's bus from the toolkit where it does not answer within `patience`: for what the toolkit asks it by
/// itself, as for assistive programs, it waits without limit. `sessionBusAddress` still tells where it is. Call before
/// the application object exists.
void keepSilentBusFromToolkit(std::chrono::milliseconds patience);

/// Address of the machine's bus: `DBUS_SYSTEM_BUS_ADDRESS`, else its usual socket. Absent when there is neither.
std::optional<QString> systemBusAddress();

/// A separate connection to the bus at `address`, closed with the object.
class BusConnection {
  public:
    explicit BusConnection(const QString& address);
    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    bool isConnected() const { return bus_.isConnected(); }
    QDBusConnection& bus() { return bus_; }

  private:
    QString name_;
    QDBusConnection bus_;
};

} // namespace vantrix
