#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/clock.h"

namespace vantrix {

/// What one application takes of the machine, all its processes together.
struct ProgramShare {
    std::string name; ///< as people know it; whoever made the program chose it: plain text on one line, never markup
    std::string icon; ///< a name in the icon theme, or the path of a picture or a bundle; empty: none is known
    int processes = 0;
    double cpu = 0.0;         ///< of all processors, 0 to 1; 0 after the first look
    std::uint64_t memory = 0; ///< bytes

    bool operator==(const ProgramShare&) const = default;
};

/// The programs that use the machine most, at most `listLength` in each list, those that use most first.
struct ProcessSample {
    static constexpr std::size_t listLength = 5;

    std::vector<ProgramShare> busiest; ///< by processor; empty after the first look, without those that did nothing
    std::vector<ProgramShare> largest; ///< by memory

    bool operator==(const ProcessSample&) const = default;
};

/// Sums processes up by application. Looking at all processes is dear beside every other reading: it is done while
/// somebody wants to know, and not otherwise.
class ProcessSampler {
  public:
    struct Application {
        std::string name; ///< both as in `ProgramShare`
        std::string icon;
    };

    struct Process {
        std::int32_t id = 0;
        std::uint64_t start = 0;       ///< greater for processes that began later, in a unit of the source's own
        std::uint64_t cpuTime = 0;     ///< nanoseconds in all
        std::uint64_t memory = 0;      ///< bytes; of pages that processes share, its part where the system tells it
        std::uint32_t application = 0; ///< its place in `Source::applications`
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Replaces `processes` by all that may be seen, in the order of their identifiers. False when they cannot be
        /// listed; `processes` is then unspecified.
        virtual bool read(std::vector<Process>& processes) = 0;
        /// Of the last `read`.
        virtual const std::vector<Application>& applications() const = 0;
        /// How many processors there were at the last `read`; at least 1.
        virtual int processors() const = 0;
        /// Gives back what it remembers of processes, as nobody wants to know any more.
        virtual void forget() = 0;
    };

    /// `source` and `clock` outlive the sampler. Several samplers may share a source.
    ProcessSampler(Source& source, const Clock& clock) : source_(source), clock_(clock) {}

    /// What ran since the previous call; valid until the next one. The first call sets the baseline. Null when the
    /// processes cannot be listed; the baseline then stays. One caller at a time.
    const ProcessSample* sample();

    /// How many processes the last look saw.
    std::size_t count() const { return previous_.size(); }

  private:
    struct Use {
        int processes = 0;
        std::uint64_t cpuTime = 0; // nanoseconds since the previous look
        std::uint64_t memory = 0;
    };

    void sumUp();
    void list(std::uint64_t Use::*rank, double capacity, std::vector<ProgramShare>& into);

    Source& source_;
    const Clock& clock_;
    std::vector<Process> current_;
    std::vector<Process> previous_;
    std::optional<double> previousTime_;
    std::uint64_t newestStart_ = 0;
    std::vector<Use> uses_; // by application
    std::vector<std::uint32_t> order_;
    ProcessSample sample_;
};

} // namespace vantrix
