#include "linux/settings/desktop_config.h"

#include <QStandardPaths>
#include <QStringList>

namespace vantrix {

DesktopConfig::DesktopConfig(const QString& name) {
    for (const QString& path : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, name))
        files_.push_back(std::make_unique<QSettings>(path, QSettings::IniFormat));
}

QVariant DesktopConfig::value(const QString& key) const {
    for (const auto& file : files_) {
        QVariant value = file->value(key);
        if (value.isValid())
            return value;
    }
    return {};
}

QString DesktopConfig::text(const QString& key) const {
    return value(key).toStringList().join(u',');
}

std::optional<QColor> DesktopConfig::color(const QString& key) const {
    return colorOf(value(key));
}

std::optional<int> DesktopConfig::number(const QString& key) const {
    const int number = value(key).toInt();
    return number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<QColor> DesktopConfig::colorOf(const QVariant& value) {
    const QStringList parts = value.toStringList(); // the commas make a list of it
    if (parts.size() < 3)
        return std::nullopt;
    const QColor color(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
    return color.isValid() ? std::optional(color) : std::nullopt;
}

} // namespace vantrix
