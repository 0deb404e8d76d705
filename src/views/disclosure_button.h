#pragma once

#include "views/button.h"

namespace vantrix {

/// A line of text that shows and hides what is below it; or a chevron alone, with a name for assistive programs and the
/// tool tip.
class DisclosureButton : public Button {
    Q_OBJECT
  public:
    explicit DisclosureButton(const Theme& theme);
    DisclosureButton(const Theme& theme, const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int symbolSide() const;

    bool isAlone_ = false;
};

} // namespace vantrix
