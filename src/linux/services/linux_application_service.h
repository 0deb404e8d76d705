#pragma once

#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include "linux/services/bus_link.h"
#include "platform/application_service.h"

namespace vantrix {

/// org.freedesktop.Application on a session bus, under the name `applicationId`: Activate and Open show the popover,
/// the actions are "settings", with a tab's name or without, and "quit".
///
/// The name is never given away while the program runs. Where another instance has it, of another display on the same
/// bus, it is taken once that one has ended.
class LinuxApplicationService final : public QDBusVirtualObject, public ApplicationService {
    Q_OBJECT
  public:
    /// Nothing is heard while there is no bus.
    explicit LinuxApplicationService(std::shared_ptr<BusLink> link);
    ~LinuxApplicationService() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

  private:
    void take(const QDBusConnection& bus);
    void leave();

    std::shared_ptr<BusLink> link_;
    std::optional<QDBusConnection> bus_; ///< the one that it was last offered on
};

/// The same as `askApplicationService`, on the bus at `address`.
bool askApplicationOn(const QString& address, const std::string& request);

} // namespace vantrix
