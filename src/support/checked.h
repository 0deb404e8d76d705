#pragma once

#include <cstdint>
#include <optional>

namespace vantrix {

/// Prints "vantrix: <message>" on standard error and aborts. For states that only a fault can produce.
[[noreturn]] void fatalError(const char* message);

/// a + b; a sum past 64 bits is a fault, reported with `what` ("… overflows").
std::uint64_t checkedAdd(std::uint64_t a, std::uint64_t b, const char* what);

/// a × b; a product past 64 bits is a fault, reported with `what`.
std::uint64_t checkedMultiply(std::uint64_t a, std::uint64_t b, const char* what);

/// The growth of a 32-bit counter that wraps at 2^32.
constexpr std::uint32_t wrappingDifference(std::uint32_t now, std::uint32_t before) {
    return now - before;
}

/// The growth of a 64-bit counter, which never wraps; 0 for one that went down, because it was reset.
constexpr std::uint64_t clampedDifference(std::uint64_t now, std::uint64_t before) {
    return now > before ? now - before : 0;
}

/// part / whole; 0 when there is no whole.
constexpr double fractionOf(std::uint64_t part, std::uint64_t whole) {
    return whole > 0 ? static_cast<double>(part) / static_cast<double>(whole) : 0.0;
}

} // namespace vantrix
