#include "linux/services/linux_widget_center.h"

#include <QDBusMessage>
#include <QFileInfo>

#include "linux/services/session_bus.h"
#include "linux/settings/base_folders.h"
#include "linux/settings/group_file.h"

namespace vantrix {

QString widgetStorePath() {
    QString base = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QDir::isAbsolutePath(base) || !QFileInfo(base).isDir())
        base = baseFolder("XDG_STATE_HOME", QStringLiteral("/.local/state"));
    return base + QStringLiteral("/vantrix/defaults.json");
}

LinuxWidgetCenter::LinuxWidgetCenter(const QString& path, const std::optional<QDBusConnection>& bus)
    : path_(QFile::encodeName(path).toStdString()), bus_(bus) {}

void LinuxWidgetCenter::store(std::string_view key, std::string_view json) {
    writeGroupFile(path_, key, json);
}

void LinuxWidgetCenter::reloadAllTimelines() {
    if (!bus_)
        return;
    auto signal = QDBusMessage::createSignal(QStringLiteral("/vantrix/WidgetCenter"),
                                             QStringLiteral("vantrix.WidgetCenter"), QStringLiteral("Reload"));
    signal << QFile::decodeName(path_.c_str());
    bus_->send(signal);
}

std::unique_ptr<WidgetCenter> makeWidgetCenter() {
    if (!sessionBusAddress())
        return std::make_unique<LinuxWidgetCenter>(widgetStorePath(), std::nullopt);
    // The toolkit has this connection open anyway.
    return std::make_unique<LinuxWidgetCenter>(widgetStorePath(), QDBusConnection::sessionBus());
}

} // namespace vantrix
