#include "linux/services/linux_widget_center.h"

#include <QDBusMessage>
#include <QFile>

#include "linux/services/session_bus.h"
#include "linux/settings/file_defaults_store.h"

namespace vantrix {

LinuxWidgetCenter::LinuxWidgetCenter(const QString& path, const std::optional<QDBusConnection>& bus)
    : file_(QFile::encodeName(path).toStdString()), bus_(bus) {}

void LinuxWidgetCenter::store(std::string_view key, std::string_view json) {
    file_.write(key, json);
}

void LinuxWidgetCenter::reloadAllTimelines() {
    if (!bus_)
        return;
    auto signal = QDBusMessage::createSignal(QStringLiteral("/vantrix/WidgetCenter"),
                                             QStringLiteral("vantrix.WidgetCenter"), QStringLiteral("Reload"));
    signal << QFile::decodeName(file_.path().c_str());
    bus_->send(signal);
}

std::unique_ptr<WidgetCenter> makeWidgetCenter() {
    const QString path = FileDefaultsStore::suitePath(QStringLiteral("vantrix"));
    if (!sessionBusAddress())
        return std::make_unique<LinuxWidgetCenter>(path, std::nullopt);
    // The toolkit has this connection open anyway.
    return std::make_unique<LinuxWidgetCenter>(path, QDBusConnection::sessionBus());
}

} // namespace vantrix
