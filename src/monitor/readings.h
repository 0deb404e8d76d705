#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accessories/accessory_battery.h"
#include "samplers/battery_sample.h"
#include "samplers/cpu_sampler.h"
#include "samplers/disk_sampler.h"
#include "samplers/memory_sampler.h"
#include "samplers/network_info.h"
#include "samplers/network_sampler.h"
#include "samplers/process_sampler.h"
#include "sensors/sensors_sample.h"

namespace vantrix {

/// Values of the latest passes, oldest first, at most `historyLength` of them.
using History = std::vector<double>;

inline constexpr std::size_t historyLength = 60;

/// Appends, dropping the oldest values beyond `historyLength`. Allocates on the first call only.
void append(History& history, double value);

/// What the monitor knows: the latest record of each kind and the histories behind the charts.
struct Readings {
    double interval = 2.0; ///< sampling period, seconds
    CPUSample cpu;
    MemorySample memory;
    NetworkSample network;
    NetworkInfo networkInfo;
    DiskSample disk;
    std::optional<double> gpu; ///< load fraction; absent on machines without a readable GPU
    SensorsSample sensors;
    ComponentPower activeComponents;      ///< of the sensors, those that drew power within the length of a history
    std::optional<BatterySample> battery; ///< absent on machines without one
    std::vector<AccessoryBattery> accessories;
    std::string accessoriesDiagnostics; ///< how the last accessory scans went, for a bug report
    ProcessSample processes;            ///< empty while nobody watches the programs

    History cpuHistory;            ///< load fraction
    History memoryHistory;         ///< used fraction
    History downloadHistory;       ///< bytes per second
    History uploadHistory;         ///< bytes per second
    History diskReadHistory;       ///< bytes per second
    History diskWriteHistory;      ///< bytes per second
    History gpuHistory;            ///< load fraction
    History cpuTemperatureHistory; ///< °C
    History systemPowerHistory;    ///< watts
};

/// One field of `Readings`, for change notifications.
enum class Reading {
    interval,
    cpu,
    memory,
    network,
    networkInfo,
    disk,
    gpu,
    sensors,
    activeComponents,
    battery,
    accessories,
    accessoriesDiagnostics,
    processes,
    cpuHistory,
    memoryHistory,
    downloadHistory,
    uploadHistory,
    diskReadHistory,
    diskWriteHistory,
    gpuHistory,
    cpuTemperatureHistory,
    systemPowerHistory,
};

inline constexpr int readingCount = static_cast<int>(Reading::systemPowerHistory) + 1;

/// Fixed, plausible readings for product images: a machine at work on an ordinary day.
Readings demoReadings();

} // namespace vantrix
