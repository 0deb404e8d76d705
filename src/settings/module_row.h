#pragma once

#include "menubar/display_choices.h"
#include "views/view.h"

namespace vantrix {

class CheckBox;
class SymbolButton;
class UserDefaults;

/// One module in the list that puts them in order. Asks to be moved when one of its buttons is pressed, or Alt with an
/// arrow key, or when the pointer drags it by anything but the buttons.
class ModuleRow : public View {
    Q_OBJECT
  public:
    /// `defaults` outlives the row.
    ModuleRow(const Theme& theme, UserDefaults& defaults, MenuBarModule module);

    MenuBarModule module() const { return module_; }
    /// What can take the keyboard's focus, in order.
    std::vector<QWidget*> controls() const;
    /// A button that can do nothing is disabled; the focus then goes to the row's other one.
    void setMovable(bool up, bool down);
    /// Raised above the others while it is dragged.
    void setLifted(bool lifted);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// One place up (-1) or down (1).
    void moveRequested(int by);
    /// The pointer went down at `from` and is now at `to`: heights on the screen.
    void dragged(int from, int to);
    /// The end of a drag; `counts` is false when something other than the pointer's release ended it.
    void dropped(bool counts);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    bool filterCheckBox(QEvent* event);
    void hold(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);
    bool drop(bool counts);

    MenuBarModule module_;
    CheckBox* shown_;
    SymbolButton* up_;
    SymbolButton* down_;
    std::optional<QPointF> held_; // where the pointer went down, on the screen
    bool lifted_ = false;
};

} // namespace vantrix
