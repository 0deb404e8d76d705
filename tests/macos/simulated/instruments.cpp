#include "macos/simulated/instruments.h"

#include <sstream>

#include "samplers/processor_description.h"

namespace vantrix::simulated {
namespace {

template<typename T>
void write(std::ostream& out, const T& value) {
    out << value;
}

template<typename T>
void write(std::ostream& out, const std::optional<T>& value) {
    if (value)
        out << *value;
    else
        out << '-';
}

template<typename... Values>
std::string words(const Values&... values) {
    std::ostringstream out;
    const char* separator = "";
    ((out << separator, write(out, values), separator = " "), ...);
    return out.str();
}

void addConnection(const NetworkInfo& info, ReadingTexts& texts) {
    texts["interface"] = words(info.interface);
    texts["address"] = words(info.localIP);
    texts["kind"] = words(static_cast<int>(info.kind));
    texts["display name"] = words(info.displayName);
    texts["wifi"] = info.rssi ? words(info.ssid, info.rssi, info.noise, info.linkSpeedMbps) : "-";
}

void addSensors(const SensorsSample& sensors, ReadingTexts& texts) {
    texts["temperatures"] = sensors.cpu || sensors.gpu ? words(sensors.cpu, sensors.gpu) : "-";
    texts["sensors"] = sensors.all.empty() ? "-" : "";
    for (const TemperatureReading& reading : sensors.all)
        texts["sensors"] += words(reading.name, reading.value) + "; ";
    texts["fans"] = "-";
    for (const FanReading& fan : sensors.fans)
        texts["fans"] = words(fan.id, fan.rpm, fan.minRPM, fan.maxRPM);
    texts["power"] = words(sensors.systemPower);
    texts["components"] = sensors.components ? words(sensors.components->cpu, sensors.components->gpu) : "-";
}

void addBattery(const std::optional<BatterySample>& battery, ReadingTexts& texts) {
    texts["battery"] = "-";
    texts["registers"] = "-";
    if (!battery)
        return;
    texts["battery"] = words(battery->percent, battery->isCharging, battery->isPluggedIn, battery->minutesRemaining);
    texts["registers"] = words(battery->cycleCount, battery->healthPercent, battery->temperature, battery->watts);
}

} // namespace

Instruments::Instruments()
    : sources_(makeSamplingSources({})), cpu_(*sources_.cpu), memory_(*sources_.memory),
      network_(*sources_.network, *sources_.clock), networkInfo_(*sources_.networkInfo),
      disk_(*sources_.disks, *sources_.volume, *sources_.clock), gpu_(*sources_.gpu),
      sensors_(sources_.sensorKeys.get(), sources_.temperatures.get(), sources_.energy.get(), *sources_.clock),
      battery_(*sources_.battery) {}

ReadingTexts Instruments::pass() {
    ReadingTexts texts;
    const CPUSample* cpu = cpu_.sample();
    texts["cpu"] = cpu ? words(cpu->total, cpu->user, cpu->system, cpu->perCore.at(0), cpu->perCore.at(1)) : "-";
    const auto memory = memory_.sample();
    texts["memory"] = memory ? words(memory->app, memory->wired, memory->compressed) : "-";
    texts["installed"] = memory ? words(memory->total, memory->swapUsed, static_cast<int>(memory->pressure)) : "-";
    const auto network = network_.sample();
    texts["network"] = network ? words(network->download, network->upload) : "-";
    addConnection(networkInfo_.sample(true, LocationAccess::authorizedAlways), texts);
    const DiskSample disk = disk_.sample();
    texts["space"] = disk.total > 0 ? words(disk.total, disk.available) : "-";
    texts["rates"] = disk.readRate ? words(disk.readRate, disk.writeRate) : "-";
    texts["gpu"] = words(gpu_.sample());
    addSensors(sensors_.sample(), texts);
    addBattery(battery_.sample(), texts);
    const ProcessorDescription processor(*sources_.information);
    texts["processor"] = processor.brand() + ", " + processor.cores();
    texts["accessories"] = "-";
    for (const AccessoryReading& accessory : sources_.accessories->scan().accessories)
        texts["accessories"] = words(accessory.battery.name, accessory.battery.percent, accessory.address);
    return texts;
}

} // namespace vantrix::simulated
