#include "linux/services/linux_widget_center.h"

#include <QDBusMessage>
#include <QFileInfo>

#include "linux/settings/base_folders.h"
#include "linux/settings/file_writing.h"
#include "linux/settings/group_file.h"

namespace vantrix {

QString widgetStorePath() {
    QString base = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QDir::isAbsolutePath(base) || !QFileInfo(base).isDir())
        base = baseFolder("XDG_STATE_HOME", QStringLiteral("/.local/state"));
    return base + QStringLiteral("/vantrix/defaults.json");
}

LinuxWidgetCenter::LinuxWidgetCenter(const QString& path, std::shared_ptr<BusLink> link)
    : path_(QFile::encodeName(path).toStdString()), link_(std::move(link)) {
    removeStrays(path_);
}

void LinuxWidgetCenter::store(std::string_view key, std::string_view json) {
    writeGroupFile(path_, key, json);
}

void LinuxWidgetCenter::reloadAllTimelines() {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    auto signal = QDBusMessage::createSignal(QStringLiteral("/vantrix/WidgetCenter"),
                                             QStringLiteral("vantrix.WidgetCenter"), QStringLiteral("Reload"));
    signal << QFile::decodeName(path_.c_str());
    bus->send(signal);
}

std::unique_ptr<WidgetCenter> makeWidgetCenter() {
    return std::make_unique<LinuxWidgetCenter>(widgetStorePath(), sharedSessionBus());
}

} // namespace vantrix
