#include "linux/bluetooth/bluez_watch.h"

#include <limits>
#include <utility>

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

namespace vantrix {
namespace {

const QString serviceName = QStringLiteral("org.bluez");
const QString managerInterface = QStringLiteral("org.freedesktop.DBus.ObjectManager");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString propertiesSignal = QStringLiteral("PropertiesChanged");
const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");
const QString rootPath = QStringLiteral("/");

constexpr int usualTimeout = -1;
// Nobody would ask again, so the objects of a slow service may come at any time.
constexpr int noTimeout = std::numeric_limits<int>::max();

/// The interfaces whose properties are followed on every object. Changes of others, such as the position in a song,
/// do not wake the program.
const QStringList& followedInterfaces() {
    static const QStringList interfaces{bluez::adapter, bluez::device, bluez::battery};
    return interfaces;
}

} // namespace

BluezWatch::BluezWatch(std::shared_ptr<BusLink> link, std::chrono::milliseconds retry)
    : link_(std::move(link)), retry_(retry) {
    link_->whenConnected(this, [this](QDBusConnection& bus) { takeBus(bus); });
    connect(link_.get(), &BusLink::disconnected, this, [this] { follow({}); });
}

void BluezWatch::takeBus(QDBusConnection& bus) {
    settle(Phase::starting);
    // Without the service's name as the sender: the toolkit would wait for the bus to say who owns it.
    bus.connect(QString(), busPath, busName, QStringLiteral("NameOwnerChanged"), {serviceName}, QString(), this,
                SLOT(ownerChanged(QString, QString, QString)));
    auto message = QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("GetNameOwner"));
    message << serviceName;
    call(message, usualTimeout, [this](const QDBusMessage& reply) {
        const bool isOwned = reply.type() == QDBusMessage::ReplyMessage && reply.signature() == u"s";
        if (phase_ == Phase::starting) // else a signal was faster
            follow(isOwned ? reply.arguments().constFirst().toString() : QString());
    });
}

void BluezWatch::ownerChanged(const QString&, const QString&, const QString& newOwner) {
    if (newOwner != owner_ || phase_ == Phase::starting)
        follow(newOwner);
}

void BluezWatch::follow(const QString& owner) {
    if (!owner_.isEmpty())
        forgetOwner();
    owner_ = owner;
    if (owner_.isEmpty())
        return settle(Phase::absent);
    QDBusConnection& bus = *link_->bus();
    phase_ = Phase::loading;
    // The sender is left out, or the toolkit would wait for the bus; the root keeps most others' signals away.
    bus.connect(QString(), rootPath, managerInterface, QStringLiteral("InterfacesAdded"), this,
                SLOT(interfacesAdded(QDBusMessage)));
    bus.connect(QString(), rootPath, managerInterface, QStringLiteral("InterfacesRemoved"), this,
                SLOT(interfacesRemoved(QDBusMessage)));
    for (const QString& interface : followedInterfaces())
        bus.connect(QString(), QString(), propertiesInterface, propertiesSignal, {interface}, QString(), this,
                    SLOT(propertiesChanged(QDBusMessage)));
    load();
}

void BluezWatch::forgetOwner() {
    if (QDBusConnection* bus = link_->bus()) {
        bus->disconnect(QString(), rootPath, managerInterface, QStringLiteral("InterfacesAdded"), this,
                        SLOT(interfacesAdded(QDBusMessage)));
        bus->disconnect(QString(), rootPath, managerInterface, QStringLiteral("InterfacesRemoved"), this,
                        SLOT(interfacesRemoved(QDBusMessage)));
        for (const QString& interface : followedInterfaces())
            bus->disconnect(QString(), QString(), propertiesInterface, propertiesSignal, {interface}, QString(), this,
                            SLOT(propertiesChanged(QDBusMessage)));
    }
    for (const QString& path : QSet(followed_))
        unfollowCharacteristic(path);
    objects_.clear();
    settle(Phase::absent);
}

void BluezWatch::load() {
    const auto message =
        QDBusMessage::createMethodCall(owner_, rootPath, managerInterface, QStringLiteral("GetManagedObjects"));
    call(message, noTimeout, [this, owner = owner_](const QDBusMessage& reply) {
        if (owner == owner_)
            takeObjects(reply);
    });
}

void BluezWatch::takeObjects(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ErrorMessage && QDBusError(reply).type() == QDBusError::AccessDenied)
        return settle(Phase::denied);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != u"a{oa{sa{sv}}}") {
        tryAgainLater();
        return settle(Phase::absent);
    }
    const auto objects = qdbus_cast<QMap<QDBusObjectPath, BluezObjects::Interfaces>>(reply.arguments().constFirst());
    objects_.clear();
    for (auto object = objects.begin(); object != objects.end(); ++object)
        objects_.add(object.key().path(), *object);
    settle(Phase::loaded);
}

/// A service that has only just started may not be ready yet.
void BluezWatch::tryAgainLater() {
    QTimer::singleShot(retry_, this, [this, owner = owner_] {
        if (owner == owner_ && phase_ == Phase::absent)
            load();
    });
}

BluetoothState BluezWatch::state() const {
    switch (phase_) {
    case Phase::starting:
    case Phase::loading:
        return BluetoothState::unknown;
    case Phase::absent:
        return BluetoothState::unsupported;
    case Phase::denied:
        return BluetoothState::unauthorized;
    case Phase::loaded:
        break;
    }
    const QStringList adapters = objects_.paths(bluez::adapter);
    for (const QString& path : adapters)
        if (objects_.value<bool>(path, bluez::adapter, "Powered").value_or(false))
            return BluetoothState::poweredOn;
    return adapters.isEmpty() ? BluetoothState::unsupported : BluetoothState::poweredOff;
}

void BluezWatch::settle(Phase phase) {
    phase_ = phase;
    announceState();
}

void BluezWatch::announceState() {
    const BluetoothState now = state();
    if (std::exchange(announced_, now) != now)
        Q_EMIT stateChanged();
}

/// Others may send the same signals; and before the objects are loaded, the reply that brings them includes the change.
bool BluezWatch::mayTell(const QDBusMessage& signal) const {
    return phase_ == Phase::loaded && signal.service() == owner_;
}

void BluezWatch::interfacesAdded(const QDBusMessage& signal) {
    if (!mayTell(signal) || signal.signature() != u"oa{sa{sv}}")
        return;
    const QString path = signal.arguments().constFirst().value<QDBusObjectPath>().path();
    if (!objects_.add(path, qdbus_cast<BluezObjects::Interfaces>(signal.arguments().constLast())))
        return;
    announceState();
    Q_EMIT objectChanged(path);
}

void BluezWatch::interfacesRemoved(const QDBusMessage& signal) {
    if (!mayTell(signal) || signal.signature() != u"oas")
        return;
    const QString path = signal.arguments().constFirst().value<QDBusObjectPath>().path();
    const QStringList interfaces = signal.arguments().constLast().toStringList();
    if (interfaces.contains(bluez::gattCharacteristic))
        unfollowCharacteristic(path);
    if (!objects_.remove(path, interfaces))
        return;
    announceState();
    Q_EMIT objectChanged(path);
}

void BluezWatch::propertiesChanged(const QDBusMessage& signal) {
    if (!mayTell(signal) || signal.signature() != u"sa{sv}as")
        return;
    const QVariantList arguments = signal.arguments();
    if (!objects_.change(signal.path(), arguments[0].toString(), qdbus_cast<QVariantMap>(arguments[1]),
                         arguments[2].toStringList()))
        return;
    announceState();
    Q_EMIT objectChanged(signal.path());
}

void BluezWatch::readCharacteristic(const QString& path, std::function<void(std::optional<QByteArray>)> take) {
    if (owner_.isEmpty())
        return take(std::nullopt);
    auto message = QDBusMessage::createMethodCall(owner_, path, bluez::gattCharacteristic, QStringLiteral("ReadValue"));
    message << QVariantMap();
    call(message, usualTimeout, [take = std::move(take)](const QDBusMessage& reply) {
        const bool isValue = reply.type() == QDBusMessage::ReplyMessage && reply.signature() == u"ay";
        take(isValue ? std::optional(reply.arguments().constFirst().toByteArray()) : std::nullopt);
    });
}

void BluezWatch::followCharacteristic(const QString& path) {
    if (owner_.isEmpty() || followed_.contains(path))
        return;
    followed_.insert(path);
    link_->bus()->connect(QString(), path, propertiesInterface, propertiesSignal, {bluez::gattCharacteristic},
                          QString(), this, SLOT(propertiesChanged(QDBusMessage)));
    const auto message =
        QDBusMessage::createMethodCall(owner_, path, bluez::gattCharacteristic, QStringLiteral("StartNotify"));
    call(message, usualTimeout, [this, path, owner = owner_](const QDBusMessage& reply) {
        if (reply.type() != QDBusMessage::ReplyMessage && owner == owner_)
            unfollowCharacteristic(path); // the next one who asks tries again
    });
}

void BluezWatch::unfollowCharacteristic(const QString& path) {
    QDBusConnection* bus = link_->bus();
    if (followed_.remove(path) && bus != nullptr)
        bus->disconnect(QString(), path, propertiesInterface, propertiesSignal, {bluez::gattCharacteristic}, QString(),
                        this, SLOT(propertiesChanged(QDBusMessage)));
}

void BluezWatch::call(QDBusMessage message, int timeout, std::function<void(const QDBusMessage&)> take) {
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(link_->bus()->asyncCall(message, timeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [take = std::move(take)](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        take(done->reply());
    });
}

} // namespace vantrix
