#include "linux/services/desktop_settings.h"

#include <algorithm>

#include <QSettings>
#include <QStandardPaths>

#include "linux/settings/desktop_config.h"

namespace vantrix {
namespace {

const QString kdeFile = QStringLiteral("kdeglobals");
const QString lxqtFile = QStringLiteral("lxqt/lxqt.conf");

QStringList currentDesktops() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
}

QString userPathOf(const QString& file) {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + file;
}

QStringList pathsOf(const QString& file) {
    return QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, file);
}

/// A font as the toolkit writes it.
std::optional<QFont> toolkitFont(const QString& description) {
    QFont font;
    return !description.isEmpty() && font.fromString(description) ? std::optional(font) : std::nullopt;
}

/// "#efefef"
std::optional<QColor> namedColor(const QString& name) {
    const QColor color = QColor::fromString(name);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

/// A scheme's colour: written out among the settings, or in the scheme that they name.
std::optional<QColor> schemeColor(const DesktopConfig& config, const QString& key) {
    if (const auto color = config.color(key))
        return color;
    const QString scheme = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation,
        QStringLiteral("color-schemes/%1.colors").arg(config.text(QStringLiteral("ColorScheme"))));
    return scheme.isEmpty() ? std::nullopt : DesktopConfig::colorOf(QSettings(scheme, QSettings::IniFormat).value(key));
}

/// With what Plasma takes where nothing is written down. Keys without a group are those of the group "General".
DesktopSettings kdeSettings() {
    const DesktopConfig config(kdeFile);
    const QString icons = config.text(QStringLiteral("Icons/Theme"));
    const auto font = toolkitFont(config.text(QStringLiteral("font")));
    const auto highlight = schemeColor(config, QStringLiteral("Colors:Selection/BackgroundNormal"));
    return {.font = font ? font : QFont(QStringLiteral("Noto Sans"), 10),
            .window = schemeColor(config, QStringLiteral("Colors:Window/BackgroundNormal")),
            .highlight = highlight ? highlight : QColor(61, 174, 233),
            .iconTheme = icons.isEmpty() ? QStringLiteral("breeze") : icons,
            .dragDistance = config.number(QStringLiteral("KDE/StartDragDist")),
            .files = pathsOf(kdeFile),
            .userFile = userPathOf(kdeFile)};
}

DesktopSettings lxqtSettings() {
    const DesktopConfig config(lxqtFile);
    return {.font = toolkitFont(config.text(QStringLiteral("Qt/font"))),
            .window = namedColor(config.text(QStringLiteral("Palette/window_color"))),
            .highlight = namedColor(config.text(QStringLiteral("Palette/highlight_color"))),
            .iconTheme = config.text(QStringLiteral("icon_theme")),
            .dragDistance = {},
            .files = pathsOf(lxqtFile),
            .userFile = userPathOf(lxqtFile)};
}

bool isStyle(QStringView word) {
    static constexpr QStringView styles[] = {u"Thin", u"Light",     u"Book",  u"Regular", u"Medium",
                                             u"Bold", u"Semi-Bold", u"Black", u"Italic",  u"Oblique"};
    return std::any_of(std::begin(styles), std::end(styles), [word](QStringView style) { return word == style; });
}

} // namespace

DesktopSettings DesktopSettings::read() {
    const QStringList desktops = currentDesktops();
    if (desktops.contains(QStringLiteral("KDE")))
        return kdeSettings();
    if (desktops.contains(QStringLiteral("LXQt")))
        return lxqtSettings();
    return {};
}

bool followsGnomeSettings() {
    static const QStringList others{QStringLiteral("KDE"),  QStringLiteral("LXQt"),       QStringLiteral("XFCE"),
                                    QStringLiteral("MATE"), QStringLiteral("X-Cinnamon"), QStringLiteral("LXDE")};
    const QStringList desktops = currentDesktops();
    return std::none_of(desktops.begin(), desktops.end(), [](const QString& name) { return others.contains(name); });
}

std::optional<QFont> gnomeFont(const QString& description) {
    QStringList words = description.split(u' ', Qt::SkipEmptyParts);
    const double size = words.isEmpty() ? 0.0 : words.takeLast().toDouble();
    while (!words.isEmpty() && isStyle(words.back()))
        words.removeLast();
    if (words.isEmpty() || !(size > 0.0 && size < 1000.0))
        return std::nullopt;
    QFont font(words.join(u' '));
    font.setPointSizeF(size);
    return font;
}

} // namespace vantrix
