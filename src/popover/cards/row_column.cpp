#include "popover/cards/row_column.h"

#include <QVBoxLayout>

namespace vantrix {

QVBoxLayout* columnOf(std::initializer_list<QWidget*> rows) {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(rowGap);
    for (QWidget* row : rows)
        column->addWidget(row);
    return column;
}

} // namespace vantrix
