#include <QDateTime>
#include <QFileInfo>

#include "linux/services/linux_service_diagnosis.h"
#include "linux/services/linux_widget_center.h"
#include "linux/settings/autostart_entry.h"
#include "linux/settings/file_defaults_store.h"
#include "linux/settings/settings_file.h"

namespace vantrix {
namespace {

SourceDiagnosis settings() {
    using State = SettingsFile::State;
    const QString path = FileDefaultsStore::settingsPath();
    const SettingsFile file = readSettingsFile(path);
    SourceDiagnosis row{"Settings", path.toStdString()};
    switch (file.state) {
    case State::missing:
        row.value = "defaults"; // the file comes with the first change
        return row;
    case State::good:
        row.value = std::to_string(file.values.size()) + (file.values.size() == 1 ? " entry" : " entries");
        return row;
    case State::damaged:
        row.reason = std::string("The file ") + file.problem + "; defaults stand in. The next change sets it aside.";
        break;
    case State::blocked:
        row.reason = std::string("The file ") + file.problem + "; it is left alone, and no change is kept.";
        break;
    }
    row.state = QFileInfo(path).isReadable() ? SourceState::damaged : SourceState::denied;
    if (row.state == SourceState::denied)
        row.reason += " Give yourself the right: chmod u+rw on it.";
    return row;
}

SourceDiagnosis widgetData() {
    const QFileInfo file(widgetStorePath());
    SourceDiagnosis row{"Widget data", file.filePath().toStdString()};
    if (file.exists()) {
        const qint64 age = std::max(file.lastModified().secsTo(QDateTime::currentDateTime()), qint64{0});
        row.value = "written " + std::to_string(age) + " s ago";
    } else {
        row.state = SourceState::absent;
        row.reason = "The running program writes it on each pass.";
    }
    return row;
}

SourceDiagnosis loginItem() {
    const AutostartEntry entry(AutostartEntry::Places::standard());
    return {"Login item", entry.userFile().toStdString(), SourceState::ok, entry.isEnabled() ? "on" : "off", {}};
}

} // namespace

std::vector<SourceDiagnosis> diagnoseOwnFiles() {
    return {settings(), widgetData(), loginItem()};
}

} // namespace vantrix
