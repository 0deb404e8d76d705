#include "popover/charts/program_row.h"

#include <algorithm>
#include <cmath>

#include <QFileIconProvider>
#include <QFileInfo>
#include <QPainter>

#include "menubar/symbol.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr const char* anyProgram = "macwindow";
constexpr double nameSize = 11.0;
constexpr double smallestIcon = 18.0;
constexpr double iconGap = 8.0;
constexpr double valueGap = 8.0;
constexpr double barGap = 2.0;
constexpr double shareHeight = 3.0;

/// Pictures by a path, bundles by theirs, everything else from the icon theme.
QIcon iconOf(const std::string& icon) {
    const QString name = QString::fromStdString(icon);
    if (!name.startsWith(u'/'))
        return name.isEmpty() ? QIcon() : QIcon::fromTheme(name);
    const QFileInfo file(name);
    return file.isDir() ? QFileIconProvider().icon(file) : QIcon(name);
}

} // namespace

ProgramRow::ProgramRow(const Theme& theme) : View(theme) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgramRow::show(const std::string& name, const std::string& icon, const QString& value, double fraction) {
    const QString text = QString::fromStdString(name);
    if (text == name_ && icon == iconName_ && value == value_ && fraction == fraction_)
        return;
    name_ = text;
    value_ = value;
    fraction_ = std::clamp(fraction, 0.0, 1.0);
    setIcon(icon);
    updateToolTip();
    update();
    announceChange();
}

void ProgramRow::setIcon(const std::string& icon) {
    if (icon == iconName_)
        return;
    iconName_ = icon;
    icon_ = iconOf(icon);
}

QAccessible::Role ProgramRow::accessibleRole() const {
    return name_.isEmpty() ? QAccessible::NoRole : QAccessible::StaticText;
}

QString ProgramRow::accessibleText() const {
    return name_.isEmpty() ? QString() : name_ + QStringLiteral(": ") + value_;
}

QSize ProgramRow::sizeHint() const {
    const double line = std::ceil(theme().measure(nameSize).metrics().height());
    return {120, static_cast<int>(std::max(line + barGap + shareHeight, iconSide()))};
}

double ProgramRow::iconSide() const {
    return std::round(theme().scaled(smallestIcon));
}

/// The line's part between icon and value.
QRectF ProgramRow::nameRoom() const {
    const double left = iconSide() + iconGap;
    const double taken = std::ceil(theme().digits(nameSize).width(value_.toStdString())) + valueGap;
    return {left, 0.0, std::max(width() - left - taken, 0.0), height() - barGap - shareHeight};
}

void ProgramRow::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void ProgramRow::updateToolTip() {
    tellInToolTip(theme().measure(nameSize).width(name_) > nameRoom().width() ? name_ : QString());
}

void ProgramRow::paintEvent(QPaintEvent*) {
    if (name_.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors& colors = theme().colors();
    const double side = iconSide();
    const QRectF picture = mirrored(*this, {0.0, std::floor((height() - side) / 2.0), side, side});
    if (icon_.isNull())
        paintSymbol(painter, anyProgram, picture.adjusted(1, 1, -1, -1), colors.secondary);
    else
        icon_.paint(&painter, picture.toRect());

    const QFontMetricsF& metrics = theme().measure(nameSize).metrics();
    const QRectF room = nameRoom();
    const double baseline = std::round((room.height() - metrics.height()) / 2.0 + metrics.ascent());
    const QString name = metrics.elidedText(name_, Qt::ElideRight, room.width());
    const double nameWidth = metrics.horizontalAdvance(name);
    painter.setFont(theme().font(nameSize));
    painter.setPen(colors.secondary);
    painter.drawText(QPointF(mirrored(*this, {room.left(), 0.0, nameWidth, 1.0}).left(), baseline), name);
    const double valueWidth = theme().digits(nameSize).width(value_.toStdString());
    theme().digits(nameSize).draw(painter,
                                  {mirrored(*this, {width() - valueWidth, 0.0, valueWidth, 1.0}).left(), baseline},
                                  value_.toStdString(), colors.label);

    QRectF bar(room.left(), height() - shareHeight, width() - room.left(), shareHeight);
    painter.fillPath(continuousRect(mirrored(*this, bar), shareHeight / 2.0), colors.quaternary);
    bar.setWidth(bar.width() * fraction_);
    if (bar.width() >= 1.0)
        painter.fillPath(continuousRect(mirrored(*this, bar), shareHeight / 2.0), colors.accent);
}

} // namespace vantrix
