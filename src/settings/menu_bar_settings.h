#pragma once

#include "settings/form.h"

namespace vantrix {

class SystemMonitor;
class UserDefaults;

/// The tab for what the status item shows.
class MenuBarSettings : public Form {
    Q_OBJECT
  public:
    /// Everything passed in outlives the tab.
    MenuBarSettings(const Theme& theme, UserDefaults& defaults, const SystemMonitor& monitor);

  private:
    void addPreview(const SystemMonitor& monitor);
    void addStyle();
    void addContents(const SystemMonitor& monitor);

    UserDefaults& defaults_;
};

} // namespace vantrix
