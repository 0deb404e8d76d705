#pragma once

#include <QDBusMetaType>
#include <QDBusObjectPath>

#include "linux/bluetooth/bluez_objects.h"
#include "linux/services/fake_service.h"

namespace vantrix {

/// A bluetoothd on a bus of the test's own, which does not have its name yet.
class FakeBluez : public FakeService {
  public:
    using Interfaces = BluezObjects::Interfaces;
    using Objects = QMap<QDBusObjectPath, Interfaces>;

    explicit FakeBluez(const QString& busAddress)
        : FakeService(
              busAddress, QStringLiteral("org.bluez"), QStringLiteral("/"),
              [this](const QDBusMessage& call) {
                  if (call.member() == u"GetManagedObjects")
                      return call.createReply(QVariant::fromValue(objects));
                  return call.member() == u"ReadValue" ? call.createReply(value) : call.createReply();
              },
              QDBusConnection::SubPath) {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
    }

    void put(const QString& path, const QString& interface, const QVariantMap& properties) {
        objects[QDBusObjectPath(path)][interface] = properties;
        tellObjects("InterfacesAdded", path, QVariant::fromValue(Interfaces{{interface, properties}}));
    }

    void remove(const QString& path) {
        tellObjects("InterfacesRemoved", path, QStringList(objects.take(QDBusObjectPath(path)).keys()));
    }

    void change(const QString& path, const QString& interface, const QVariantMap& properties) {
        objects[QDBusObjectPath(path)][interface].insert(properties);
        emitSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
                   {interface, properties, QStringList()});
    }

    Objects objects;
    QByteArray value; ///< of every characteristic

  private:
    void tellObjects(const char* event, const QString& path, const QVariant& interfaces) {
        emitSignal(QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                   QString::fromLatin1(event), {QVariant::fromValue(QDBusObjectPath(path)), interfaces});
    }
};

} // namespace vantrix
