#pragma once

#include <functional>
#include <memory>

#include <QDBusMessage>

#include "linux/services/blank_teller.h"

namespace vantrix {

/// Whether logind (org.freedesktop.login1) says that this session is locked: its `LockedHint`. Where it is not known
/// which one that is, as for a program that the user's service manager started, it is the user's graphical one.
class SessionLock : public QObject {
    Q_OBJECT
  public:
    explicit SessionLock(std::shared_ptr<BusLink> systemBus);

    bool isLocked() const { return teller_ && teller_->isBlank(); }

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void sessionRemoved(const QDBusMessage& signal);

  private:
    void takeBus(QDBusConnection& bus);
    void findSession();
    void findDisplay();
    void ask(const QDBusMessage& question, const std::function<void(const QDBusMessage&)>& answered);
    void follow(const QString& session);

    std::shared_ptr<BusLink> link_;
    QString session_;                     ///< path of the one that is followed
    std::unique_ptr<BlankTeller> teller_; ///< none before the session is known
};

} // namespace vantrix
