#include "linux/services/notification_picture.h"

#include <QDBusMetaType>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace vantrix {

QDBusArgument& operator<<(QDBusArgument& argument, const NotificationPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytesPerLine << picture.hasAlpha << picture.bitsPerSample
             << picture.channels << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotificationPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.bytesPerLine >> picture.hasAlpha >> picture.bitsPerSample >>
        picture.channels >> picture.bytes;
    argument.endStructure();
    return argument;
}

NotificationPicture programPicture() {
    qDBusRegisterMetaType<NotificationPicture>();
    constexpr int side = 64; // what most services show, at twice the usual density
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/vantrix.svg")).render(&painter);
    painter.end();
    image.convertTo(QImage::Format_RGBA8888);
    return {.width = side,
            .height = side,
            .bytesPerLine = static_cast<int>(image.bytesPerLine()),
            .bytes = QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes())};
}

} // namespace vantrix
