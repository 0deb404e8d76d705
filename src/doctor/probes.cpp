#include "doctor/probes.h"

#include <QString>

#include "platform/diagnosis.h"
#include "support/size_text.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

namespace name = reading_name;

Finding found(std::string value, std::string note = {}) {
    return {std::move(value), std::move(note), std::nullopt, false};
}

std::string percent(int value) {
    return std::to_string(value) + '%';
}

std::string signalText(const NetworkInfo& info) {
    std::string text = info.rssi ? std::to_string(*info.rssi) + " dBm" : std::string();
    if (info.linkSpeedMbps)
        appendToList(text, roundedInteger(*info.linkSpeedMbps) + " Mbit/s");
    return text;
}

std::string diskSpaceText(const DiskSample& disk) {
    if (disk.total == 0)
        return {};
    return compactPercent(usedFraction(disk)) + " of " + byteText(disk.total).toStdString();
}

std::string diskRatesText(const DiskSample& disk) {
    if (!disk.readRate || !disk.writeRate)
        return {};
    return "read " + compactRate(*disk.readRate, NetworkUnit::bytes) + "/s, write " +
           compactRate(*disk.writeRate, NetworkUnit::bytes) + "/s";
}

std::string temperaturesText(const SensorsSample& sensors) {
    const std::size_t count = sensors.all.size();
    if (count == 0)
        return {};
    const std::string number = std::to_string(count) + (count == 1 ? " sensor" : " sensors");
    return sensors.cpu ? "CPU " + roundedInteger(*sensors.cpu) + " °C, " + number : number;
}

std::string fansText(const SensorsSample& sensors) {
    std::string text;
    for (const FanReading& fan : sensors.fans)
        appendToList(text, roundedInteger(fan.rpm));
    return text.empty() ? text : text + " rpm";
}

std::string wattsText(const std::optional<double>& watts) {
    return watts ? QString::number(*watts, 'f', 1).toStdString() + " W" : std::string();
}

std::string accessoriesText(const AccessoriesSampler::Scan& scan) {
    std::string text;
    for (const AccessoryReading& accessory : scan.accessories)
        appendToList(text, percent(accessory.battery.percent));
    return text;
}

std::vector<Finding> readCPU(Samplers& machine) {
    const CPUSample* sample = machine.cpu.sample();
    return {found(sample && !machine.cpu.isBaseline() ? compactPercent(sample->total) : "")};
}

std::vector<Finding> readMemory(Samplers& machine) {
    const auto sample = machine.memory.sample();
    if (!sample)
        return {};
    const QString use = memoryText(usedMemory(*sample), MemoryUnit::gb) + QStringLiteral(" of ") +
                        memoryText(sample->total, MemoryUnit::gb);
    return {found(use.toStdString()), found(wordOf(sample->pressure))};
}

std::vector<Finding> readPrograms(Samplers& machine) {
    const ProcessSample* sample = machine.processes ? machine.processes->sample() : nullptr;
    if (sample == nullptr)
        return {};
    std::string text = std::to_string(machine.processes->count()) + " processes";
    if (!sample->busiest.empty()) // whose it is, is private
        appendToList(text, "busiest " + compactPercent(sample->busiest.front().cpu));
    return {found(text)};
}

std::vector<Finding> readNetwork(Samplers& machine) {
    const auto sample = machine.network.sample();
    if (!sample)
        return {};
    const std::string& port = machine.network.chosen();
    if (!sample->isThere)
        return {found("", "The port " + port + ", which the settings choose, is not there or not up.")};
    return {found("in " + compactRate(sample->download, NetworkUnit::bytes) + "/s, out " +
                      compactRate(sample->upload, NetworkUnit::bytes) + "/s",
                  port.empty() ? "" : "Of the port " + port + " alone, as the settings choose.")};
}

std::vector<Finding> readConnection(Samplers& machine) {
    if (!machine.networkInfo)
        return {};
    const NetworkInfo& info = machine.networkInfo->sample(true, LocationAccess::authorizedAlways);
    const bool isOverWiFi = info.kind == NetworkInfo::Kind::wifi;
    return {found(wordOf(info.kind)), found(signalText(info), isOverWiFi ? "" : "The connection does not go over it.")};
}

std::string volumeNote(const DiskSample& sample, const std::string& mountPoint) {
    if (mountPoint.empty())
        return {};
    return sample.total == 0 ? "No volume that answers is mounted at " + mountPoint + ", which the settings choose."
                             : "Of the volume at " + mountPoint + ", as the settings choose.";
}

std::vector<Finding> readDisk(Samplers& machine) {
    const DiskSample sample = machine.disk.sample();
    return {found(diskSpaceText(sample), volumeNote(sample, machine.mountPoint)), found(diskRatesText(sample))};
}

std::vector<Finding> readGPU(Samplers& machine) {
    const auto load = machine.gpu ? machine.gpu->sample() : std::nullopt;
    return {found(load ? compactPercent(*load) : "")};
}

std::vector<Finding> readSensors(Samplers& machine) {
    const SensorsSample& sample = machine.sensors.sample();
    return {found(temperaturesText(sample)), found(fansText(sample)), found(wattsText(sample.systemPower)),
            found(sample.components ? wattsText(sample.components->cpu) : "")};
}

std::vector<Finding> readBattery(Samplers& machine) {
    const auto sample = machine.battery ? machine.battery->sample() : std::nullopt;
    if (!sample)
        return {};
    const char* state = sample->isCharging ? ", charging" : sample->isPluggedIn ? ", plugged in" : ", in use";
    return {found(percent(sample->percent) + state)};
}

std::vector<Finding> readAccessories(Samplers& machine) {
    const auto& accessories = machine.sources.accessories;
    return {found(accessories ? accessoriesText(accessories->scan()) : "")};
}

} // namespace

const std::vector<Probe>& probes() {
    static const std::vector<Probe> all{
        {{name::processor}, readCPU},
        {{name::memory, name::pressure}, readMemory},
        {{name::programs}, readPrograms},
        {{name::network}, readNetwork},
        {{name::connection, name::wifi}, readConnection},
        {{name::diskSpace, name::diskRates}, readDisk},
        {{name::gpu}, readGPU},
        {{name::temperatures, name::fans, name::systemPower, name::chipPower}, readSensors},
        {{name::battery}, readBattery},
        {{name::accessories}, readAccessories, false},
    };
    return all;
}

} // namespace vantrix
