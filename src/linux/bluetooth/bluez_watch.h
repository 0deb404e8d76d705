#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QDBusMessage>
#include <QObject>
#include <QSet>

#include "accessories/bluetooth_central.h"
#include "linux/bluetooth/bluez_objects.h"
#include "linux/services/bus_link.h"

namespace vantrix {

/// Follows org.bluez on a bus: who owns the name, and its objects, which are kept current by signals alone. Never
/// waits, not even for the bus, and never starts the service.
class BluezWatch : public QObject {
    Q_OBJECT
  public:
    /// How long to wait before asking for the objects again when that failed.
    static constexpr std::chrono::milliseconds usualRetry = std::chrono::minutes(1);

    explicit BluezWatch(std::shared_ptr<BusLink> link, std::chrono::milliseconds retry = usualRetry);

    /// `unknown` until it is known whether the service runs. On when any adapter is.
    BluetoothState state() const;
    const BluezObjects& objects() const { return objects_; }

    /// Asks for a characteristic's value; `take` gets nothing on failure.
    void readCharacteristic(const QString& path, std::function<void(std::optional<QByteArray>)> take);
    /// Keeps a characteristic's value in `objects` current for as long as the service has it.
    void followCharacteristic(const QString& path);

  Q_SIGNALS:
    /// `state` has changed, or another process is the service now.
    void stateChanged();
    /// What is kept of the object at `path` changed.
    void objectChanged(const QString& path);

  private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void interfacesAdded(const QDBusMessage& signal);
    void interfacesRemoved(const QDBusMessage& signal);
    void propertiesChanged(const QDBusMessage& signal);

  private:
    enum class Phase { starting, absent, loading, denied, loaded };

    void takeBus(QDBusConnection& bus);
    void follow(const QString& owner);
    void forgetOwner();
    void load();
    void takeObjects(const QDBusMessage& reply);
    void tryAgainLater();
    bool mayTell(const QDBusMessage& signal) const;
    void settle(Phase phase);
    void announceState();
    void unfollowCharacteristic(const QString& path);
    void call(QDBusMessage message, int timeout, std::function<void(const QDBusMessage&)> take);

    std::shared_ptr<BusLink> link_;
    std::chrono::milliseconds retry_;
    QString owner_; ///< unique name; empty while there is none
    Phase phase_ = Phase::starting;
    BluetoothState announced_ = BluetoothState::unknown;
    BluezObjects objects_;
    QSet<QString> followed_;
};

} // namespace vantrix
