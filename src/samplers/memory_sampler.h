#pragma once

#include <cstdint>
#include <optional>

namespace vantrix {

/// Physical memory, in bytes. Memory in use is `app` + `wired` + `compressed`.
struct MemorySample {
    enum class Pressure { normal, warning, critical };

    std::uint64_t total = 0;      ///< installed
    std::uint64_t app = 0;        ///< anonymous memory of applications that cannot simply be dropped
    std::uint64_t wired = 0;      ///< memory that can never be paged out
    std::uint64_t compressed = 0; ///< held by the memory compressor
    std::uint64_t swapUsed = 0;   ///< 0 also when it cannot be read
    Pressure pressure = Pressure::normal;

    bool operator==(const MemorySample&) const = default;
};

/// "normal", "warning" or "critical".
const char* wordOf(MemorySample::Pressure pressure);

/// app + wired + compressed, bytes. A sum past 64 bits is a fault.
std::uint64_t usedMemory(const MemorySample& memory);

/// `usedMemory` / total, at most 1; 0 when the total is 0.
double usedFraction(const MemorySample& memory);

class MemorySampler {
  public:
    /// The kernel's own figures; each count is in pages.
    struct Statistics {
        std::uint64_t wireCount = 0;
        std::uint64_t purgeableCount = 0;
        std::uint64_t compressorPageCount = 0;
        std::uint64_t internalPageCount = 0;
        std::uint64_t pageSize = 0;                ///< bytes
        std::uint64_t physicalMemory = 0;          ///< bytes
        std::optional<std::uint64_t> swapUsed;     ///< bytes
        std::optional<std::int64_t> pressureLevel; ///< 1 normal, 2 warning, 4 critical
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Absent when the page counts cannot be read.
        virtual std::optional<Statistics> read() = 0;
    };

    /// `source` outlives the sampler.
    explicit MemorySampler(Source& source) : source_(source) {}

    /// Absent when the page counts cannot be read. Every call stands alone.
    std::optional<MemorySample> sample();

  private:
    Source& source_;
};

} // namespace vantrix
