#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/graphics/gpu_power.h"
#include "linux/graphics/nvidia_job.h"
#include "linux/kernel/timed_value.h"

namespace vantrix {

/// The GPUs that NVIDIA's own driver runs. The library is asked about a GPU only while the kernel does not call it
/// asleep, and is started only while no GPU is asleep, since it may touch them all. It is stopped when none is at work.
/// All of that happens in the background: a pass takes the last answer.
class NvidiaGPUs {
  public:
    static constexpr double staleAfter = 10.0; ///< seconds without an answer

    NvidiaGPUs(std::unique_ptr<NvidiaLibrary> library, std::shared_ptr<Background> background)
        : job_(std::make_shared<NvidiaJob>(std::move(library))), background_(std::move(background)) {}

    /// The GPUs are from now on those at `addresses`, which are entries of `folder`.
    void set(const std::string& folder, std::vector<std::string> addresses);

    /// Appends the load of each GPU in percent, absent where it cannot be told; `now` in seconds.
    void read(double now, std::vector<std::optional<double>>& loads);

    /// °C of each, as of the last reading. NVIDIA's driver puts no temperature into <sys>.
    std::shared_ptr<const TimedValues> temperatures() const { return temperatures_; }

  private:
    struct GPU {
        GPUPowerFile powerFile;
        GPURest rest;
        bool isAsleep = false;
        bool isResting = false;
        bool tellsLoad = false; ///< as far as is known
        std::optional<double> load = {};
        std::optional<double> temperature = {};

        bool isAtWork() const { return !isAsleep && !isResting; }
    };

    void refreshPower(double now);
    void ask(double now);
    void collect();
    void forgetAnswers();
    void tellTemperatures(double now);

    std::shared_ptr<NvidiaJob> job_; // shared with a thread that may outlive this
    std::shared_ptr<Background> background_;
    std::shared_ptr<TimedValues> temperatures_ = std::make_shared<TimedValues>();
    std::vector<std::string> addresses_;
    std::vector<GPU> gpus_;
    bool areNew_ = false; // the job does not know of them yet
    bool isUnderWay_ = false;
    double askedAt_ = 0.0;
};

} // namespace vantrix
