#include "app/printed_line.h"

#include <algorithm>
#include <limits>

#include "support/json_object.h"
#include "widget/shared_stats.h"

namespace vantrix {

// Found by their arguments, from within JsonObject. Members are in alphabetical order.

/// Few programs know unsigned 64-bit numbers; no machine counts more than 2^63 bytes.
static std::uint64_t bounded(std::uint64_t bytes) {
    return std::min<std::uint64_t>(bytes, std::numeric_limits<std::int64_t>::max());
}

static void appendJson(std::string& json, const BatterySample& battery) {
    JsonObject object(json);
    object.add("cycleCount", battery.cycleCount);
    object.add("healthPercent", battery.healthPercent);
    object.add("isCharging", battery.isCharging);
    object.add("isPluggedIn", battery.isPluggedIn);
    object.add("minutesRemaining", battery.minutesRemaining);
    object.add("percent", battery.percent);
    object.add("temperature", battery.temperature);
    object.add("watts", battery.watts);
}

static void appendJson(std::string& json, const CPUSample& cpu) {
    JsonObject object(json);
    object.add("perCore", cpu.perCore);
    object.add("system", cpu.system);
    object.add("total", cpu.total);
    object.add("user", cpu.user);
}

static void appendJson(std::string& json, const DiskSample& disk) {
    JsonObject object(json);
    object.add("available", bounded(disk.available));
    object.add("readRate", disk.readRate);
    object.add("total", bounded(disk.total));
    object.add("writeRate", disk.writeRate);
}

static void appendJson(std::string& json, const MemorySample& memory) {
    JsonObject object(json);
    object.add("app", bounded(memory.app));
    object.add("compressed", bounded(memory.compressed));
    object.add("pressure", std::string_view(wordOf(memory.pressure)));
    object.add("swapUsed", bounded(memory.swapUsed));
    object.add("total", bounded(memory.total));
    object.add("wired", bounded(memory.wired));
}

static void appendJson(std::string& json, const NetworkSample& network) {
    JsonObject object(json);
    object.add("download", network.download);
    object.add("upload", network.upload);
}

static void appendJson(std::string& json, const NetworkInfo& info) {
    JsonObject object(json);
    object.add("debug", info.debug);
    object.add("displayName", info.displayName);
    object.add("interface", info.interface);
    object.add("kind", std::string_view(wordOf(info.kind)));
    object.add("linkSpeedMbps", info.linkSpeedMbps);
    object.add("localIP", info.localIP);
    object.add("noise", info.noise);
    object.add("rssi", info.rssi);
    object.add("ssid", info.ssid);
    if (info.ssidHiddenByPrivacy)
        object.add("ssidHiddenByPrivacy", true);
}

static void appendJson(std::string& json, const ProgramShare& program) {
    JsonObject object(json);
    object.add("cpu", program.cpu);
    object.add("memory", bounded(program.memory));
    object.add("name", program.name);
    object.add("processes", program.processes);
}

static void appendJson(std::string& json, const ProcessSample& processes) {
    JsonObject object(json);
    object.add("busiest", processes.busiest);
    object.add("largest", processes.largest);
}

static void appendJson(std::string& json, const TemperatureReading& reading) {
    JsonObject object(json);
    object.add("name", reading.name);
    object.add("value", reading.value);
}

static void appendJson(std::string& json, const ComponentPower& power) {
    JsonObject object(json);
    object.add("ane", power.ane);
    object.add("cpu", power.cpu);
    object.add("dram", power.dram);
    object.add("gpu", power.gpu);
}

static void appendJson(std::string& json, const FanReading& fan) {
    JsonObject object(json);
    object.add("id", fan.id);
    object.add("maxRPM", fan.maxRPM);
    object.add("minRPM", fan.minRPM);
    object.add("rpm", fan.rpm);
}

static void appendJson(std::string& json, const SensorsSample& sensors) {
    JsonObject object(json);
    object.add("adapterPower", sensors.adapterPower);
    object.addUnlessEmpty("all", sensors.all);
    object.add("battery", sensors.battery);
    object.addUnlessEmpty("components", sensors.components.value_or(ComponentPower()));
    object.add("cpu", sensors.cpu);
    object.add("cpuHottest", sensors.cpuHottest);
    object.addUnlessEmpty("fans", sensors.fans);
    object.add("gpu", sensors.gpu);
    object.add("soc", sensors.soc);
    object.add("ssd", sensors.ssd);
    object.add("systemPower", sensors.systemPower);
}

/// Those never read are left out.
static void addFields(JsonObject& object, const Readings& readings,
                      const std::optional<std::vector<MenuBarModule>>& modules, bool listsPrograms) {
    using Module = MenuBarModule;
    const auto isWanted = [&modules](Module module) {
        return !modules || std::find(modules->begin(), modules->end(), module) != modules->end();
    };
    if (!modules)
        object.addUnlessEmpty("accessories", readings.accessories);
    if (!modules)
        object.addUnlessEmpty("accessoriesDiagnostics", readings.accessoriesDiagnostics);
    if (isWanted(Module::battery))
        object.add("battery", readings.battery);
    if (isWanted(Module::cpu) && !readings.cpuHistory.empty())
        object.add("cpu", readings.cpu);
    if (isWanted(Module::disk))
        object.add("disk", readings.disk);
    if (isWanted(Module::gpu))
        object.add("gpu", readings.gpu);
    object.add("interval", readings.interval);
    if (isWanted(Module::memory) && !readings.memoryHistory.empty())
        object.add("memory", readings.memory);
    if (isWanted(Module::network) && readings.network.isThere && !readings.downloadHistory.empty())
        object.add("network", readings.network);
    if (isWanted(Module::network))
        object.add("networkInfo", readings.networkInfo);
    if (listsPrograms)
        object.add("processes", readings.processes);
    if (isWanted(Module::temperature))
        object.addUnlessEmpty("sensors", readings.sensors);
}

std::string jsonLine(const Readings& readings, const std::optional<std::vector<MenuBarModule>>& modules,
                     bool listsPrograms) {
    std::string json;
    json.reserve(1024);
    {
        JsonObject object(json);
        addFields(object, readings, modules, listsPrograms);
    }
    return json;
}

} // namespace vantrix
