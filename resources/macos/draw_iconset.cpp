// Draws the program's icon in every size that an iconset has: draw_iconset DRAWING.svg FOLDER.iconset

#include <cstdio>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

bool draw(QSvgRenderer& drawing, int side, const QString& path) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.save(path);
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QSvgRenderer drawing(arguments.value(1));
    const QDir folder(arguments.value(2));
    if (arguments.size() != 3 || !drawing.isValid() || !folder.mkpath(QStringLiteral("."))) {
        std::fputs("usage: draw_iconset DRAWING.svg FOLDER.iconset\n", stderr);
        return 2;
    }
    for (const int points : {16, 32, 128, 256, 512}) {
        const QString name = QStringLiteral("icon_%1x%1").arg(points);
        if (!draw(drawing, points, folder.filePath(name + QStringLiteral(".png"))) ||
            !draw(drawing, 2 * points, folder.filePath(name + QStringLiteral("@2x.png"))))
            return 1;
    }
    return 0;
}
