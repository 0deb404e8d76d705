#pragma once

#include <memory>

#include "linux/services/blank_teller.h"

namespace vantrix {

/// Whether logind (org.freedesktop.login1) says that the user's session is locked: its `LockedHint`.
class SessionLock : public QObject {
    Q_OBJECT
  public:
    explicit SessionLock(std::shared_ptr<BusLink> systemBus);

    bool isLocked() const { return teller_ && teller_->isBlank(); }

  Q_SIGNALS:
    void changed();

  private:
    void findSession(QDBusConnection& bus);
    void follow(const QString& session);

    std::shared_ptr<BusLink> link_;
    std::unique_ptr<BlankTeller> teller_; ///< none before the session is known
};

} // namespace vantrix
