#pragma once

#include <string>

#include "views/button.h"

namespace vantrix {

/// A symbol to click, without a border until the pointer or the keyboard focus is on it.
class SymbolButton : public Button {
    Q_OBJECT
  public:
    /// `points` is the size of the text that the symbol goes with; `name` says what it does, to
    /// assistive programs and in the tool tip.
    SymbolButton(const Theme& theme, std::string_view symbol, double points, const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string symbol_;
    double points_;
};

} // namespace vantrix
