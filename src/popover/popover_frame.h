#pragma once

#include <memory>

#include "views/view.h"

namespace vantrix {

/// The popover's window: a rounded background with a hairline around it, filled by one view. Closes when Escape is
/// pressed or the user clicks or switches elsewhere; closing only hides it.
class PopoverFrame : public View {
    Q_OBJECT
  public:
    /// `theme` outlives the frame.
    PopoverFrame(const Theme& theme, std::unique_ptr<QWidget> view);

    QAccessible::Role accessibleRole() const override { return QAccessible::Dialog; }

    /// How tall its view would like to be.
    int contentHeight() const { return view_->sizeHint().height(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// Its view is up to date, and the window not yet on the screen.
    void opening();
    /// The view may want another height.
    void contentChanged();
    void closed();
    /// A press outside closed it; `place` is on the screen.
    void pressedOutside(QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    /// It closed because the user turned to another window, perhaps by a click that it was not told of.
    void lostFocus();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* view_;
};

} // namespace vantrix
