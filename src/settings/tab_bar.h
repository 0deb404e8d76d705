#pragma once

#include <vector>

#include "menubar/display_choices.h"
#include "views/view.h"

namespace vantrix {

class TabButton;

/// The row of tabs at the top of the settings window.
class TabBar : public View {
    Q_OBJECT
  public:
    explicit TabBar(const Theme& theme);

    QAccessible::Role accessibleRole() const override { return QAccessible::PageTabList; }
    /// Shows that tab as the selected one, without announcing it.
    void setCurrent(SettingsTab tab);
    /// Gives the selected tab the keyboard's focus.
    void focusCurrent();

  Q_SIGNALS:
    /// By the user.
    void chosen(SettingsTab tab);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitTitles();
    double widthAt(double points) const;

    std::vector<TabButton*> tabs_; // in the order of `settingsTabs`
};

} // namespace vantrix
