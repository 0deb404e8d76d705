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

ReadingTexts Instruments::pass() {
    ReadingTexts texts;
    const CPUSample* load = cpu.sample();
    texts["cpu"] = load ? words(load->total, load->user, load->system, load->perCore.at(0), load->perCore.at(1)) : "-";
    const auto pages = memory.sample();
    texts["memory"] = pages ? words(pages->app, pages->wired, pages->compressed) : "-";
    texts["installed"] = pages ? words(pages->total, pages->swapUsed, static_cast<int>(pages->pressure)) : "-";
    const auto traffic = network.sample();
    texts["network"] = traffic ? words(traffic->download, traffic->upload) : "-";
    addConnection(networkInfo->sample(true, LocationAccess::authorizedAlways), texts);
    const DiskSample volume = disk.sample();
    texts["space"] = volume.total > 0 ? words(volume.total, volume.available) : "-";
    texts["rates"] = volume.readRate ? words(volume.readRate, volume.writeRate) : "-";
    texts["gpu"] = words(gpu->sample());
    addSensors(sensors.sample(), texts);
    addBattery(battery->sample(), texts);
    const ProcessorDescription processor(*sources.information);
    texts["processor"] = processor.brand() + ", " + processor.cores();
    texts["accessories"] = "-";
    for (const AccessoryReading& accessory : sources.accessories->scan().accessories)
        texts["accessories"] = words(accessory.battery.name, accessory.battery.percent, accessory.address);
    return texts;
}

} // namespace vantrix::simulated
