#pragma once

#include <cstdint>
#include <vector>

namespace vantrix {

/// Processor load between two calls. All values are fractions, 0.0 to 1.0.
struct CPUSample {
    double total = 0.0;          ///< busy share of all cores together, tick-weighted
    double user = 0.0;           ///< user and nice ticks' share of all ticks
    double system = 0.0;         ///< system ticks' share of all ticks
    std::vector<double> perCore; ///< busy share of each logical core, in the system's order

    bool operator==(const CPUSample&) const = default;
};

class CPUSampler {
  public:
    /// Cumulative ticks of one logical core; each counter wraps at 2^32.
    struct Ticks {
        std::uint32_t user = 0;
        std::uint32_t system = 0;
        std::uint32_t idle = 0;
        std::uint32_t nice = 0;

        bool operator==(const Ticks&) const = default;
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Replaces `cores` by the counters of every online logical core, in the system's order. False when they
        /// cannot be read; `cores` is then unspecified.
        virtual bool read(std::vector<Ticks>& cores) = 0;
    };

    /// `source` outlives the sampler.
    explicit CPUSampler(Source& source) : source_(source) {}

    /// The load since the previous call; null when the counters cannot be read. The first call, and the first after
    /// the number of cores changed, gives zeros: there is nothing to measure from. The record belongs to the sampler
    /// and is valid until the next call, so that a pass allocates nothing. One caller at a time.
    const CPUSample* sample();

    /// True when the record that `sample` last returned only set the baseline and measured nothing.
    bool isBaseline() const { return isBaseline_; }

  private:
    void measure();

    Source& source_;
    std::vector<Ticks> previous_;
    std::vector<Ticks> current_;
    CPUSample sample_;
    bool isBaseline_ = true;
};

} // namespace vantrix
