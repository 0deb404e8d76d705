#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sampling_sources.h"

namespace vantrix {

/// What a user can be told about a source.
enum class SourceState {
    ok,
    absent,  ///< this machine, or this desktop, has none
    asleep,  ///< its device sleeps and is left asleep
    denied,  ///< it is there, but this user may not read it
    silent,  ///< it is there, but does not answer
    damaged, ///< its answer cannot be used
};

/// The names of the readings, as people see them. They also match a source with its value.
namespace reading_name {
inline constexpr std::string_view processor = "Processor";
inline constexpr std::string_view memory = "Memory";
inline constexpr std::string_view pressure = "Pressure";
inline constexpr std::string_view programs = "Programs";
inline constexpr std::string_view network = "Network";
inline constexpr std::string_view connection = "Connection";
inline constexpr std::string_view wifi = "Wi-Fi";
inline constexpr std::string_view diskSpace = "Disk space";
inline constexpr std::string_view diskRates = "Disk rates";
inline constexpr std::string_view gpu = "GPU";
inline constexpr std::string_view temperatures = "Temperatures";
inline constexpr std::string_view fans = "Fans";
inline constexpr std::string_view systemPower = "System power";
inline constexpr std::string_view chipPower = "Chip power";
inline constexpr std::string_view battery = "Battery";
inline constexpr std::string_view accessories = "Accessories";
inline constexpr std::string_view bluetooth = "Bluetooth";
} // namespace reading_name

/// Where one reading comes from, and why it may be missing. Texts are English and hold nothing private: no names of
/// networks, interfaces, people's devices or serial numbers, no addresses.
struct SourceDiagnosis {
    std::string name;   ///< of a reading or a service
    std::string source; ///< file, name on the bus, library or call
    SourceState state = SourceState::ok;
    std::string value;  ///< of services only; the value of a reading is measured
    std::string reason; ///< what is missing, why, and what to do about it; may be empty

    bool operator==(const SourceDiagnosis&) const = default;
};

/// The sources of all readings in the order of `reading_name`, several for a reading with several devices; without
/// Bluetooth, which is a service. Never wakes a device.
std::vector<SourceDiagnosis> diagnoseSources(const KernelRoots& roots);

/// Asks the desktop's services about themselves, all at once.
class ServiceDiagnoses {
  public:
    virtual ~ServiceDiagnoses() = default;
    /// Called once on the main thread, from the event loop, when every service has answered or has run out of time.
    std::function<void(std::vector<SourceDiagnosis>)> finished;
    /// True while a thread still waits for a bus or a display.
    bool leftThreadBehind = false;
};

/// Starts asking. Starts no service and changes nothing. May wait up to `patience` for each bus that does not answer.
std::unique_ptr<ServiceDiagnoses> diagnoseServices(std::chrono::milliseconds patience);

/// What a process has cost since it started. Linux: /proc/PID.
struct ProcessStatistics {
    double uptime = 0.0;                        ///< seconds since its start
    double userTime = 0.0;                      ///< CPU seconds
    double systemTime = 0.0;                    ///< CPU seconds spent in the kernel for it
    std::optional<std::uint64_t> residentBytes; ///< in memory, shared pages included
    std::optional<std::uint64_t> ownBytes;      ///< what would be freed if it ended
    std::optional<std::uint64_t> wakeUps;       ///< of the threads that are still running
    int threads = 0;

    bool operator==(const ProcessStatistics&) const = default;
};

/// Absent when there is no such process. `proc` is the root of the tree of processes.
std::optional<ProcessStatistics> processStatistics(int pid, const std::string& proc = "/proc");

} // namespace vantrix
