#pragma once

#include "menubar/menu_bar_item.h"
#include "views/view.h"

namespace vantrix {

class SystemMonitor;
class UserDefaults;

/// The status item as it looks with the present readings and settings, on a strip like a panel's. For the eye only: the
/// status item itself tells assistive programs the same.
class MenuBarPreview : public View {
    Q_OBJECT
  public:
    /// Everything passed in outlives the view.
    MenuBarPreview(const Theme& theme, const UserDefaults& defaults, const SystemMonitor& monitor);

    QAccessible::Role accessibleRole() const override { return QAccessible::NoRole; }
    QString accessibleText() const override { return {}; }
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<MenuBarItem> items() const;
    void refresh();

    const UserDefaults& defaults_;
    const SystemMonitor& monitor_;
};

} // namespace vantrix
