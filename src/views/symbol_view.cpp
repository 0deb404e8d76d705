#include "views/symbol_view.h"

#include <cmath>

#include <QPainter>

#include "menubar/symbol.h"
#include "views/theme.h"

namespace vantrix {

double symbolSideFor(const Theme& theme, double points) {
    return theme.scaled(points * 1.3); // the drawings have some air around them
}

SymbolView::SymbolView(const Theme& theme, std::string_view symbol, double points, ColorRole color)
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
    const int side = static_cast<int>(std::lround(symbolSideFor(theme(), points_)));
    return {side, side};
}

void SymbolView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSymbol(painter, symbol_, rect(), theme().colors().*color_);
}

} // namespace vantrix
