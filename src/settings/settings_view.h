#pragma once

#include "menubar/display_choices.h"
#include "settings/alerts_settings.h"
#include "views/view.h"

class QStackedWidget;

namespace vantrix {

class LoginItem;
class SystemMonitor;
class TabBar;
class UserDefaults;

/// What the settings window works on; all of it outlives the window.
struct SettingsParts {
    const Theme& theme;
    UserDefaults& defaults;
    const SystemMonitor& monitor;
    LoginItem& loginItem;
    SendTest sendTest; ///< may be empty
};

/// The settings: a bar of tabs above the form of the selected one, which scrolls where it is too tall.
class SettingsView : public View {
    Q_OBJECT
  public:
    static constexpr QSize contentSize{520, 500}; ///< points

    explicit SettingsView(const SettingsParts& parts);

    SettingsTab currentTab() const;
    /// Gives the open tab's button the keyboard's focus.
    void focusTab();

    QAccessible::Role accessibleRole() const override { return QAccessible::Window; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void addPage(Form* form);
    void addShortcuts();
    void showStoredTab();
    void select(SettingsTab tab);
    void selectNext(int by);

    UserDefaults& defaults_;
    TabBar* tabs_;
    QStackedWidget* pages_;
};

} // namespace vantrix
