#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QObject>

#include "linux/services/bus_link.h"
#include "linux/status_area/notifier_host.h"

namespace vantrix {

/// What kind of host the process `pid` is, after `/proc/PID/comm`.
NotifierHost notifierHostOfProcess(uint pid);

/// Follows org.kde.StatusNotifierWatcher on a session bus: who owns the name, and what kind of host that is.
/// Never waits for an answer.
class NotifierWatch : public QObject {
    Q_OBJECT
  public:
    using HostOfProcess = std::function<NotifierHost(uint pid)>;

    explicit NotifierWatch(std::shared_ptr<BusLink> link, HostOfProcess hostOfProcess = notifierHostOfProcess);

    /// Absent while nobody owns the name, or its owner is not known yet.
    const std::optional<NotifierHost>& host() const { return host_; }

  Q_SIGNALS:
    /// A watcher appeared or went away. When one replaces another, both are announced in turn.
    void changed();

  private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);

  private:
    void takeBus(QDBusConnection& bus);
    void follow(const QString& owner);
    void askProcess();
    void settle(std::optional<NotifierHost> host);

    std::shared_ptr<BusLink> link_;
    HostOfProcess hostOfProcess_;
    QString owner_;
    std::optional<NotifierHost> host_;
};

} // namespace vantrix
