#pragma once

#include <vector>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

#include "linux/bluetooth/bluez_objects.h"
#include "linux/services/session_bus.h"

namespace vantrix {

/// A bluetoothd on a bus of the test's own.
class FakeBluez : public QDBusVirtualObject {
    Q_OBJECT
  public:
    using Interfaces = BluezObjects::Interfaces;
    using Objects = QMap<QDBusObjectPath, Interfaces>;

    explicit FakeBluez(const QString& busAddress) : connection_(busAddress) {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        connection_.bus().registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    }

    /// Takes the service's name; false when another has it.
    bool appear() {
        return connection_.bus().interface()->registerService(name).value() ==
               QDBusConnectionInterface::ServiceRegistered;
    }
    void resign() { connection_.bus().interface()->unregisterService(name); }

    void put(const QString& path, const QString& interface, const QVariantMap& properties) {
        objects[QDBusObjectPath(path)][interface] = properties;
        emitSignal(
            QStringLiteral("/"), managerInterface, QStringLiteral("InterfacesAdded"),
            {QVariant::fromValue(QDBusObjectPath(path)), QVariant::fromValue(Interfaces{{interface, properties}})});
    }

    void remove(const QString& path) {
        const auto interfaces = objects.take(QDBusObjectPath(path)).keys();
        emitSignal(QStringLiteral("/"), managerInterface, QStringLiteral("InterfacesRemoved"),
                   {QVariant::fromValue(QDBusObjectPath(path)), interfaces});
    }

    void change(const QString& path, const QString& interface, const QVariantMap& properties) {
        objects[QDBusObjectPath(path)][interface].insert(properties);
        emitSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
                   {interface, properties, QStringList()});
    }

    void emitSignal(const QString& path, const QString& interface, const QString& member,
                    const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(path, interface, member);
        signal.setArguments(arguments);
        connection_.bus().send(signal);
    }

    /// Answers a call that was held back.
    void answer(const QDBusMessage& message) {
        if (message.member() == u"GetManagedObjects")
            connection_.bus().send(message.createReply(QVariant::fromValue(objects)));
        else if (message.member() == u"ReadValue")
            connection_.bus().send(message.createReply(value));
        else
            connection_.bus().send(message.createReply());
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        asked.push_back(message);
        message.setDelayedReply(true);
        if (error != QDBusError::NoError)
            bus.send(message.createErrorReply(error, QStringLiteral("no")));
        else if (nonsense)
            bus.send(message.createReply(*nonsense));
        else if (!hangs)
            answer(message);
        return true;
    }

    /// How often a method was asked for.
    long count(QStringView method) const {
        return std::count_if(asked.begin(), asked.end(),
                             [&](const auto& message) { return message.member() == method; });
    }

    Objects objects;
    QByteArray value; ///< of every characteristic
    bool hangs = false;
    QDBusError::ErrorType error = QDBusError::NoError;
    std::optional<QVariantList> nonsense; ///< answered to everything
    std::vector<QDBusMessage> asked;

  private:
    inline static const QString name = QStringLiteral("org.bluez");
    inline static const QString managerInterface = QStringLiteral("org.freedesktop.DBus.ObjectManager");

    BusConnection connection_;
};

} // namespace vantrix
