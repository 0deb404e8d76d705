#include "linux/settings/file_defaults_store.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QFileInfo>
#include <QJsonDocument>

#include "linux/settings/base_folders.h"
#include "linux/settings/file_writing.h"
#include "platform/desktop_services.h"

namespace vantrix {

namespace {

using namespace std::chrono_literals;
using State = SettingsFile::State;

/// Long enough for the moves of a slider to become one write.
constexpr auto writeDelay = 200ms;
/// Long enough for an editor, which may write in several steps, to finish.
constexpr auto rereadDelay = 50ms;
/// Before what could not be written is tried again; doubled each time.
constexpr auto firstPause = 500ms;
constexpr auto longestPause = 5min;
/// With another instance that is writing; at the end, one that hangs must not cost the changes.
constexpr auto lockPatience = 50ms;
constexpr auto lastPatience = 3s;

QString nearestFolder(const QString& file) {
    QFileInfo folder(QFileInfo(file).path());
    while (!folder.isDir() && !folder.isRoot() && folder.path() != folder.filePath())
        folder.setFile(folder.path());
    return folder.filePath();
}

bool allowed(const QString& path, int kind) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), kind, AT_EACCESS) == 0;
}

} // namespace

FileDefaultsStore::FileDefaultsStore(const QString& path) : path_(path), target_(linkTarget(path)), pause_(firstPause) {
    writeTimer_.setSingleShot(true);
    QObject::connect(&writeTimer_, &QTimer::timeout, &writeTimer_, [this] { flush(); });
    rereadTimer_.setSingleShot(true);
    rereadTimer_.setInterval(rereadDelay);
    QObject::connect(&rereadTimer_, &QTimer::timeout, &rereadTimer_, [this] { reread(); });
    const auto readSoon = [this] {
        if (!rereadTimer_.isActive())
            rereadTimer_.start();
    };
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &rereadTimer_, readSoon);
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &rereadTimer_, readSoon);
    removeStrays(QFile::encodeName(target_).toStdString());
    watch();
    load();
}

FileDefaultsStore::~FileDefaultsStore() {
    // The owner is being destroyed too and must not be called any more.
    changedOutside = nullptr;
    isEnding_ = true;
    flush();
}

QString FileDefaultsStore::settingsPath() {
    return baseFolder("XDG_CONFIG_HOME", QStringLiteral("/.config")) + QStringLiteral("/vantrix/settings.json");
}

QVariant FileDefaultsStore::value(const QString& key) const {
    const auto pending = pending_.find(key);
    const QJsonValue value = pending != pending_.end() ? *pending : file_.values.value(key);
    if (value.isBool() || value.isDouble() || value.isString())
        return value.isDouble() ? QVariant(value.toDouble()) : value.toVariant();
    return {};
}

void FileDefaultsStore::setValue(const QString& key, const QVariant& value) {
    pending_.insert(key, value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue::Undefined);
    if (!writeTimer_.isActive())
        writeTimer_.start(writeDelay);
}

void FileDefaultsStore::flush() {
    writeTimer_.stop();
    if (pending_.isEmpty())
        return;
    const bool edited = merge();
    if (pending_.isEmpty()) {
        pause_ = firstPause;
    } else {
        writeTimer_.start(pause_);
        pause_ = std::min<std::chrono::milliseconds>(2 * pause_, longestPause);
    }
    if (edited && changedOutside)
        changedOutside();
}

/// Another instance must not write between the reading and the writing, or its changes would be undone.
bool FileDefaultsStore::merge() {
    const auto patience = isEnding_ ? lastPatience : lockPatience;
    const FolderLock lock(QFile::encodeName(QFileInfo(target_).path()).toStdString(), patience);
    if (lock.isBusy() && !isEnding_)
        return false; // it is tried again
    const bool edited = reloadIfChanged();
    write();
    return edited;
}

QJsonObject FileDefaultsStore::entries() const {
    QJsonObject entries = file_.values;
    for (auto entry = pending_.begin(); entry != pending_.end(); ++entry) {
        if (entry->isUndefined())
            entries.remove(entry.key());
        else
            entries.insert(entry.key(), *entry);
    }
    return entries;
}

void FileDefaultsStore::load() {
    QJsonObject lastGood = std::move(file_.values);
    file_ = readSettingsFile(target_);
    if (file_.state == State::good || file_.state == State::missing) {
        complainedOfReading_ = false;
        return;
    }
    complainOnce(complainedOfReading_, file_.problem,
                 file_.state == State::blocked ? "settings are kept in memory only"
                 : lastGood.isEmpty()          ? "going on with the default settings"
                                               : "going on with the settings read before");
    file_.values = std::move(lastGood);
}

bool FileDefaultsStore::reloadIfChanged() {
    target_ = linkTarget(path_);
    if (stampOf(path_) == file_.stamp)
        return false;
    const QJsonObject before = entries();
    load();
    return entries() != before;
}

void FileDefaultsStore::reread() {
    // First, so that no change falls between reading and watching.
    watch();
    if (reloadIfChanged() && changedOutside)
        changedOutside();
}

void FileDefaultsStore::write() {
    const QJsonObject wanted = entries();
    const bool sound = file_.state == State::good || file_.state == State::missing;
    if (sound && wanted == file_.values) {
        pending_.clear();
        return;
    }
    if (!mayWrite())
        return;
    const QByteArray contents = QJsonDocument(wanted).toJson();
    if (contents.size() > SettingsFile::sizeLimit)
        return complainOnce(complainedOfWriting_, "would become too large", "changes are kept in memory only");

    const bool worthKeeping = file_.state == State::damaged && file_.stamp && file_.stamp->size > 0;
    const Replaced replaced = replaceFile(target_, contents, {file_.mode, worthKeeping});
    if (!replaced.stamp)
        return complainOnce(complainedOfWriting_, "cannot be written: " + QByteArray(std::strerror(replaced.error)),
                            "changes are kept in memory until it can be written");
    file_.state = State::good;
    file_.stamp = replaced.stamp;
    file_.values = wanted;
    pending_.clear();
    complainedOfReading_ = complainedOfWriting_ = false;
}

bool FileDefaultsStore::mayWrite() {
    if (file_.state == State::blocked)
        return false;
    if (file_.state == State::missing && target_ == path_)
        makePrivateFolder(QFile::encodeName(QFileInfo(path_).path()).toStdString());
    // Replacing a file needs permission for the folder only, but a read-only file is meant to stay as it is.
    if (file_.state == State::good && !allowed(target_, W_OK)) {
        complainOnce(complainedOfWriting_, "is read-only", "changes are kept in memory only");
        return false;
    }
    return true;
}

void FileDefaultsStore::watch() {
    // A watch follows the file, not its name, so after a replacement it is on the old one.
    const QStringList stale = watcher_.files() + watcher_.directories();
    if (!stale.isEmpty())
        watcher_.removePaths(stale);
    QStringList paths{nearestFolder(path_)};
    const QString target = linkTarget(path_);
    if (target != path_)
        paths.append(nearestFolder(target));
    if (QFileInfo(target).isFile())
        paths.append(target);
    paths.removeDuplicates();
    // The toolkit would poll what it cannot watch every second.
    paths.removeIf([](const QString& each) { return !allowed(each, R_OK); });
    if (!paths.isEmpty())
        watcher_.addPaths(paths);
}

void FileDefaultsStore::complainOnce(bool& complained, const QByteArray& problem, const char* consequence) const {
    if (!std::exchange(complained, true))
        std::fprintf(stderr, "vantrix: %s %s; %s\n", qPrintable(path_), problem.constData(), consequence);
}

std::unique_ptr<DefaultsStore> makeStandardDefaultsStore() {
    return std::make_unique<FileDefaultsStore>(FileDefaultsStore::settingsPath());
}

} // namespace vantrix
