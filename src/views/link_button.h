#pragma once

#include "views/button.h"

namespace vantrix {

/// A line of text to click.
class LinkButton : public Button {
    Q_OBJECT
  public:
    /// `description` says what it does, in the tool tip and to assistive programs.
    LinkButton(const Theme& theme, const QString& text, const QString& description);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantrix
