#pragma once

#include <optional>

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

namespace vantrix {

/// What a desktop writes down about the look of its programs. Whatever it does not say is absent, or empty.
struct DesktopSettings {
    std::optional<QFont> font = {};
    std::optional<QColor> window = {};    ///< the ground of windows, dark or light
    std::optional<QColor> highlight = {}; ///< of what is selected
    QString iconTheme = {};
    std::optional<int> dragDistance = {}; ///< pixels that the pointer moves before it drags
    QStringList files = {};               ///< that were read
    QString userFile = {};                ///< the user's own, which may not be there yet

    /// Of the desktops that XDG_CURRENT_DESKTOP names. Reads files, a few kilobytes, and asks nobody.
    static DesktopSettings read();

    bool operator==(const DesktopSettings&) const = default;
};

/// True where the fonts and icons that GNOME's settings tell are the user's choice: on desktops without their own.
bool followsGnomeSettings();

/// "Cantarell Bold 11", as GNOME writes a font; absent where there is no size in it.
std::optional<QFont> gnomeFont(const QString& description);

} // namespace vantrix
