#pragma once

#include "views/button.h"

namespace vantrix {

/// A button with a text.
class PushButton : public Button {
    Q_OBJECT
  public:
    PushButton(const Theme& theme, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantrix
