#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/clock.h"

namespace vantrix {

/// Throughput summed over the active hardware ports, or of the one that was chosen, in bytes per second.
struct NetworkSample {
    double download = 0.0;
    double upload = 0.0;
    bool isThere = true; ///< false: the chosen port is gone, or down

    bool operator==(const NetworkSample&) const = default;
};

class NetworkSampler {
  public:
    /// Cumulative bytes of one interface.
    struct Counters {
        std::uint64_t received = 0;
        std::uint64_t sent = 0;

        bool operator==(const Counters&) const = default;
    };

    /// What it means when a counter of a source is less than before.
    enum class CounterWidth {
        bits32, ///< it wrapped at 2^32
        bits64, ///< it started over, as after a driver is loaded anew
    };

    static constexpr std::uint32_t linkUp = 0x1;       ///< IFF_UP
    static constexpr std::uint32_t linkRunning = 0x40; ///< IFF_RUNNING

    /// One entry of the system's interface list.
    struct Link {
        std::string name; ///< ports of the Ethernet class, Wi-Fi included, begin with "en"
        std::uint32_t flags = 0;
        std::optional<Counters> counters; ///< only on link-level entries that carry statistics
        int index = 0; ///< tells a link from another that had its name before; 0 where the system gives no number
        bool isNamedAnew = false; ///< the "en" in front is not in the system's own name
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Replaces `links` by the interface list. False when it cannot be read; `links` is then unspecified.
        virtual bool read(std::vector<Link>& links) = 0;
        virtual CounterWidth counterWidth() const = 0;
    };

    /// `source` and `clock` outlive the sampler.
    NetworkSampler(Source& source, const Clock& clock) : source_(source), clock_(clock) {}

    /// The throughput since the previous call; zero on the first call, and when no time has passed. Absent when the
    /// interface list cannot be read or is empty; the baseline then stays. One caller at a time.
    std::optional<NetworkSample> sample();

    /// Counts the port of that name alone from now on; empty: all of them.
    void choose(std::string port) { chosen_ = std::move(port); }
    const std::string& chosen() const { return chosen_; }

    /// The system's names of the hardware ports that the last call found, sorted, whether or not they are active.
    std::vector<std::string> ports() const;

  private:
    struct Port {
        std::string name;
        bool isChosen = true;
        int index = 0;
        Counters counters;
    };

    void collectPorts();
    std::optional<std::uint64_t> growth(std::uint64_t now, std::uint64_t before) const;
    NetworkSample rates(double elapsed) const;

    Source& source_;
    const Clock& clock_;
    std::string chosen_;
    std::vector<Link> links_;
    std::vector<Port> current_; // flat, not a map: a handful of ports, and its strings are reused on every pass
    std::vector<Port> previous_;
    std::optional<double> previousTime_;
};

} // namespace vantrix
