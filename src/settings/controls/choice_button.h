#pragma once

#include <QRadioButton>

namespace vantrix {

class FocusRing;
class Theme;

/// One of several exclusive choices. The Tab key enters them at the chosen one; the arrow keys move among them.
class ChoiceButton : public QRadioButton {
    Q_OBJECT
  public:
    /// `theme` outlives the button.
    ChoiceButton(const Theme& theme, const QString& text);

  protected:
    const Theme& theme() const { return theme_; }
    const FocusRing& ring() const { return ring_; }
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    const Theme& theme_;
    const FocusRing& ring_;
};

} // namespace vantrix
