#include "settings/tab_bar.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPainter>

#include "settings/controls/tab_button.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int padding = 4;
constexpr double usualPoints = 11.0;
constexpr double leastPoints = 5.0;

} // namespace

TabBar::TabBar(const Theme& theme) : View(theme) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding, padding);
    row->setSpacing(0);
    row->addStretch(1);
    for (const auto& tab : settingsTabs) {
        auto* button = new TabButton(theme, tab.symbolName, localizedText(tab.title));
        connect(button, &QAbstractButton::clicked, this, [this, value = tab.value] { Q_EMIT chosen(value); });
        row->addWidget(button);
        tabs_.push_back(button);
    }
    row->addStretch(1);
    connect(&theme, &Theme::changed, this, &TabBar::fitTitles);
    fitTitles();
}

void TabBar::setCurrent(SettingsTab tab) {
    tabs_[static_cast<std::size_t>(tab)]->setChecked(true);
}

void TabBar::focusCurrent() {
    for (TabButton* tab : tabs_)
        if (tab->isChecked())
            tab->setFocus(Qt::OtherFocusReason);
}

void TabBar::resizeEvent(QResizeEvent*) {
    fitTitles();
}

void TabBar::fitTitles() {
    // All tabs stay in view: long titles are set smaller rather than cut.
    const double room = width() - 2.0 * padding;
    double points = usualPoints;
    while (points > leastPoints && widthAt(points) > room)
        points -= 0.5;
    double widest = 0.0;
    for (const TabButton* tab : tabs_)
        widest = std::max(widest, tab->widthAt(points));
    const bool alike = widest * static_cast<double>(tabs_.size()) <= room;
    for (TabButton* tab : tabs_)
        tab->setLook(points, alike ? widest : tab->widthAt(points));
}

double TabBar::widthAt(double points) const {
    double width = 0.0;
    for (const TabButton* tab : tabs_)
        width += tab->widthAt(points);
    return width;
}

void TabBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(QRectF(0, height() - 1.0, width(), 1.0), theme().colors().separator);
}

} // namespace vantrix
