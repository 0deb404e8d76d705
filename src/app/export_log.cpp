#include "app/export_log.h"

#include <cstdio>

#include <QBuffer>
#include <QDir>
#include <QSaveFile>

namespace vantrix {

void ExportLog::log(const QString& message) {
    QDir().mkpath(folder_);
    const QByteArray line = message.toUtf8() + '\n';
    std::fprintf(stderr, "   [export] %s", line.constData());
    // Opened for each line and not locked, so that even a run that hangs can still report it.
    QFile file(folder_ + QStringLiteral("/export.log"));
    const auto mode = isFirst_.exchange(false) ? QIODevice::Truncate : QIODevice::Append;
    if (file.open(QIODevice::WriteOnly | mode))
        file.write(line);
}

void ExportLog::save(const QString& name, const QImage& image) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return log(QStringLiteral("ERRORE: PNG non generato per ") + name);
    QSaveFile file(folder_ + u'/' + name + QStringLiteral(".png"));
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit())
        log(QStringLiteral("salvato ") + name + QStringLiteral(".png"));
    else
        log(QStringLiteral("ERRORE scrittura ") + name + QStringLiteral(": ") + file.errorString());
}

} // namespace vantrix
