#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"

namespace vantrix {

/// The present state of one entry. Units are the kernel's: µWh, µAh, µV, µA, µW, tenths of a degree Celsius, seconds. A
/// value is absent when the driver does not tell it, or tells an implausible one.
struct SupplyState {
    enum Number {
        present,
        online,
        capacity, ///< percent
        energyNow,
        energyFull,
        energyFullDesign,
        chargeNow,
        chargeFull,
        chargeFullDesign,
        voltageNow,
        voltageMinDesign,
        powerNow,
        currentNow,
        cycleCount,
        temperature,
        timeToEmpty,
        timeToFull,
        meanTimeToEmpty, ///< at the mean rate of the last minute or so
        meanTimeToFull,
        numberCount,
    };
    enum class Status { unknown, charging, discharging, notCharging, full };

    std::optional<std::int64_t> operator[](Number number) const { return numbers[number]; }

    std::array<std::optional<std::int64_t>, numberCount> numbers;
    Status status = Status::unknown;
};

/// The state as the file uevent of an entry tells it. Absent when it is no such text.
std::optional<SupplyState> parseSupply(std::string_view uevent);

/// Reads an entry on every pass: all its values with one read. Where the driver fails that read because of a single
/// one, value by value.
class PowerSupply {
  public:
    explicit PowerSupply(std::string folder);

    std::optional<SupplyState> read();

  private:
    std::optional<SupplyState> readSingly();

    std::string folder_;
    KernelFile all_;
    std::vector<KernelFile> single_; ///< empty until they are needed; one for each number, then the status
};

} // namespace vantrix
