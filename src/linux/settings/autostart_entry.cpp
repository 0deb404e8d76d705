#include "linux/settings/autostart_entry.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "linux/settings/base_folders.h"
#include "linux/settings/desktop_entry.h"
#include "platform/application_service.h"
#include "posix/plain_file.h"

namespace vantrix {
namespace {

constexpr std::size_t mostBytes = 65536; // an entry is a few hundred

/// That of the menu entry: desktops have switches of their own for what they start, and know it by this name.
const QString& standardName() {
    static const QString name = QLatin1Char('/') + QLatin1StringView(applicationId) + QLatin1StringView(".desktop");
    return name;
}
/// An entry of the second name may be there, too, made by hand or by other means.
const QStringList& entryNames() {
    static const QStringList names{standardName(), QStringLiteral("/vantrix.desktop")};
    return names;
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
    for (const QString& name : entryNames())
        if (QFile::exists(places_.userFolder + name))
            return places_.userFolder + name;
    return places_.userFolder + standardName();
}

/// The most important folder's; empty where none has it.
QString AutostartEntry::systemFile(const QString& name) const {
    for (const QString& folder : places_.systemFolders)
        if (QFile::exists(folder + name))
            return folder + name;
    return {};
}

bool AutostartEntry::isEnabled() const {
    return std::ranges::any_of(entryNames(), [this](const QString& name) {
        // The user's file overrides the system's even when it is broken.
        const QString own = places_.userFolder + name;
        const QString path = QFile::exists(own) ? own : systemFile(name);
        const auto entry = DesktopEntry::parse(path.isEmpty() ? QByteArray() : contentsOf(path));
        return entry && entry->startsSomething();
    });
}

void AutostartEntry::setEnabled(bool enabled) {
    if (enabled && !write(standardName(), {}))
        return;
    for (const QString& name : entryNames())
        if (!enabled || name != standardName())
            disable(name); // of two that are on, the second start would open the popover
}

void AutostartEntry::disable(const QString& name) const {
    if (systemFile(name).isEmpty())
        QFile::remove(places_.userFolder + name);
    else
        write(name, "Hidden=true\n");
}

bool AutostartEntry::write(const QString& name, const QByteArray& more) const {
    const QByteArray entry = "[Desktop Entry]\nType=Application\nName=Vantrix\nIcon=vantrix\nTerminal=false\nExec=" +
                             execValue(places_.program).toUtf8() + '\n' + more;
    QSaveFile file(places_.userFolder + name);
    return QDir().mkpath(places_.userFolder) && file.open(QFile::WriteOnly) && file.write(entry) == entry.size() &&
           file.commit();
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return std::make_unique<AutostartEntry>(AutostartEntry::Places::standard());
}

} // namespace vantrix
