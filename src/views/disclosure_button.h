#pragma once

#include <QPushButton>

namespace vantrix {

class FocusRing;
class Theme;

/// A line of text that opens and closes what stands below it.
class DisclosureButton : public QPushButton {
    Q_OBJECT
  public:
    explicit DisclosureButton(const Theme& theme);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Theme& theme_;
    FocusRing& ring_;
};

} // namespace vantrix
