#include "linux/settings/autostart_entry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "linux/settings/base_folders.h"
#include "linux/settings/desktop_entry.h"
#include "posix/plain_file.h"

namespace vantrix {
namespace {

constexpr std::size_t mostBytes = 65536; // an entry is a few hundred

QString entryIn(const QString& folder) {
    return folder + QLatin1StringView("/vantrix.desktop");
}

QByteArray contentsOf(const QString& path) {
    return QByteArray::fromStdString(readPlainFile(QFile::encodeName(path).toStdString(), mostBytes).value_or(""));
}

/// The folders of a colon-separated variable; relative ones do not count.
QStringList foldersOf(const char* variable, const QString& standard) {
    const QString value = qEnvironmentVariable(variable);
    QStringList folders;
    for (const QString& folder : (value.isEmpty() ? standard : value).split(u':', Qt::SkipEmptyParts))
        if (folder.startsWith(u'/'))
            folders.append(folder + QLatin1StringView("/autostart"));
    return folders;
}

} // namespace

AutostartEntry::Places AutostartEntry::Places::standard() {
    return {baseFolder("XDG_CONFIG_HOME", QStringLiteral("/.config")) + QLatin1StringView("/autostart"),
            foldersOf("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg")), QCoreApplication::applicationFilePath()};
}

AutostartEntry::AutostartEntry(Places places) : places_(std::move(places)) {}

QString AutostartEntry::userFile() const {
    return entryIn(places_.userFolder);
}

QString AutostartEntry::systemFile() const {
    for (const QString& folder : places_.systemFolders)
        if (QFile::exists(entryIn(folder)))
            return entryIn(folder);
    return {};
}

bool AutostartEntry::isEnabled() const {
    // The user's file overrides the system's even when it is broken.
    const QString path = QFile::exists(userFile()) ? userFile() : systemFile();
    const auto entry = DesktopEntry::parse(path.isEmpty() ? QByteArray() : contentsOf(path));
    return entry && entry->startsSomething();
}

void AutostartEntry::setEnabled(bool enabled) {
    QByteArray entry = "[Desktop Entry]\nType=Application\nName=Vantrix\nIcon=vantrix\nTerminal=false\nExec=" +
                       execValue(places_.program).toUtf8() + '\n';
    if (enabled) {
        write(entry);
    } else if (!systemFile().isEmpty()) {
        write(entry + "Hidden=true\n");
    } else {
        QFile::remove(userFile());
    }
}

bool AutostartEntry::write(const QByteArray& contents) const {
    QSaveFile file(userFile());
    return QDir().mkpath(places_.userFolder) && file.open(QFile::WriteOnly) &&
           file.write(contents) == contents.size() && file.commit();
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return std::make_unique<AutostartEntry>(AutostartEntry::Places::standard());
}

} // namespace vantrix
