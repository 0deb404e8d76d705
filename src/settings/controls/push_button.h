#pragma once

#include <QPushButton>

namespace vantrix {

class FocusRing;
class Theme;

/// A button with a text.
class PushButton : public QPushButton {
    Q_OBJECT
  public:
    PushButton(const Theme& theme, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Theme& theme_;
    FocusRing& ring_;
};

} // namespace vantrix
