#include "platform/linux/sources/nvidia_library.h"

#include <dlfcn.h>

namespace vantrix {
namespace {

struct Close {
    void operator()(void* library) const { dlclose(library); }
};

/// The library, by its documented interface; every function answers 0 for success.
class ManagementLibrary final : public NvidiaLibrary {
  public:
    ~ManagementLibrary() override { stop(); }

    bool start() override {
        if (!isStarted_)
            isStarted_ = load() && initialize_() == 0;
        return isStarted_;
    }

    void stop() override {
        if (isStarted_)
            shutdown_();
        isStarted_ = false;
    }

    std::optional<Device> find(const std::string& address) override {
        Device device = nullptr;
        return handleByAddress_(address.c_str(), &device) == 0 ? std::optional(device) : std::nullopt;
    }

    std::optional<unsigned> utilization(Device device) override {
        Utilization utilization{};
        return utilizationRates_(device, &utilization) == 0 ? std::optional(utilization.gpu) : std::nullopt;
    }

  private:
    /// Percent of the time.
    struct Utilization {
        unsigned gpu;
        unsigned memory;
    };

    bool load() {
        if (!library_)
            library_.reset(dlopen(nvidiaLibraryName, RTLD_NOW | RTLD_LOCAL));
        return library_ && resolve(initialize_, "nvmlInit_v2") && resolve(shutdown_, "nvmlShutdown") &&
               resolve(handleByAddress_, "nvmlDeviceGetHandleByPciBusId_v2") &&
               resolve(utilizationRates_, "nvmlDeviceGetUtilizationRates");
    }

    template<typename Function>
    bool resolve(Function*& function, const char* name) {
        function = reinterpret_cast<Function*>(dlsym(library_.get(), name));
        return function != nullptr;
    }

    std::unique_ptr<void, Close> library_;
    bool isStarted_ = false;
    int (*initialize_)() = nullptr;
    int (*shutdown_)() = nullptr;
    int (*handleByAddress_)(const char*, Device*) = nullptr;
    int (*utilizationRates_)(Device, Utilization*) = nullptr;
};

} // namespace

std::unique_ptr<NvidiaLibrary> makeNvidiaLibrary() {
    return std::make_unique<ManagementLibrary>();
}

bool isNvidiaLibraryInstalled() {
    return std::unique_ptr<void, Close>(dlopen(nvidiaLibraryName, RTLD_LAZY | RTLD_LOCAL)) != nullptr;
}

} // namespace vantrix
