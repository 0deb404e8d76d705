#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include "linux/services/private_bus.h"
#include "linux/services/session_bus.h"

namespace vantrix {

/// A host's event as EventGroup takes it: (isvu).
struct MenuEvent {
    int id = 0;
    QString kind;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.kind << QDBusVariant(0) << 0U;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent&) {
    return argument;
}

/// A status area on a bus: a watcher that lists the items registered with it, and a host that reads them.
class FakeStatusHost : public QDBusVirtualObject {
    Q_OBJECT
  public:
    struct Item {
        QString service;
        QString path;
    };

    explicit FakeStatusHost(const QString& busAddress) : busAddress_(busAddress) {
        qDBusRegisterMetaType<MenuEvent>();
        qDBusRegisterMetaType<QList<MenuEvent>>();
        start();
    }

    /// Takes the watcher's name on a connection of its own, as a freshly started panel does; behind
    /// another that has it.
    void start() {
        QDBusConnection& bus = connection_.emplace(busAddress_).bus();
        bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), this);
        for (const QString& interface : {itemInterface, menuInterface})
            bus.connect({}, {}, interface, {}, this, SLOT(heard(QDBusMessage)));
        bus.interface()->registerService(watcherName, QDBusConnectionInterface::QueueService);
    }

    void stop() { connection_.reset(); }

    /// Gives the name up but stays on the bus.
    void release() { connection_->bus().unregisterService(watcherName); }

    /// Starts anew, and forgets who registered before.
    void restart() {
        stop();
        items.clear();
        start();
    }

    /// Calls and waits for the answer, whatever it is.
    QDBusMessage call(const Item& item, const QString& interface, const QString& member,
                      const QVariantList& arguments = {}) {
        auto message = QDBusMessage::createMethodCall(item.service, item.path, interface, member);
        message.setArguments(arguments);
        // The item lives in this very thread: a blocking call would wait for itself.
        const QDBusPendingCall pending = connection_->bus().asyncCall(message);
        spinUntil([&] { return pending.isFinished(); });
        return pending.reply();
    }

    QVariantMap properties(const Item& item) {
        return qdbus_cast<QVariantMap>(
            call(item, propertiesInterface, QStringLiteral("GetAll"), {itemInterface}).arguments().value(0));
    }

    QVariant property(const Item& item, const QString& name, const QString& interface = itemInterface) {
        const QDBusMessage reply = call(item, propertiesInterface, QStringLiteral("Get"), {interface, name});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Waits until everything sent to this host so far has arrived.
    void settle(const Item& item) {
        call(item, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        QCoreApplication::processEvents();
    }

    qsizetype count(QStringView signal) const {
        return std::count_if(signalsHeard.begin(), signalsHeard.end(),
                             [&](const QDBusMessage& message) { return message.member() == signal; });
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != u"RegisterStatusNotifierItem" || !answers)
            return true; // no word
        const QString what = message.arguments().value(0).toString();
        items.push_back(what.startsWith(u'/') ? Item{message.service(), what}
                                              : Item{what, QStringLiteral("/StatusNotifierItem")});
        if (reads) {
            auto read = QDBusMessage::createMethodCall(items.back().service, items.back().path, propertiesInterface,
                                                       QStringLiteral("GetAll"));
            bus.send(read << itemInterface);
        }
        return message.isReplyRequired() ? bus.send(message.createReply()) : true;
    }

    inline static const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
    inline static const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
    inline static const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");
    inline static const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

    bool answers = true; ///< takes registrations in
    bool reads = true;   ///< fetches the properties of what registers
    std::vector<Item> items;
    std::vector<QDBusMessage> signalsHeard;

  public Q_SLOTS:
    void heard(const QDBusMessage& message) { signalsHeard.push_back(message); }

  private:
    QString busAddress_;
    std::optional<BusConnection> connection_;
};

} // namespace vantrix
