#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QObject>

#include "linux/services/bus_link.h"
#include "linux/status_area/notifier_host.h"

namespace vantrix {

/// What a process calls itself, "waybar", in `/proc/PID/comm`; empty when that cannot be read.
std::string processName(uint pid);

/// What kind of host the process `pid` is, after its name.
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

    /// What the owner calls itself; empty when that is not known.
    std::string ownerName() const { return processName(process_); }

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
    uint process_ = 0; ///< the owner's, once it is known
    std::optional<NotifierHost> host_;
};

} // namespace vantrix
