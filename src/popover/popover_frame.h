#pragma once

#include <memory>
#include <optional>

#include <QElapsedTimer>

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

    /// True once if the click that now asks for the popover is the one that has just closed it: its press was on
    /// `item`, however long ago, or, where presses are not reported, the popover closed within the last `milliseconds`.
    bool closedBySameClick(const QRect& item, qint64 milliseconds);

  Q_SIGNALS:
    void closed();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QElapsedTimer sinceHidden_;
    std::optional<QPoint> closingPress_; ///< on the screen
};

} // namespace vantrix
