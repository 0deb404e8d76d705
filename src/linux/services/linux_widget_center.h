#pragma once

#include <memory>

#include "linux/services/bus_link.h"
#include "linux/settings/group_file.h"
#include "platform/widget_center.h"

namespace vantrix {

/// $XDG_RUNTIME_DIR/vantrix/defaults.json, or in $XDG_STATE_HOME where there is no such folder.
QString widgetStorePath();

/// Keeps the group's store in a file and announces it by a signal on the session bus.
class LinuxWidgetCenter final : public WidgetCenter {
  public:
    /// While there is no bus, nothing is announced.
    LinuxWidgetCenter(const QString& path, std::shared_ptr<BusLink> link);

    void store(std::string_view key, std::string_view json) override;
    void reloadAllTimelines() override;

  private:
    GroupFile file_;
    std::shared_ptr<BusLink> link_;
};

} // namespace vantrix
