#pragma once

#include "linux/services/fake_service.h"

namespace vantrix {

/// A notification daemon that numbers what it shows from `firstId`.
class FakeNotificationService : public FakeService {
  public:
    explicit FakeNotificationService(const QString& busAddress, uint firstId = 1)
        : FakeService(busAddress, QStringLiteral("org.freedesktop.Notifications"),
                      QStringLiteral("/org/freedesktop/Notifications"),
                      [nextId = firstId](const QDBusMessage& notify) mutable {
                          const uint replaced = notify.arguments().at(1).toUInt();
                          return notify.createReply(replaced != 0 ? replaced : nextId++);
                      }) {
        appear();
    }
};

} // namespace vantrix
