#pragma once

#include <functional>
#include <memory>

#include <QWidget>

namespace vantrix {

class Theme;

/// The size of the popover on a screen whose visible area is that high, in points; 0: no screen.
QSize popoverContentSize(double visibleHeight);

/// What the system's popover holds: the view on the popover's own ground. Asks to be closed when Escape is pressed.
class PopoverContent : public QWidget {
  public:
    /// `theme` outlives the content.
    PopoverContent(const Theme& theme, std::unique_ptr<QWidget> view, std::function<void()> dismiss);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::function<void()> dismiss_;
};

} // namespace vantrix
