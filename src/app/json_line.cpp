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

/// JSON has no unsigned 64-bit numbers in Qt; byte counts past 2^63 do not exist.
qint64 bytes(std::uint64_t count) {
    return static_cast<qint64>(std::min<std::uint64_t>(count, std::numeric_limits<qint64>::max()));
}

template<typename T>
void putPresent(QJsonObject& object, const char* key, const std::optional<T>& value) {
    if (value)
        object[QLatin1StringView(key)] = *value;
}

void putPresent(QJsonObject& object, const char* key, const std::optional<std::string>& value) {
    if (value)
        object[QLatin1StringView(key)] = QString::fromStdString(*value);
}

void putPresent(QJsonObject& object, const char* key, const QJsonObject& value) {
    if (!value.isEmpty())
        object[QLatin1StringView(key)] = value;
}

QJsonObject toJson(const CPUSample& cpu) {
    QJsonArray cores;
    for (double core : cpu.perCore)
        cores.append(core);
    return {{u"total"_s, cpu.total}, {u"user"_s, cpu.user}, {u"system"_s, cpu.system}, {u"perCore"_s, cores}};
}

QJsonObject toJson(const MemorySample& memory) {
    return {{u"total"_s, bytes(memory.total)},       {u"app"_s, bytes(memory.app)},
            {u"wired"_s, bytes(memory.wired)},       {u"compressed"_s, bytes(memory.compressed)},
            {u"swapUsed"_s, bytes(memory.swapUsed)}, {u"pressure"_s, QLatin1StringView(wordOf(memory.pressure))}};
}

QJsonObject toJson(const NetworkInfo& info) {
    QJsonObject object{{u"kind"_s, QLatin1StringView(wordOf(info.kind))}};
    putPresent(object, "interface", info.interface);
    putPresent(object, "displayName", info.displayName);
    putPresent(object, "localIP", info.localIP);
    putPresent(object, "ssid", info.ssid);
    putPresent(object, "rssi", info.rssi);
    putPresent(object, "noise", info.noise);
    putPresent(object, "linkSpeedMbps", info.linkSpeedMbps);
    if (info.ssidHiddenByPrivacy)
        object[u"ssidHiddenByPrivacy"_s] = true;
    putPresent(object, "debug", info.debug);
    return object;
}

QJsonObject toJson(const DiskSample& disk) {
    QJsonObject object{{u"total"_s, bytes(disk.total)}, {u"available"_s, bytes(disk.available)}};
    putPresent(object, "readRate", disk.readRate);
    putPresent(object, "writeRate", disk.writeRate);
    return object;
}

QJsonObject toJson(const FanReading& fan) {
    QJsonObject object{{u"id"_s, fan.id}, {u"rpm"_s, fan.rpm}};
    putPresent(object, "minRPM", fan.minRPM);
    putPresent(object, "maxRPM", fan.maxRPM);
    return object;
}

QJsonObject toJson(const ComponentPower& power) {
    QJsonObject object;
    putPresent(object, "cpu", power.cpu);
    putPresent(object, "gpu", power.gpu);
    putPresent(object, "ane", power.ane);
    putPresent(object, "dram", power.dram);
    return object;
}

QJsonObject toJson(const TemperatureReading& reading) {
    return {{u"name"_s, QString::fromStdString(reading.name)}, {u"value"_s, reading.value}};
}

QJsonObject toJson(const AccessoryBattery& accessory) {
    return {{u"name"_s, QString::fromStdString(accessory.name)},
            {u"percent"_s, accessory.percent},
            {u"isCharging"_s, accessory.isCharging},
            {u"symbol"_s, QString::fromStdString(accessory.symbol)}};
}

template<typename Record>
void putList(QJsonObject& object, const char* key, const std::vector<Record>& records) {
    if (records.empty())
        return;
    QJsonArray array;
    for (const Record& record : records)
        array.append(toJson(record));
    object[QLatin1StringView(key)] = array;
}

QJsonObject toJson(const SensorsSample& sensors) {
    QJsonObject object;
    putPresent(object, "cpu", sensors.cpu);
    putPresent(object, "cpuHottest", sensors.cpuHottest);
    putPresent(object, "gpu", sensors.gpu);
    putPresent(object, "soc", sensors.soc);
    putPresent(object, "ssd", sensors.ssd);
    putPresent(object, "battery", sensors.battery);
    putList(object, "all", sensors.all);
    putList(object, "fans", sensors.fans);
    putPresent(object, "systemPower", sensors.systemPower);
    putPresent(object, "adapterPower", sensors.adapterPower);
    if (sensors.components)
        putPresent(object, "components", toJson(*sensors.components));
    return object;
}

QJsonObject toJson(const BatterySample& battery) {
    QJsonObject object{{u"percent"_s, battery.percent},
                       {u"isCharging"_s, battery.isCharging},
                       {u"isPluggedIn"_s, battery.isPluggedIn}};
    putPresent(object, "minutesRemaining", battery.minutesRemaining);
    putPresent(object, "cycleCount", battery.cycleCount);
    putPresent(object, "healthPercent", battery.healthPercent);
    putPresent(object, "temperature", battery.temperature);
    putPresent(object, "watts", battery.watts);
    return object;
}

/// The records behind one module; none when they were never read.
void putModule(QJsonObject& object, MenuBarModule module, const Readings& readings) {
    switch (module) {
    case MenuBarModule::cpu:
        if (!readings.cpuHistory.empty())
            object[u"cpu"_s] = toJson(readings.cpu);
        return;
    case MenuBarModule::memory:
        if (!readings.memoryHistory.empty())
            object[u"memory"_s] = toJson(readings.memory);
        return;
    case MenuBarModule::network:
        if (!readings.downloadHistory.empty())
            object[u"network"_s] =
                QJsonObject{{u"download"_s, readings.network.download}, {u"upload"_s, readings.network.upload}};
        object[u"networkInfo"_s] = toJson(readings.networkInfo);
        return;
    case MenuBarModule::disk:
        object[u"disk"_s] = toJson(readings.disk);
        return;
    case MenuBarModule::gpu:
        putPresent(object, "gpu", readings.gpu);
        return;
    case MenuBarModule::temperature:
        putPresent(object, "sensors", toJson(readings.sensors));
        return;
    case MenuBarModule::battery:
        if (readings.battery)
            object[u"battery"_s] = toJson(*readings.battery);
        return;
    }
}

} // namespace

std::string jsonLine(const Readings& readings, const std::optional<std::vector<MenuBarModule>>& modules) {
    QJsonObject object{{u"interval"_s, readings.interval}};
    for (const auto& choice : menuBarModules)
        if (!modules || std::ranges::find(*modules, choice.value) != modules->end())
            putModule(object, choice.value, readings);
    if (!modules) {
        putList(object, "accessories", readings.accessories);
        if (!readings.accessoriesDiagnostics.empty())
            object[u"accessoriesDiagnostics"_s] = QString::fromStdString(readings.accessoriesDiagnostics);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace vantrix
