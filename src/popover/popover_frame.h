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

    /// How tall its view would like to be.
    int contentHeight() const { return view_->sizeHint().height(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// Its view is up to date, and the window not yet on the screen.
    void opening();
    /// The view may want another height.
    void contentChanged();
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
    QWidget* view_;
    QElapsedTimer sinceHidden_;
    std::optional<QPoint> closingPress_; ///< on the screen
};

} // namespace vantrix
