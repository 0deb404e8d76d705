#include "popover/charts/stat_row.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QStyle>

#include "menubar/symbol.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double textSize = 11.0;
constexpr double markerSide = 7.0;
constexpr double markerRadius = 2.0;
constexpr double gap = 6.0;
constexpr double symbolSide = 13.0;
constexpr double symbolGap = 4.0;
constexpr double leadSymbolSide = 15.0;
constexpr double unbounded = 1e6;

const QFontMetricsF& metricsOf(const Theme& theme) {
    return theme.measure(textSize).metrics();
}

} // namespace

StatRow::StatRow(const Theme& theme, const QString& label, const Lead& lead) : View(theme), label_(label), lead_(lead) {
    // Not Fixed: that would keep the height of one line even where the text needs two.
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void StatRow::setLabel(const QString& label) {
    if (label == label_)
        return;
    label_ = label;
    updateGeometry();
    update();
}

void StatRow::setValue(const QString& value) {
    if (value == value_)
        return;
    const int before = heightForWidth(width());
    value_ = value;
    if (heightForWidth(width()) != before)
        updateGeometry();
    updateToolTip();
    update();
    announceChange();
}

void StatRow::setMarker(ColorRole color) {
    if (color == lead_.marker)
        return;
    lead_.marker = color;
    update();
}

void StatRow::setValueColor(ColorRole color) {
    if (color == valueColor_)
        return;
    valueColor_ = color;
    update();
}

void StatRow::setSymbol(std::string_view symbol) {
    if (symbol == symbol_)
        return;
    symbol_ = symbol;
    updateGeometry();
    update();
}

void StatRow::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

/// A value too long even for a line of its own is shown whole there.
void StatRow::updateToolTip() {
    tellInToolTip(leadWidth() + valueWidth() > width() ? value_ : QString());
}

QString StatRow::accessibleText() const {
    const QString text = label_ + QStringLiteral(": ") + value_;
    return note_.isEmpty() ? text : text + QStringLiteral(", ") + note_;
}

double StatRow::leadWidth() const {
    if (!lead_.symbol.empty())
        return std::round(theme().scaled(leadSymbolSide)) + gap;
    return lead_.indented ? markerSide + gap : 0.0;
}

double StatRow::symbolWidth() const {
    return symbol_.empty() ? 0.0 : std::round(theme().scaled(symbolSide)) + symbolGap;
}

double StatRow::labelWidth() const {
    return std::ceil(theme().measure(textSize).width(label_));
}

double StatRow::valueWidth() const {
    return std::ceil(theme().digits(textSize).width(value_.toStdString())) + symbolWidth();
}

bool StatRow::fitsOneLine(double width) const {
    return leadWidth() + labelWidth() + gap + valueWidth() <= width;
}

/// Names of devices may be longer than a line without a single space.
int StatRow::wrapFlag(double width) const {
    const auto words = label_.split(u' ');
    const bool doAllFit = std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return theme().measure(textSize).width(word) <= width;
    });
    return doAllFit ? Qt::TextWordWrap : Qt::TextWrapAnywhere;
}

double StatRow::labelHeight(double width) const {
    const QRectF room(0, 0, std::max(width - leadWidth(), 1.0), unbounded);
    return std::ceil(metricsOf(theme()).boundingRect(room, wrapFlag(room.width()), label_).height());
}

QSize StatRow::sizeHint() const {
    const double wanted = leadWidth() + labelWidth() + gap + valueWidth();
    return {static_cast<int>(wanted), static_cast<int>(std::ceil(metricsOf(theme()).height()))};
}

QSize StatRow::minimumSizeHint() const {
    return {static_cast<int>(leadWidth() + theme().scaled(40.0)), sizeHint().height()};
}

int StatRow::heightForWidth(int width) const {
    const double line = std::ceil(metricsOf(theme()).height());
    return static_cast<int>(fitsOneLine(width) ? line : labelHeight(width) + line);
}

double StatRow::baseline(const QRectF& line) const {
    const QFontMetricsF& metrics = metricsOf(theme());
    return std::round(line.top() + (line.height() - metrics.height()) / 2.0 + metrics.ascent());
}

void StatRow::paintLead(QPainter& painter) const {
    // Beside the first line, centred on its letters, most of which are small: of two places the lower one.
    const QRectF line(0.0, 0.0, 0.0, std::min<double>(metricsOf(theme()).height(), height()));
    const double side = lead_.symbol.empty() ? markerSide : leadWidth() - gap;
    const double top = std::ceil(baseline(line) - (theme().digits(textSize).capHeight() + side) / 2.0);
    const QRect place(0, static_cast<int>(top), static_cast<int>(side), static_cast<int>(side));
    if (!lead_.symbol.empty())
        return paintSymbol(painter, lead_.symbol, QStyle::visualRect(layoutDirection(), rect(), place),
                           theme().colors().secondary);
    if (lead_.marker == nullptr)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().colors().*lead_.marker);
    painter.drawRoundedRect(QStyle::visualRect(layoutDirection(), rect(), place), markerRadius, markerRadius);
}

void StatRow::paintLabel(QPainter& painter, const QRectF& place) const {
    painter.setFont(theme().font(textSize));
    painter.setPen(theme().colors().secondary);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    if (fitsOneLine(width())) {
        const double x = mirrored ? place.right() - labelWidth() : place.left();
        return painter.drawText(QPointF(x, baseline(place)), label_);
    }
    const auto side = static_cast<int>(mirrored ? Qt::AlignRight : Qt::AlignLeft);
    painter.drawText(place, side | Qt::AlignTop | wrapFlag(place.width()), label_);
}

void StatRow::paintValue(QPainter& painter, const QRectF& place) const {
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const double shownWidth = std::min(valueWidth(), place.width());
    double x = mirrored ? place.left() : place.right() - shownWidth;
    if (!symbol_.empty()) {
        const double side = symbolWidth() - symbolGap;
        const double middle = baseline(place) - theme().digits(textSize).capHeight() / 2.0;
        const double symbolX = mirrored ? x + shownWidth - side : x;
        paintSymbol(painter, symbol_, QRectF(symbolX, middle - side / 2.0, side, side),
                    valueColor(theme().colors().secondary));
        x += mirrored ? 0.0 : symbolWidth();
    }
    if (valueWidth() <= place.width())
        return theme().digits(textSize).draw(painter, {x, baseline(place)}, value_.toStdString(),
                                             valueColor(theme().colors().label));
    painter.setFont(theme().font(textSize));
    painter.setPen(valueColor(theme().colors().label));
    const double room = place.width() - symbolWidth();
    painter.drawText(QPointF(x, baseline(place)), metricsOf(theme()).elidedText(value_, Qt::ElideMiddle, room));
}

QColor StatRow::valueColor(const QColor& usual) const {
    return valueColor_ != nullptr ? theme().colors().readable(theme().colors().*valueColor_) : usual;
}

void StatRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintLead(painter);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QRectF room(mirrored ? 0.0 : leadWidth(), 0.0, width() - leadWidth(), height());
    if (fitsOneLine(width())) {
        paintLabel(painter, room);
        return paintValue(painter, room);
    }
    const double top = labelHeight(width());
    paintLabel(painter, QRectF(room.left(), 0.0, room.width(), top));
    paintValue(painter, QRectF(room.left(), top, room.width(), height() - top));
}

} // namespace vantrix
