#pragma once

#include <string>

#include "views/theme_colors.h"
#include "views/view.h"

namespace vantrix {

/// The side of a symbol that goes with a text of that size, in points.
double symbolSideFor(const Theme& theme, double points);

/// A symbol beside a text. Decoration: assistive programs skip it.
class SymbolView : public View {
  public:
    /// `points` is the size of the text that the symbol goes with.
    SymbolView(const Theme& theme, std::string_view symbol, double points, ColorRole color);

    void setSymbol(std::string_view symbol);
    const std::string& symbol() const { return symbol_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string symbol_;
    double points_;
    ColorRole color_;
};

} // namespace vantrix
