#include "linux/status_area/notifier_types.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace vantrix {

NotifierPixmap toNotifierPixmap(const QImage& image, bool premultiplied) {
    const QImage argb =
        image.convertToFormat(premultiplied ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32);
    const qsizetype row = qsizetype{argb.width()} * 4;
    NotifierPixmap pixmap{argb.width(), argb.height(), QByteArray(row * argb.height(), Qt::Uninitialized)};
    for (int y = 0; y < argb.height(); ++y)
        qToBigEndian<quint32>(argb.constScanLine(y), argb.width(), pixmap.bytes.data() + row * y);
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
