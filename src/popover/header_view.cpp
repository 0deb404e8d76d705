#include "popover/header_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/desktop_services.h"
#include "views/shortcut_menu.h"
#include "views/symbol_button.h"
#include "views/symbol_view.h"
#include "views/text_label.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int sidePadding = 14;
constexpr int topPadding = 10;
constexpr int spacing = 10;
constexpr double symbolSize = 16.0;
constexpr double menuSymbolSize = 15.0;

TextLabel* fitted(TextLabel* label) {
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return label;
}

} // namespace

HeaderView::HeaderView(const Theme& theme, const std::string& processor, MenuEntries menuEntries)
    : View(theme), menuEntries_(std::move(menuEntries)),
      button_(new SymbolButton(theme, "ellipsis.circle", menuSymbolSize, localizedText("Vantrix menu"))) {
    button_->setToolTip(localizedText("Settings and quit"));
    connect(button_, &QAbstractButton::clicked, this, &HeaderView::openMenu);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(fitted(new TextLabel(theme, {13.0, QFont::DemiBold}, localizedText("Vantrix"))));
    texts->addWidget(fitted(
        new TextLabel(theme, {10.0, QFont::Normal, &ThemeColors::secondary}, QString::fromStdString(processor))));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sidePadding, topPadding, sidePadding, topPadding);
    row->setSpacing(spacing);
    row->addWidget(new SymbolView(theme, "gauge.with.dots.needle.50percent", symbolSize, &ThemeColors::accent));
    row->addLayout(texts, 1);
    row->addWidget(button_);
}

HeaderView::~HeaderView() = default;

void HeaderView::openMenu() {
    const std::vector<StatusMenuEntry> entries = menuEntries_();
    if (popUpSystemMenu(entries, *button_))
        return;
    menu_ = makeMenu(entries);
    menu_->setPalette(theme().palette());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QPoint corner = mirrored ? button_->rect().bottomLeft() : button_->rect().bottomRight();
    menu_->popup(button_->mapToGlobal(corner) - QPoint(mirrored ? 0 : menu_->sizeHint().width(), 0));
}

} // namespace vantrix
