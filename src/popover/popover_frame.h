#pragma once

#include <memory>

#include <QElapsedTimer>

#include "views/view.h"

namespace vantrix {

/// The popover's window: a rounded ground with a hair line around it, filled by one view. Closes when Escape is pressed
/// or the user turns elsewhere; closing only hides it.
class PopoverFrame : public View {
    Q_OBJECT
  public:
    /// `theme` outlives the frame.
    PopoverFrame(const Theme& theme, std::unique_ptr<QWidget> view);

    QAccessible::Role accessibleRole() const override { return QAccessible::Dialog; }

    /// True once after each time it was closed within the last `milliseconds`.
    bool closedWithin(qint64 milliseconds);

  Q_SIGNALS:
    void closed();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QElapsedTimer sinceHidden_;
};

} // namespace vantrix
