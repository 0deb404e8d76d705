#pragma once

#include <memory>
#include <optional>
#include <string>

namespace vantrix {

/// What is needed of the NVIDIA driver's management library, which is looked up when the program runs. Any call may
/// take long, or hang; they are made on one thread at a time.
class NvidiaLibrary {
  public:
    using Device = void*; ///< the library's own handle

    // Answers to a question.
    static constexpr int success = 0;
    static constexpr int notInitialized = 1;
    static constexpr int isLost = 15; ///< the GPU fell off the bus
    static constexpr int unknownError = 999;

    virtual ~NvidiaLibrary() = default;
    /// Reaches no GPU. The one function that any thread may call at any time.
    virtual bool isInstalled() const = 0;
    /// False when the library is not installed or finds no driver.
    virtual bool start() = 0;
    /// Lets go of every GPU; devices found before are invalid afterwards.
    virtual void stop() = 0;
    /// The GPU at a PCI address, "0000:01:00.0". The library may touch other GPUs on its way there. Only when started.
    virtual std::optional<Device> find(const std::string& address) = 0;
    /// Load in percent over the last sampling period of the GPU, when the answer is `success`. Only when started.
    virtual int utilization(Device device, unsigned& percent) = 0;
    /// °C; absent when the GPU does not tell. Only when started.
    virtual std::optional<double> temperature(Device device) = 0;
};

std::unique_ptr<NvidiaLibrary> makeNvidiaLibrary();

inline constexpr const char* nvidiaLibraryName = "libnvidia-ml.so.1";

/// As of the library itself.
bool isNvidiaLibraryInstalled();

} // namespace vantrix
