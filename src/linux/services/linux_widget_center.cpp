#include "linux/services/linux_widget_center.h"

#include <QDBusMessage>
#include <QFileInfo>

#include "linux/settings/base_folders.h"

namespace vantrix {

QString widgetStorePath() {
    QString base = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QDir::isAbsolutePath(base) || !QFileInfo(base).isDir())
        base = baseFolder("XDG_STATE_HOME", QStringLiteral("/.local/state"));
    return base + QStringLiteral("/vantrix/defaults.json");
}

LinuxWidgetCenter::LinuxWidgetCenter(const QString& path, std::shared_ptr<BusLink> link)
    : file_(QFile::encodeName(path).toStdString()), link_(std::move(link)) {}

void LinuxWidgetCenter::store(std::string_view key, std::string_view json) {
    file_.write(key, json);
}

void LinuxWidgetCenter::reloadAllTimelines() {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    auto signal = QDBusMessage::createSignal(QStringLiteral("/vantrix/WidgetCenter"),
                                             QStringLiteral("vantrix.WidgetCenter"), QStringLiteral("Reload"));
    signal << QFile::decodeName(file_.path().c_str());
    bus->send(signal);
}

std::unique_ptr<WidgetCenter> makeWidgetCenter() {
    return std::make_unique<LinuxWidgetCenter>(widgetStorePath(), sharedSessionBus());
}

} // namespace vantrix
