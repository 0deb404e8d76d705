#pragma once

#include <QPushButton>

namespace vantrix {

class FocusRing;
class Theme;

/// What the buttons share: a theme to draw themselves in, a ring around the one with the keyboard focus, and the Return
/// key, which presses it.
class Button : public QPushButton {
    Q_OBJECT
  public:
    /// `theme` outlives the button.
    explicit Button(const Theme& theme, const QString& text = {});

  protected:
    const Theme& theme() const { return theme_; }
    const FocusRing& ring() const { return ring_; }

  private:
    const Theme& theme_;
    const FocusRing& ring_;
};

} // namespace vantrix
