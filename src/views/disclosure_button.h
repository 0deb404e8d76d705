#pragma once

#include "views/button.h"

namespace vantrix {

/// A line of text that shows and hides what is below it.
class DisclosureButton : public Button {
    Q_OBJECT
  public:
    explicit DisclosureButton(const Theme& theme);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantrix
