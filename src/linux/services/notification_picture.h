#pragma once

#include <QByteArray>
#include <QDBusArgument>

namespace vantrix {

/// A picture as org.freedesktop.Notifications takes it in its hint "image-data": (iiibiiay).
struct NotificationPicture {
    int width = 0;
    int height = 0;
    int bytesPerLine = 0;
    bool hasAlpha = true; ///< not multiplied into the colours
    int bitsPerSample = 8;
    int channels = 4; ///< red first
    QByteArray bytes;

    bool operator==(const NotificationPicture&) const = default;
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotificationPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotificationPicture& picture);

/// The program's icon.
NotificationPicture programPicture();

} // namespace vantrix
