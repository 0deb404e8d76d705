#include "doctor/sample_texts.h"

#include <QString>

#include "support/size_text.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

std::string percent(int value) {
    return std::to_string(value) + '%';
}

} // namespace

std::string memoryUseText(const MemorySample& memory) {
    return memoryText(usedMemory(memory)).toStdString() + " of " + memoryText(memory.total).toStdString();
}

std::string networkText(const NetworkSample& network) {
    return "in " + compactRate(network.download) + "/s, out " + compactRate(network.upload) + "/s";
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
    return "read " + compactRate(*disk.readRate) + "/s, write " + compactRate(*disk.writeRate) + "/s";
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

std::string batteryText(const BatterySample& battery) {
    const char* state = battery.isCharging ? ", charging" : battery.isPluggedIn ? ", plugged in" : ", in use";
    return percent(battery.percent) + state;
}

std::string accessoriesText(const AccessoriesSampler::Scan& scan) {
    std::string text;
    for (const AccessoryBattery& accessory : scan.accessories)
        appendToList(text, percent(accessory.percent));
    return text;
}

} // namespace vantrix
