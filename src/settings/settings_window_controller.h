#pragma once

#include <memory>

#include "settings/settings_view.h"

namespace vantrix {

/// Owns the one settings window: made when it is first asked for, hidden when it is closed.
class SettingsWindowController {
  public:
    explicit SettingsWindowController(SettingsParts parts);
    ~SettingsWindowController();

    /// Brings the window to the front, with that tab selected.
    void show(SettingsTab tab);
    /// Brings the window to the front with the tab that was shown last.
    void show();

    /// Whether the window, if there is one, is painted while it is open.
    void setDrawn(bool isDrawn);

    /// Null until the window was shown for the first time.
    SettingsView* window() const { return window_.get(); }

  private:
    void createWindow();

    SettingsParts parts_;
    std::unique_ptr<SettingsView> window_;
};

} // namespace vantrix
