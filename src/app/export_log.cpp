#include "app/export_log.h"

#include <cstdio>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "platform/desktop_services.h"

namespace vantrix {

void ExportLog::log(const QString& message) {
    QDir().mkpath(folder_);
    const QByteArray line = message.toUtf8() + '\n';
    std::fprintf(stderr, "   [export] %s", line.constData());
    // Opened for each line and not locked, so that even a run that hangs can still report it.
    writePlainFile(QFile::encodeName(folder_ + QStringLiteral("/export.log")).toStdString(), line.toStdString(),
                   !isFirst_.exchange(false));
}

void ExportLog::lose(const QString& message) {
    hasLostPictures_ = true;
    log(message);
}

void ExportLog::save(const QString& name, const QImage& image) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return lose(QStringLiteral("ERRORE: PNG non generato per ") + name);
    QSaveFile file(folder_ + u'/' + name + QStringLiteral(".png"));
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit())
        log(QStringLiteral("salvato ") + name + QStringLiteral(".png"));
    else
        lose(QStringLiteral("ERRORE scrittura ") + name + QStringLiteral(": ") + file.errorString());
}

} // namespace vantrix
