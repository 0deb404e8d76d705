#pragma once

#include <chrono>

#include <QFileSystemWatcher>
#include <QHash>
#include <QJsonObject>
#include <QTimer>

#include "linux/settings/settings_file.h"
#include "support/user_defaults.h"

namespace vantrix {

/// Settings in one file: a flat JSON object that a person may edit at any time, with the program running or not.
///
/// Writes are gathered for a moment and merged into what the file holds by then, so that neither an edit by hand nor
/// an entry this program does not know is lost. A damaged file is set aside before it is replaced. What cannot be
/// written stays in memory and is tried again after growing pauses.
class FileDefaultsStore final : public DefaultsStore {
  public:
    /// Reads the file at once; it need not exist. New files are for the user's eyes only (0600).
    explicit FileDefaultsStore(const QString& path);
    ~FileDefaultsStore() override;

    /// $XDG_CONFIG_HOME/vantrix/settings.json
    static QString settingsPath();

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;

    void flush() override;

  private:
    /// The entries as they will be once everything is written.
    QJsonObject entries() const;
    void load();
    /// True when the file had changed and entries differ from before.
    bool reloadIfChanged();
    /// The same, then writes what is pending.
    bool merge();
    void reread();
    void write();
    bool mayWrite();
    void watch();
    void complainOnce(bool& complained, const QByteArray& problem, const char* consequence) const;

    const QString path_;
    QString target_; ///< where `path_` leads
    SettingsFile file_;
    QHash<QString, QJsonValue> pending_; ///< undefined: to be removed
    QTimer writeTimer_;
    std::chrono::milliseconds pause_; ///< before the next attempt, once one has failed
    QTimer rereadTimer_;
    QFileSystemWatcher watcher_;
    bool isEnding_ = false;
    bool complainedOfReading_ = false;
    bool complainedOfWriting_ = false;
};

} // namespace vantrix
