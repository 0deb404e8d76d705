#pragma once

#include <memory>
#include <optional>

#include <QDBusMessage>
#include <QHash>
#include <QObject>

#include "linux/services/bus_link.h"
#include "platform/notification_center.h"

namespace vantrix {

/// Notifications through the session's org.freedesktop.Notifications service, which the bus starts where it can.
///
/// Nothing waits for the service. While it has not answered for one identifier, the latest notification posted under
/// that identifier is held back, because only the answer tells what it is to replace.
class DesktopNotifications : public QObject, public NotificationCenter {
    Q_OBJECT
  public:
    /// While there is no bus, nothing is shown.
    explicit DesktopNotifications(std::shared_ptr<BusLink> link);

    void post(const QString& identifier, const QString& title, const QString& body) override;

    /// Granted when a notification service runs or can be started: Linux desktops do not ask the user.
    void requestAuthorization(std::function<void(bool granted)> answer) override;

  private Q_SLOTS:
    void actionInvoked(uint id, const QString& action);
    void serviceOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);

  private:
    struct Texts {
        QString title;
        QString body;
    };

    /// What was posted under one identifier.
    struct Posted {
        uint id = 0; ///< the service's number for it; 0: nothing to replace
        bool isUnanswered = false;
        std::optional<Texts> next; ///< held back until the answer
    };

    void forgetNumbers();
    void notify(const QString& identifier, const Texts& texts);
    void send(const QString& identifier, const Texts& texts);
    /// `isCurrent`: the service is still the one that was asked.
    void takeAnswer(const QString& identifier, const QDBusMessage& reply, bool isCurrent);
    void askBus(const QString& method, const QVariantList& arguments, std::function<void(const QDBusMessage&)> take);
    /// `take` gets an invalid message where there is no bus.
    void call(const QDBusMessage& message, std::function<void(const QDBusMessage&)> take);

    std::shared_ptr<BusLink> link_;
    int resignations_ = 0; ///< counts the services that have gone; not every toolkit version says who sent a reply
    std::optional<QStringList> capabilities_; ///< the service's; absent until it was asked
    QHash<QString, Posted> posted_;
};

} // namespace vantrix
