#include "popover/rate_column.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "popover/charts/sparkline.h"
#include "views/symbol_view.h"
#include "views/text_label.h"

namespace vantrix {
namespace {

constexpr double labelSize = 11.0;
constexpr double rateSize = 14.0;
constexpr int columnGap = 16;

} // namespace

RateColumn::RateColumn(const Theme& theme, const Style& style)
    : View(theme), rate_(new TextLabel(theme, {.points = rateSize, .weight = QFont::DemiBold, .monospaced = true})),
      history_(new Sparkline(theme, style.historyName, style.color, {{}, style.minimumScale}, rateText)),
      label_(style.label) {
    auto* caption = new QHBoxLayout;
    caption->setSpacing(4);
    if (!style.symbol.empty())
        caption->addWidget(new SymbolView(theme, style.symbol, labelSize, style.color));
    caption->addWidget(new TextLabel(theme, {labelSize, QFont::Normal, &ThemeColors::secondary}, label_));
    caption->addStretch(1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(caption);
    column->addWidget(rate_);
    column->addSpacing(4);
    column->addWidget(history_);
    rate_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void RateColumn::setRate(std::optional<double> rate, std::span<const double> history, double interval, RateText text) {
    rate_->setText(rate ? text(*rate) : QStringLiteral("–"));
    history_->setText(text);
    history_->setValues(history, interval);
}

QString RateColumn::accessibleText() const {
    return label_;
}

QHBoxLayout* sideBySide(RateColumn* first, RateColumn* second) {
    auto* row = new QHBoxLayout;
    row->setSpacing(columnGap);
    row->addWidget(first, 1);
    row->addWidget(second, 1);
    return row;
}

} // namespace vantrix
