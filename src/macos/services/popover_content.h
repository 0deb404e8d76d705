#pragma once

#include <functional>
#include <memory>

#include <QWidget>

namespace vantrix {

class Theme;

/// The popover's size for a screen's visible height, both in points; 0: no screen.
QSize popoverContentSize(double visibleHeight);

/// The content of the native popover, with a transparent background. Calls `dismiss` when Escape is pressed.
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
