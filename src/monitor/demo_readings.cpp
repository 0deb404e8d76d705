#include "monitor/readings.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/localization.h"

namespace vantrix {
namespace {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

/// Two sine waves of incommensurate periods: lively, yet the same on every run.
struct Wave {
    double a;
    double b;
    double amplitude;
    double base;
};

History historyOf(const Wave& wave, double most = std::numeric_limits<double>::infinity()) {
    History history;
    for (std::size_t i = 0; i < historyLength; ++i) {
        const auto t = static_cast<double>(i);
        const double swing = 0.6 * std::sin(t / 5.0 + wave.a) + 0.4 * std::sin(t / 2.3 + wave.b);
        append(history, std::clamp(swing * wave.amplitude + wave.base, 0.0, most));
    }
    return history;
}

void fillHistories(Readings& readings) {
    readings.cpuHistory = historyOf({0.4, 0.8, 0.2, 0.32}, 1.0);
    readings.memoryHistory = historyOf({1.1, 2.2, 0.03, 0.62}, 1.0);
    readings.downloadHistory = historyOf({2.0, 4.0, 1'800'000, 2'200'000});
    readings.uploadHistory = historyOf({0.9, 1.8, 140'000, 200'000});
    readings.diskReadHistory = historyOf({1.7, 3.4, 25'000'000, 30'000'000});
    readings.diskWriteHistory = historyOf({0.2, 0.4, 8'000'000, 10'000'000});
    readings.gpuHistory = historyOf({2.6, 5.2, 0.15, 0.2}, 1.0);
    readings.cpuTemperatureHistory = historyOf({0.8, 1.6, 6, 52});
    readings.systemPowerHistory = historyOf({1.5, 3.0, 7, 16});
}

SensorsSample demoSensors() {
    SensorsSample sensors;
    sensors.cpu = 52.0;
    sensors.cpuHottest = 58.4;
    sensors.gpu = 47.5;
    sensors.soc = 45.2;
    sensors.ssd = 38.0;
    sensors.battery = 31.0;
    sensors.all = {{"CPU performance core 1", 58.4},
                   {"CPU performance core 2", 54.1},
                   {"CPU efficiency core 1", 48.3},
                   {"GPU", 47.5},
                   {"SoC", 45.2},
                   {"NAND", 38.0}};
    sensors.fans = {{0, 1870.0, 1200.0, 5900.0}};
    sensors.systemPower = 16.4;
    sensors.adapterPower = std::nullopt;
    sensors.components = ComponentPower{5.8, 1.9, 0.1, 0.9};
    return sensors;
}

ProcessSample demoProcesses() {
    const auto mebibytes = [](std::uint64_t count) { return count * (gibibyte / 1024); };
    return {{{"Firefox", "firefox", 14, 0.121, mebibytes(2970)},
             {"cc1plus", "", 4, 0.104, mebibytes(806)},
             {"GIMP", "gimp", 1, 0.038, mebibytes(1290)},
             {localized("Kernel"), "", 212, 0.012, 0},
             {"Thunderbird", "thunderbird", 3, 0.006, mebibytes(712)}},
            {{"Firefox", "firefox", 14, 0.121, mebibytes(2970)},
             {"GIMP", "gimp", 1, 0.038, mebibytes(1290)},
             {"cc1plus", "", 4, 0.104, mebibytes(806)},
             {"Thunderbird", "thunderbird", 3, 0.006, mebibytes(712)},
             {"Xorg", "", 1, 0.004, mebibytes(318)}}};
}

} // namespace

Readings demoReadings() {
    Readings readings;
    readings.cpu = {0.34, 0.25, 0.09, {0.62, 0.48, 0.41, 0.37, 0.33, 0.29, 0.22, 0.18, 0.27, 0.23}};
    readings.memory = {
        16 * gibibyte, 6 * gibibyte + gibibyte / 4,   2 * gibibyte + gibibyte / 2, gibibyte + gibibyte / 4,
        gibibyte / 2,  MemorySample::Pressure::normal};
    readings.network = {2'400'000.0, 180'000.0};
    readings.networkInfo.kind = NetworkInfo::Kind::wifi;
    readings.networkInfo.interface = "en0";
    readings.networkInfo.displayName = "Wi-Fi";
    readings.networkInfo.localIP = "192.168.1.24";
    readings.networkInfo.ssid = localized("Home");
    readings.networkInfo.rssi = -52;
    readings.networkInfo.noise = -92;
    readings.networkInfo.linkSpeedMbps = 866.0;
    readings.disk = {500'000'000'000, 186'000'000'000, 31'000'000.0, 9'400'000.0};
    readings.gpu = 0.21;
    readings.sensors = demoSensors();
    readings.activeComponents = *readings.sensors.components;
    readings.battery = BatterySample{82, false, false, 410, 142, 96, 31.0, 6.2};
    readings.accessories = {{localized("Keyboard"), 90, false, "keyboard"},
                            {localized("Mouse"), 64, false, "computermouse"},
                            {localized("Headphones"), 80, false, "headphones"}};
    readings.processes = demoProcesses();
    fillHistories(readings);
    return readings;
}

} // namespace vantrix
