#pragma once

#include <optional>
#include <string>

#include "linux/kernel/kernel_file.h"
#include "linux/kernel/timed_sensor.h"

namespace vantrix {

/// The first line of a file that names something, read once: valid UTF-8 without control characters and blanks at its
/// ends, at most 64 bytes. Empty when there is none.
std::string readName(const std::string& path);

/// The value of one file times `scale`, unless another says that the sensor has a fault.
class FileProbe : public TimedSensor::Probe {
  public:
    FileProbe(const std::string& path, double scale, const std::string& faultPath = {});
    std::optional<double> read() override;

  private:
    KernelFile file_;
    double scale_;
    std::optional<KernelFile> fault_;
};

/// The number of a file that holds one, "-4500\n".
std::optional<double> readNumber(KernelFile& file);

} // namespace vantrix
