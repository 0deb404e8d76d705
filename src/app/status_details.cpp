#include "app/status_details.h"

#include "monitor/readings.h"
#include "popover/reading_text.h"
#include "support/localization.h"
#include "views/view.h"

namespace vantrix {
namespace {

QString line(const QString& label, const QString& value) {
    return value.isEmpty() ? QString() : label + QStringLiteral(": ") + value;
}

/// Some hosts read tool tips as markup and some do not, so neither escaping nor leaving as it is suits all. A network's
/// name may hold anything, also the character at which a bus would end the text.
QString withoutMarkup(QString text) {
    return text.remove(QChar()).replace(u'<', u'\u2039').replace(u'>', u'\u203a').replace(u'&', u'\uff06').simplified();
}

QString memoryLine(const Readings& readings, const Units& units) {
    const MemorySample& memory = readings.memory;
    if (memory.total == 0)
        return {};
    return line(localizedText("Memory"), memoryText(usedMemory(memory), units.memory) + u' ' +
                                             localizedText("of %@", memoryText(memory.total, units.memory)));
}

QString networkLine(const Readings& readings, const Units&) {
    return line(localizedText("Network"),
                withoutMarkup(QString::fromStdString(readings.networkInfo.ssid.value_or(std::string()))));
}

QString diskLine(const Readings& readings, const Units&) {
    const DiskSample& disk = readings.disk;
    if (disk.total == 0)
        return {};
    const std::string free = formatted(localized("%@ free of %@"),
                                       {byteText(disk.available).toStdString(), byteText(disk.total).toStdString()});
    return line(localizedText("Disk"), QString::fromStdString(free));
}

QString temperatureLine(const Readings& readings, const Units& units) {
    const SensorsSample& sensors = readings.sensors;
    const std::pair<std::string_view, std::optional<double>> named[] = {
        {"CPU", sensors.cpu}, {"GPU", sensors.gpu}, {"SoC", sensors.soc}, {"SSD", sensors.ssd}};
    QStringList texts;
    for (const auto& [name, celsius] : named)
        if (celsius)
            texts += QString::fromStdString(localized(name)) + u' ' + temperatureText(*celsius, units.temperature);
    return line(localizedText("Temperature"), texts.join(QStringLiteral(" · ")));
}

QString powerLine(const Readings& readings, const Units&) {
    const SensorsSample& sensors = readings.sensors;
    if (sensors.systemPower)
        return line(localizedText("System power"), powerText(*sensors.systemPower));
    if (sensors.components && sensors.components->cpu)
        return line(localizedText("CPU power"), powerText(*sensors.components->cpu));
    return {};
}

struct Detail {
    MenuBarModule module;
    QString (*text)(const Readings&, const Units&);
};

constexpr Detail details[] = {{MenuBarModule::memory, memoryLine},
                              {MenuBarModule::network, networkLine},
                              {MenuBarModule::disk, diskLine},
                              {MenuBarModule::temperature, temperatureLine},
                              {MenuBarModule::temperature, powerLine}};

} // namespace

QString statusDetails(const Readings& readings, const Units& units, std::optional<MenuBarModule> module) {
    QStringList lines;
    for (const Detail& detail : details)
        if (!module || *module == detail.module)
            lines += detail.text(readings, units);
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace vantrix
