#include "linux/status_area/plasma_panel.h"

#include <QSettings>
#include <QStandardPaths>

#include "linux/settings/desktop_config.h"

namespace vantrix {

std::optional<QColor> plasmaPanelColor() {
    const QString ground = QStringLiteral("Colors:Window/BackgroundNormal");
    const QString theme = DesktopConfig(QStringLiteral("plasmarc")).text(QStringLiteral("Theme/name"));
    const QString colors = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation,
        QStringLiteral("plasma/desktoptheme/%1/colors").arg(theme.isEmpty() ? QStringLiteral("default") : theme));
    if (!colors.isEmpty())
        if (const auto own = DesktopConfig::colorOf(QSettings(colors, QSettings::IniFormat).value(ground)))
            return own;
    return DesktopConfig(QStringLiteral("kdeglobals")).color(ground);
}

} // namespace vantrix
