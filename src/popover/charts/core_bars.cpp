#include "popover/charts/core_bars.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "popover/charts/threshold_color.h"
#include "support/text_format.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double rowHeight = 30.0;
constexpr double spacing = 3.0;
constexpr double least = 3.0;      // an idle core still shows a stub
constexpr double leastWidth = 3.0; // of a bar; thinner ones cannot be told apart
constexpr double cornerRadius = 2.0;

// For more cores than one row of the usual kind holds.
constexpr double denseSpacing = 1.0;
constexpr double denseHeight = 20.0;

struct Grid {
    std::size_t columns = 1;
    std::size_t rows = 1;
    double spacing = 0.0;
    double rowHeight = 0.0;
};

std::size_t columnsOf(double width, double spacing) {
    return static_cast<std::size_t>(std::max(1.0, std::floor((width + spacing) / (leastWidth + spacing))));
}

Grid gridFor(std::size_t count, double width) {
    if (count <= columnsOf(width, spacing))
        return {std::max<std::size_t>(count, 1), 1, spacing, rowHeight};
    const std::size_t most = columnsOf(width, denseSpacing);
    const std::size_t rows = (count + most - 1) / most;
    const std::size_t columns = (count + rows - 1) / rows; // all rows are equally long but the last
    return {columns, rows, denseSpacing, rows == 1 ? rowHeight : denseHeight};
}

} // namespace

CoreBars::CoreBars(const Theme& theme, const UserDefaults& defaults) : View(theme), defaults_(defaults) {
    // Not Fixed: that would keep the height of one row even where the cores need more.
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CoreBars::setValues(std::span<const double> values) {
    if (values.size() != values_.size())
        updateGeometry();
    if (std::equal(values.begin(), values.end(), values_.begin(), values_.end()))
        return update(); // the thresholds may have changed
    values_.assign(values.begin(), values.end());
    announceChange();
    update();
}

QRectF CoreBars::track(std::size_t index, double width) const {
    const Grid grid = gridFor(values_.size(), width);
    const auto column = static_cast<double>(index % grid.columns);
    const std::size_t row = index / grid.columns;
    const auto columns = static_cast<double>(grid.columns);
    const double barWidth = (width - grid.spacing * (columns - 1.0)) / columns;
    return {column * (barWidth + grid.spacing), static_cast<double>(row) * (grid.rowHeight + spacing), barWidth,
            grid.rowHeight};
}

QRectF CoreBars::bar(std::size_t index, double width) const {
    QRectF bar = track(index, width);
    bar.setTop(bar.bottom() - std::max(bar.height() * std::clamp(values_[index], 0.0, 1.0), least));
    return bar;
}

QString CoreBars::accessibleText() const {
    QString text = localizedText("Load of each core");
    for (std::size_t i = 0; i < values_.size(); ++i)
        text += QLatin1StringView(i == 0 ? ": " : ", ") + QString::fromStdString(compactPercent(values_[i]));
    return text;
}

QSize CoreBars::sizeHint() const {
    return {60, static_cast<int>(rowHeight)};
}

int CoreBars::heightForWidth(int width) const {
    if (values_.empty())
        return static_cast<int>(rowHeight);
    return static_cast<int>(std::ceil(track(values_.size() - 1, width).bottom()));
}

void CoreBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto fill = [&](const QRectF& place, const QColor& color) {
        QRectF rect = mirrored(*this, place);
        // Edges between pixels would blur, and equal bars would look different.
        const double pixels = devicePixelRatioF();
        rect.setLeft(std::round(rect.left() * pixels) / pixels);
        rect.setRight(std::round(rect.right() * pixels) / pixels);
        const double radius = std::min(cornerRadius, rect.width() / 3.0);
        painter.setBrush(color);
        painter.drawRoundedRect(rect, radius, radius);
    };
    for (std::size_t i = 0; i < values_.size(); ++i) {
        fill(track(i, width()), theme().colors().quaternary);
        fill(bar(i, width()), theme().colors().*thresholdColor(values_[i], defaults_));
    }
}

} // namespace vantrix
