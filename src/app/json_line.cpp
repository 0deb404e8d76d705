#include "app/printed_line.h"

#include <algorithm>
#include <limits>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

using namespace Qt::StringLiterals;

namespace vantrix {
namespace {

/// A field of this value is left out of its object.
constexpr auto absent = QJsonValue::Undefined;

/// Qt's JSON has no unsigned 64-bit numbers; no machine counts more than 2^63 bytes.
QJsonValue json(std::uint64_t bytes) {
    return static_cast<qint64>(std::min<std::uint64_t>(bytes, std::numeric_limits<qint64>::max()));
}

QJsonValue json(const std::string& text) {
    return QString::fromStdString(text);
}

template<typename T>
QJsonValue json(const std::optional<T>& value) {
    return value ? QJsonValue(*value) : absent;
}

QJsonValue json(const std::optional<std::string>& text) {
    return text ? json(*text) : absent;
}

QJsonValue unlessEmpty(const QJsonObject& object) {
    return object.isEmpty() ? absent : QJsonValue(object);
}

QJsonObject toJson(const CPUSample& cpu) {
    QJsonArray cores;
    for (double core : cpu.perCore)
        cores.append(core);
    return {{u"total"_s, cpu.total}, {u"user"_s, cpu.user}, {u"system"_s, cpu.system}, {u"perCore"_s, cores}};
}

QJsonObject toJson(const MemorySample& memory) {
    return {{u"total"_s, json(memory.total)},       {u"app"_s, json(memory.app)},
            {u"wired"_s, json(memory.wired)},       {u"compressed"_s, json(memory.compressed)},
            {u"swapUsed"_s, json(memory.swapUsed)}, {u"pressure"_s, QLatin1StringView(wordOf(memory.pressure))}};
}

QJsonObject toJson(const NetworkSample& network) {
    return {{u"download"_s, network.download}, {u"upload"_s, network.upload}};
}

QJsonObject toJson(const NetworkInfo& info) {
    return {{u"kind"_s, QLatin1StringView(wordOf(info.kind))},
            {u"interface"_s, json(info.interface)},
            {u"displayName"_s, json(info.displayName)},
            {u"localIP"_s, json(info.localIP)},
            {u"ssid"_s, json(info.ssid)},
            {u"rssi"_s, json(info.rssi)},
            {u"noise"_s, json(info.noise)},
            {u"linkSpeedMbps"_s, json(info.linkSpeedMbps)},
            {u"ssidHiddenByPrivacy"_s, info.ssidHiddenByPrivacy ? QJsonValue(true) : absent},
            {u"debug"_s, json(info.debug)}};
}

QJsonObject toJson(const DiskSample& disk) {
    return {{u"total"_s, json(disk.total)},
            {u"available"_s, json(disk.available)},
            {u"readRate"_s, json(disk.readRate)},
            {u"writeRate"_s, json(disk.writeRate)}};
}

QJsonObject toJson(const FanReading& fan) {
    return {{u"id"_s, fan.id}, {u"rpm"_s, fan.rpm}, {u"minRPM"_s, json(fan.minRPM)}, {u"maxRPM"_s, json(fan.maxRPM)}};
}

QJsonObject toJson(const ComponentPower& power) {
    return {{u"cpu"_s, json(power.cpu)},
            {u"gpu"_s, json(power.gpu)},
            {u"ane"_s, json(power.ane)},
            {u"dram"_s, json(power.dram)}};
}

QJsonObject toJson(const TemperatureReading& reading) {
    return {{u"name"_s, json(reading.name)}, {u"value"_s, reading.value}};
}

QJsonObject toJson(const AccessoryBattery& accessory) {
    return {{u"name"_s, json(accessory.name)},
            {u"percent"_s, accessory.percent},
            {u"isCharging"_s, accessory.isCharging},
            {u"symbol"_s, json(accessory.symbol)}};
}

QJsonObject toJson(const ProgramShare& program) {
    return {{u"name"_s, json(program.name)},
            {u"processes"_s, program.processes},
            {u"cpu"_s, program.cpu},
            {u"memory"_s, json(program.memory)}};
}

QJsonArray arrayOf(const std::vector<ProgramShare>& programs) {
    QJsonArray array;
    for (const ProgramShare& program : programs)
        array.append(toJson(program));
    return array;
}

QJsonObject toJson(const ProcessSample& processes) {
    return {{u"busiest"_s, arrayOf(processes.busiest)}, {u"largest"_s, arrayOf(processes.largest)}};
}

template<typename Record>
QJsonValue unlessEmpty(const std::vector<Record>& records) {
    QJsonArray array;
    for (const Record& record : records)
        array.append(toJson(record));
    return records.empty() ? absent : QJsonValue(array);
}

QJsonObject toJson(const SensorsSample& sensors) {
    return {{u"cpu"_s, json(sensors.cpu)},
            {u"cpuHottest"_s, json(sensors.cpuHottest)},
            {u"gpu"_s, json(sensors.gpu)},
            {u"soc"_s, json(sensors.soc)},
            {u"ssd"_s, json(sensors.ssd)},
            {u"battery"_s, json(sensors.battery)},
            {u"all"_s, unlessEmpty(sensors.all)},
            {u"fans"_s, unlessEmpty(sensors.fans)},
            {u"systemPower"_s, json(sensors.systemPower)},
            {u"adapterPower"_s, json(sensors.adapterPower)},
            {u"components"_s, unlessEmpty(toJson(sensors.components.value_or(ComponentPower())))}};
}

QJsonObject toJson(const BatterySample& battery) {
    return {{u"percent"_s, battery.percent},
            {u"isCharging"_s, battery.isCharging},
            {u"isPluggedIn"_s, battery.isPluggedIn},
            {u"minutesRemaining"_s, json(battery.minutesRemaining)},
            {u"cycleCount"_s, json(battery.cycleCount)},
            {u"healthPercent"_s, json(battery.healthPercent)},
            {u"temperature"_s, json(battery.temperature)},
            {u"watts"_s, json(battery.watts)}};
}

/// One field of the line.
struct Field {
    std::optional<MenuBarModule> module; ///< what it belongs to; absent: in the full line alone
    QString key;
    QJsonValue value;
};

/// Every field. Those never read are absent.
std::vector<Field> fieldsOf(const Readings& readings) {
    using Module = MenuBarModule;
    const auto ifRead = [](const History& history, const auto& record) {
        return history.empty() ? absent : QJsonValue(toJson(record));
    };
    return {{Module::cpu, u"cpu"_s, ifRead(readings.cpuHistory, readings.cpu)},
            {Module::memory, u"memory"_s, ifRead(readings.memoryHistory, readings.memory)},
            {Module::network, u"network"_s,
             readings.network.isThere ? ifRead(readings.downloadHistory, readings.network) : absent},
            {Module::network, u"networkInfo"_s, toJson(readings.networkInfo)},
            {Module::disk, u"disk"_s, toJson(readings.disk)},
            {Module::gpu, u"gpu"_s, json(readings.gpu)},
            {Module::temperature, u"sensors"_s, unlessEmpty(toJson(readings.sensors))},
            {Module::battery, u"battery"_s, readings.battery ? QJsonValue(toJson(*readings.battery)) : absent},
            {std::nullopt, u"accessories"_s, unlessEmpty(readings.accessories)},
            {std::nullopt, u"accessoriesDiagnostics"_s,
             readings.accessoriesDiagnostics.empty() ? absent : json(readings.accessoriesDiagnostics)}};
}

} // namespace

std::string jsonLine(const Readings& readings, const std::optional<std::vector<MenuBarModule>>& modules,
                     bool listsPrograms) {
    QJsonObject object{{u"interval"_s, readings.interval}};
    const auto isWanted = [&modules](const std::optional<MenuBarModule>& module) {
        return !modules || (module && std::find(modules->begin(), modules->end(), *module) != modules->end());
    };
    for (const auto& [module, key, value] : fieldsOf(readings))
        if (isWanted(module))
            object.insert(key, value);
    if (listsPrograms)
        object.insert(u"processes"_s, toJson(readings.processes));
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace vantrix
