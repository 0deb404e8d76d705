#include "views/symbol_view.h"

#include <cmath>

#include <QPainter>

#include "menubar/symbol.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double sizeToText = 1.3; // the drawings have some air around them

} // namespace

SymbolView::SymbolView(const Theme& theme, std::string_view symbol, double points, QColor ThemeColors::*color)
    : View(theme), symbol_(symbol), points_(points), color_(color) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolView::setSymbol(std::string_view symbol) {
    if (symbol == symbol_)
        return;
    symbol_ = symbol;
    update();
}

QSize SymbolView::sizeHint() const {
    const int side = static_cast<int>(std::lround(theme().scaled(points_ * sizeToText)));
    return {side, side};
}

void SymbolView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSymbol(painter, symbol_, rect(), theme().colors().*color_);
}

} // namespace vantrix
