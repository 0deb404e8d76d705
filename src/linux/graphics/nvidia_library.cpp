#include "linux/graphics/nvidia_library.h"

#include <dlfcn.h>

namespace vantrix {
namespace {

/// The library, by its documented interface. It stays loaded and, at the end of the program, started: its functions may
/// hang, and the kernel lets go of every GPU for a process that ends.
class ManagementLibrary final : public NvidiaLibrary {
  public:
    bool isInstalled() const override { return isNvidiaLibraryInstalled(); }

    bool start() override {
        if (!isStarted_)
            isStarted_ = load() && initialize_() == success;
        return isStarted_;
    }

    void stop() override {
        if (isStarted_)
            shutdown_();
        isStarted_ = false;
    }

    std::optional<Device> find(const std::string& address) override {
        Device device = nullptr;
        return handleByAddress_(address.c_str(), &device) == success ? std::optional(device) : std::nullopt;
    }

    int utilization(Device device, unsigned& percent) override {
        Utilization utilization{};
        const int answer = utilizationRates_(device, &utilization);
        percent = utilization.gpu;
        return answer;
    }

    std::optional<double> temperature(Device device) override {
        constexpr int ofGPU = 0; // of what sensors a device may have
        unsigned celsius = 0;
        if (!temperature_ || temperature_(device, ofGPU, &celsius) != success)
            return std::nullopt;
        return celsius;
    }

  private:
    /// Percent of the time.
    struct Utilization {
        unsigned gpu;
        unsigned memory;
    };

    bool load() {
        if (!library_)
            library_ = dlopen(nvidiaLibraryName, RTLD_NOW | RTLD_LOCAL);
        if (library_)
            resolve(temperature_, "nvmlDeviceGetTemperature"); // newer libraries may drop it
        return library_ && resolve(initialize_, "nvmlInit_v2") && resolve(shutdown_, "nvmlShutdown") &&
               resolve(handleByAddress_, "nvmlDeviceGetHandleByPciBusId_v2") &&
               resolve(utilizationRates_, "nvmlDeviceGetUtilizationRates");
    }

    template<typename Function>
    bool resolve(Function*& function, const char* name) {
        function = reinterpret_cast<Function*>(dlsym(library_, name));
        return function != nullptr;
    }

    void* library_ = nullptr;
    bool isStarted_ = false;
    int (*initialize_)() = nullptr;
    int (*shutdown_)() = nullptr;
    int (*handleByAddress_)(const char*, Device*) = nullptr;
    int (*utilizationRates_)(Device, Utilization*) = nullptr;
    int (*temperature_)(Device, int sensor, unsigned*) = nullptr;
};

} // namespace

std::unique_ptr<NvidiaLibrary> makeNvidiaLibrary() {
    return std::make_unique<ManagementLibrary>();
}

bool isNvidiaLibraryInstalled() {
    void* const library = dlopen(nvidiaLibraryName, RTLD_LAZY | RTLD_LOCAL);
    if (library)
        dlclose(library);
    return library != nullptr;
}

} // namespace vantrix
