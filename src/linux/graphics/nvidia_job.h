#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/graphics/nvidia_library.h"
#include "linux/kernel/background.h"

namespace vantrix {

/// What a pass asks NVIDIA's library, and the answers. From when it is handed over until `isDone` it belongs to the
/// thread that performs it.
class NvidiaJob : public Background::Job {
  public:
    struct GPU {
        std::string address;
        bool isAsked = false;                   ///< else it is left alone
        bool mayFallAsleep = false;             ///< by itself, once it is let go of
        std::optional<double> load = {};        ///< percent; absent when it was not asked, or does not tell
        std::optional<double> temperature = {}; ///< °C, likewise
        std::optional<NvidiaLibrary::Device> device = {};
    };

    explicit NvidiaJob(std::unique_ptr<NvidiaLibrary> library) : library_(std::move(library)) {}

    /// May be asked while a thread performs it.
    bool isLibraryInstalled() const { return library_->isInstalled(); }

    /// To be called when `gpus` are others than before.
    void setAddresses(const std::vector<std::string>& addresses);

    /// Starts the library if a GPU is asked and it `mayStart`, and stops it when nothing keeps it: whatever holds a GPU
    /// open keeps it awake, so an idle one is let go of at once.
    void perform() override;

    std::vector<GPU> gpus;
    bool mayStart = false;
    double now = 0.0;       ///< seconds
    double nextStart = 0.0; ///< a start that failed is tried again from this time on
    bool isStarted = false;
    std::atomic<bool> isDone{false};

  private:
    void start();
    void stop();
    void ask(GPU& gpu);

    std::unique_ptr<NvidiaLibrary> library_;
    bool areGPUsNew_ = false;
};

} // namespace vantrix
