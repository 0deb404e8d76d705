#pragma once

#include <vector>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "linux/services/session_bus.h"

namespace vantrix {

/// A notification daemon on a bus of the test's own.
class FakeNotificationService : public QDBusVirtualObject {
    Q_OBJECT
  public:
    explicit FakeNotificationService(const QString& busAddress, uint firstId = 1)
        : nextId_(firstId), connection_(busAddress) {
        connection_.bus().registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), this);
        connection_.bus().interface()->registerService(name);
    }

    /// Lets a successor be the service; what was asked here before can still be answered.
    void resign() { connection_.bus().interface()->unregisterService(name); }

    void answer(const QDBusMessage& message) {
        const uint replaced = message.arguments().at(1).toUInt();
        connection_.bus().send(message.createReply(replaced != 0 ? replaced : nextId_++));
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.interface() != name || message.member() != u"Notify")
            return false;
        asked.push_back(message);
        message.setDelayedReply(true);
        if (error)
            bus.send(message.createErrorReply(QDBusError::LimitsExceeded, QStringLiteral("too many")));
        else if (nonsense)
            bus.send(message.createReply(*nonsense));
        else if (!hangs)
            answer(message);
        return true;
    }

    bool hangs = false;
    bool error = false;
    std::optional<QVariantList> nonsense; ///< answered in the place of an id
    std::vector<QDBusMessage> asked;

  private:
    inline static const QString name = QStringLiteral("org.freedesktop.Notifications");

    uint nextId_;
    BusConnection connection_;
};

} // namespace vantrix
