#include "popover/popover_view.h"

#include <algorithm>

#include <QPainter>

#include "menubar/menu_bar_renderer.h"
#include "menubar/preferences.h"
#include "menubar/symbol.h"
#include "monitor/system_monitor.h"
#include "samplers/processor_description.h"
#include "support/localization.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr double sidePadding = 14.0;
constexpr double headerHeight = 52.0;
constexpr double rowArea = 58.0;
constexpr double symbolSize = 22.0;
constexpr double textGap = 10.0;
constexpr double rowScale = 1.35; // the row reads at arm's length here, not out of the corner of the eye

QFont fontOf(const QWidget& widget, int pixels, QFont::Weight weight) {
    QFont font = widget.font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QColor withAlpha(QColor color, float alpha) {
    color.setAlphaF(alpha);
    return color;
}

} // namespace

PopoverView::PopoverView(const SystemMonitor& monitor, const UserDefaults& defaults,
                         const ProcessorDescription& processor)
    : monitor_(monitor), defaults_(defaults), processor_(processor) {
    setAccessibleName(QStringLiteral("Vantrix"));
}

QSize PopoverView::sizeHint() const {
    return {contentWidth, static_cast<int>(headerHeight + rowArea)};
}

void PopoverView::showEvent(QShowEvent*) {
    // update() only marks the view dirty, so many changes of one pass make one repaint.
    connect(&monitor_, &SystemMonitor::changed, this, qOverload<>(&QWidget::update));
    connect(&defaults_, &UserDefaults::changed, this, qOverload<>(&QWidget::update));
}

void PopoverView::hideEvent(QHideEvent*) {
    monitor_.disconnect(this);
    defaults_.disconnect(this);
}

void PopoverView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    painter.fillRect(rect(), window);
    paintHeader(painter);
    const QColor line = withAlpha(palette().color(QPalette::WindowText), 0.14f);
    painter.fillRect(QRectF(0, headerHeight, width(), 1), line);
    painter.setPen(line);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)); // tells it from a window of the same colour
    paintRow(painter, window.lightness() < 128 ? MenuBarPalette::onDark() : MenuBarPalette::onLight());
}

void PopoverView::paintHeader(QPainter& painter) const {
    const QColor text = palette().color(QPalette::WindowText);
    const QRectF symbol(sidePadding, (headerHeight - symbolSize) / 2, symbolSize, symbolSize);
    paintSymbol(painter, "gauge.with.dots.needle.50percent", symbol, palette().color(QPalette::Highlight));
    const double left = symbol.right() + textGap;
    const QRectF title(left, 9, width() - left - sidePadding, 18);
    painter.setFont(fontOf(*this, 13, QFont::DemiBold));
    painter.setPen(text);
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(localized("Vantrix")));
    painter.setFont(fontOf(*this, 10, QFont::Normal));
    painter.setPen(withAlpha(text, 0.65f));
    const QString brand = painter.fontMetrics().elidedText(QString::fromStdString(processor_.brand()), Qt::ElideRight,
                                                           static_cast<int>(title.width()));
    painter.drawText(title.translated(0, 17), Qt::AlignLeft | Qt::AlignVCenter, brand);
}

void PopoverView::paintRow(QPainter& painter, const MenuBarPalette& palette) const {
    const auto items = menuBarItems(enabledMenuBarModules(defaults_), monitor_.readings(), defaults_);
    if (items.empty())
        return;
    const MenuBarStyle style = menuBarStyle(defaults_);
    const QSizeF size = MenuBarRenderer::size(items, style);
    const double scale = std::min(rowScale, (width() - 2 * sidePadding) / size.width());
    painter.translate((width() - size.width() * scale) / 2, headerHeight + (rowArea - size.height() * scale) / 2);
    painter.scale(scale, scale);
    MenuBarRenderer::paint(painter, items, style, defaults_.boolean(preference_key::menuBarColorize), palette);
}

} // namespace vantrix
