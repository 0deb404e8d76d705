#include "settings/menu_bar_preview.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "menubar/menu_bar_renderer.h"
#include "menubar/preferences.h"
#include "menubar/symbol.h"
#include "monitor/system_monitor.h"
#include "settings/bindings.h"
#include "settings/form.h"
#include "support/user_defaults.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr std::string_view gaugeSymbol = "gauge.with.dots.needle.33percent"; // what stands for an empty row
constexpr double stripHeight = 32.0;
constexpr double sidePadding = 12.0;

} // namespace

MenuBarPreview::MenuBarPreview(const Theme& theme, const UserDefaults& defaults, const SystemMonitor& monitor)
    : View(theme), defaults_(defaults), monitor_(monitor) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    follow(*this, defaults, [this] { refresh(); });
    connect(&monitor, &SystemMonitor::changed, this, &MenuBarPreview::refresh);
}

QSize MenuBarPreview::sizeHint() const {
    return {200, static_cast<int>(stripHeight)};
}

void MenuBarPreview::refresh() {
    if (isVisible())
        update(); // the readings of one pass come one by one and make one picture
}

std::vector<MenuBarItem> MenuBarPreview::items() const {
    return menuBarItems(enabledMenuBarModules(defaults_), monitor_.readings(), defaults_);
}

void MenuBarPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme().colors().separator, 1.0));
    painter.setBrush(theme().isDark() ? QColor(18, 18, 20) : QColor(255, 255, 255));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), FormSection::cornerRadius,
                            FormSection::cornerRadius);

    const MenuBarPalette palette = theme().isDark() ? MenuBarPalette::onDark() : MenuBarPalette::onLight();
    const auto shown = items();
    const MenuBarStyle style = menuBarStyle(defaults_);
    constexpr double side = MenuBarRenderer::height;
    const QSizeF size = shown.empty() ? QSizeF(side, side) : MenuBarRenderer::size(shown, style);
    const double scale = std::min(1.0, (width() - 2.0 * sidePadding) / size.width());
    painter.translate(std::round((width() - size.width() * scale) / 2.0),
                      std::round((height() - size.height() * scale) / 2.0));
    painter.scale(scale, scale);
    if (shown.empty())
        return paintSymbol(painter, gaugeSymbol, QRectF(2.0, 2.0, side - 4.0, side - 4.0), palette.label);
    const bool colorize = defaults_.boolean(preference_key::menuBarColorize);
    MenuBarRenderer::paint(painter, shown, style, colorize, palette);
}

} // namespace vantrix
