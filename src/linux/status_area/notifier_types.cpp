#include "linux/status_area/notifier_types.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace vantrix {

NotifierPixmap emptyNotifierPixmap(QSize size) {
    return {size.width(), size.height(), QByteArray(qsizetype{4} * size.width() * size.height(), '\0')};
}

void putInto(NotifierPixmap& pixmap, QPoint place, const QImage& image, bool premultiplied) {
    const QImage argb =
        image.convertToFormat(premultiplied ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32);
    char* to = pixmap.bytes.data() + 4 * (qsizetype{place.y()} * pixmap.width + place.x());
    for (int y = 0; y < argb.height(); ++y)
        qToBigEndian<quint32>(argb.constScanLine(y), argb.width(), to + qsizetype{4} * y * pixmap.width);
}

NotifierPixmap toNotifierPixmap(const QImage& image, bool premultiplied) {
    NotifierPixmap pixmap = emptyNotifierPixmap(image.size());
    putInto(pixmap, {}, image, premultiplied);
    return pixmap;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

void registerNotifierTypes() {
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
}

} // namespace vantrix
