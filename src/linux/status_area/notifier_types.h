#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QString>

namespace vantrix {

/// One size of an icon as StatusNotifierItem sends it: ARGB, most significant byte first.
struct NotifierPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    bool operator==(const NotifierPixmap&) const = default;
};

using NotifierPixmaps = QList<NotifierPixmap>;

/// (sa(iiay)ss)
struct NotifierToolTip {
    QString iconName;
    NotifierPixmaps icon;
    QString title;
    QString text;
};

/// With straight alpha, as hosts expect it, or `premultiplied`.
NotifierPixmap toNotifierPixmap(const QImage& image, bool premultiplied = false);

/// Transparent.
NotifierPixmap emptyNotifierPixmap(QSize size);

/// Replaces the part of the pixmap where `image` lies with its corner at `place`, all of it within.
void putInto(NotifierPixmap& pixmap, QPoint place, const QImage& image, bool premultiplied);

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

/// Makes the types above known to QtDBus; harmless when repeated.
void registerNotifierTypes();

} // namespace vantrix
