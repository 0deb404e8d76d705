#include "popover/headline.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double largeSize = 20.0;
constexpr double smallSize = 12.0;
constexpr double gap = 5.0;

const MonospacedFont& fontOf(const Theme& theme, bool large) {
    return large ? theme.digits(largeSize, QFont::DemiBold) : theme.digits(smallSize);
}

} // namespace

Headline::Headline(const Theme& theme) : View(theme) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Headline::setText(const QString& value, const QString& pattern) {
    const auto mark = std::max<qsizetype>(pattern.indexOf(u"%@"), 0);
    std::vector<Piece> pieces;
    for (const auto& [text, large] :
         {std::pair(pattern.left(mark), false), std::pair(value, true), std::pair(pattern.mid(mark + 2), false)})
        if (const QString piece = text.trimmed(); !piece.isEmpty())
            pieces.push_back({piece.toStdString(), large});
    if (pieces == pieces_)
        return;
    pieces_ = std::move(pieces);
    update();
    announceChange();
}

void Headline::setColor(ColorRole color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

QString Headline::accessibleText() const {
    QStringList texts;
    for (const Piece& piece : pieces_)
        texts += QString::fromStdString(piece.text);
    return texts.join(u' ');
}

double Headline::width(const Piece& piece) const {
    return fontOf(theme(), piece.large).width(piece.text);
}

double Headline::naturalWidth() const {
    double sum = 0.0;
    for (const Piece& piece : pieces_)
        sum += width(piece) + theme().scaled(gap);
    return std::max(sum - theme().scaled(gap), 0.0);
}

QSize Headline::sizeHint() const {
    const QFontMetricsF& metrics = theme().measure(largeSize, QFont::DemiBold).metrics();
    return {static_cast<int>(std::ceil(naturalWidth())), static_cast<int>(std::ceil(metrics.height()))};
}

void Headline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QFontMetricsF& metrics = theme().measure(largeSize, QFont::DemiBold).metrics();
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const double scale = std::min(1.0, QWidget::width() / std::max(naturalWidth(), 1.0));
    painter.translate(mirrored ? QWidget::width() : 0.0, std::round(metrics.ascent()));
    painter.scale(scale, scale);
    double x = 0.0;
    const ThemeColors& colors = theme().colors();
    for (const Piece& piece : pieces_) {
        const double advance = width(piece);
        const QColor value = color_ != nullptr ? colors.readable(colors.*color_) : colors.label;
        fontOf(theme(), piece.large)
            .draw(painter, {mirrored ? -x - advance : x, 0.0}, piece.text, piece.large ? value : colors.secondary);
        x += advance + theme().scaled(gap);
    }
}

} // namespace vantrix
