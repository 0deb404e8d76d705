#pragma once

#include <string>

#include "accessories/accessories_sampler.h"
#include "samplers/battery_sample.h"
#include "samplers/disk_sampler.h"
#include "samplers/memory_sampler.h"
#include "samplers/network_info.h"
#include "samplers/network_sampler.h"
#include "sensors/sensors_sample.h"

namespace vantrix {

// The samples in a few English words, without anything private: no names of networks, interfaces or devices. Empty
// where a sample holds no such value.

std::string memoryUseText(const MemorySample& memory);
std::string networkText(const NetworkSample& network);
std::string signalText(const NetworkInfo& info);
std::string diskSpaceText(const DiskSample& disk);
std::string diskRatesText(const DiskSample& disk);
std::string temperaturesText(const SensorsSample& sensors);
std::string fansText(const SensorsSample& sensors);
std::string wattsText(const std::optional<double>& watts);
std::string batteryText(const BatterySample& battery);
std::string accessoriesText(const AccessoriesSampler::Scan& scan);

} // namespace vantrix
