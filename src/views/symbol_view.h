#pragma once

#include <string>

#include "views/theme_colors.h"
#include "views/view.h"

namespace vantrix {

/// A symbol beside a text. Decoration: assistive programs pass it by.
class SymbolView : public View {
  public:
    /// `points` is the size of the text that the symbol goes with.
    SymbolView(const Theme& theme, std::string_view symbol, double points, QColor ThemeColors::*color);

    void setSymbol(std::string_view symbol);
    const std::string& symbol() const { return symbol_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string symbol_;
    double points_;
    QColor ThemeColors::*color_;
};

} // namespace vantrix
