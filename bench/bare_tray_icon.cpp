// The least that a program of this toolkit can cost in a status area: an icon drawn anew, and its tool tip, every two
// seconds. Peers are compared with it.

#include <QApplication>
#include <QPainter>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {

QPixmap picture(int number) {
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::white);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QString::number(number));
    return pixmap;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QSystemTrayIcon icon;
    int number = 0;
    const auto update = [&] {
        number = (number + 7) % 100;
        icon.setIcon(picture(number));
        icon.setToolTip(QStringLiteral("%1 %").arg(number));
    };
    update();
    icon.show();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, update);
    timer.start(2000);
    return QApplication::exec();
}
