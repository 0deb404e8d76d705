#include "linux/status_area/plasma_panel.h"

#include <QSettings>
#include <QStandardPaths>

namespace vantrix {

namespace {

/// The first of the files of that name that says something; what a session has by default comes after the user's own.
QVariant configured(const QString& file, const QString& key) {
    for (const QString& path : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, file)) {
        QVariant value = QSettings(path, QSettings::IniFormat).value(key);
        if (value.isValid())
            return value;
    }
    return {};
}

/// "49,54,59", which is read as a list.
std::optional<QColor> colorOf(const QVariant& value) {
    const QStringList parts = value.toStringList();
    if (parts.size() < 3)
        return std::nullopt;
    const QColor color(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
    return color.isValid() ? std::optional(color) : std::nullopt;
}

} // namespace

std::optional<QColor> plasmaPanelColor() {
    const QString ground = QStringLiteral("Colors:Window/BackgroundNormal");
    const QString theme = configured(QStringLiteral("plasmarc"), QStringLiteral("Theme/name")).toString();
    const QString colors = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation,
        QStringLiteral("plasma/desktoptheme/%1/colors").arg(theme.isEmpty() ? QStringLiteral("default") : theme));
    if (!colors.isEmpty())
        if (const auto own = colorOf(QSettings(colors, QSettings::IniFormat).value(ground)))
            return own;
    return colorOf(configured(QStringLiteral("kdeglobals"), ground));
}

} // namespace vantrix
