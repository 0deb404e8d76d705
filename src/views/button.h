#pragma once

#include <QPushButton>

namespace vantrix {

class FocusRing;
class Theme;

/// What the buttons share: they draw themselves in the theme's colours and fonts, with a ring around the one that the
/// keyboard talks to, and the Return key presses them.
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
