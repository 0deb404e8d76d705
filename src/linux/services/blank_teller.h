#pragma once

#include <functional>
#include <memory>

#include <QDBusMessage>
#include <QObject>

#include "linux/services/bus_link.h"

namespace vantrix {

/// A service that tells whether the screen is locked, covered or off.
struct BlankService {
    QString name;
    QString path;
    QString interface;
    /// Where a signal tells it: that, and the method that answers the same. Else both empty.
    QString signal;
    QString question;
    QString property = {}; ///< where none does
};

/// Follows such a service by its signals; a boolean or a number above 0 says yes. Says no while the service does not
/// run, has not answered, or answers nonsense. Never waits, and never starts it.
class BlankTeller : public QObject {
    Q_OBJECT
  public:
    BlankTeller(std::shared_ptr<BusLink> link, BlankService service);

    bool isBlank() const { return isBlank_; }

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void told(const QDBusMessage& signal);
    void propertiesChanged(const QDBusMessage& signal);

  private:
    void takeBus(QDBusConnection& bus);
    void follow(const QString& owner);
    void findOwner();
    void ask();
    void call(QDBusMessage question, const std::function<void(const QDBusMessage&)>& answered);
    void take(const QVariant& value);

    std::shared_ptr<BusLink> link_;
    BlankService service_;
    QString owner_; ///< unique name; empty while none is known. Signals of others do not count.
    bool isBlank_ = false;
};

} // namespace vantrix
