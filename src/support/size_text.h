#pragma once

#include <cstdint>

#include <QString>

#include "support/units.h"

namespace vantrix {

/// The size of a file for people: "0 KB", "512 bytes", "12 KB", "9.4 MB", "1.25 TB". Decimal units; at most one digit
/// after the point for megabytes and two from gigabytes up; the decimal sign of the user's region.
QString byteText(std::uint64_t bytes);

/// The size of memory for people: the same in binary units, so that "10 GB" or "10 GiB" is 10 × 2³⁰ bytes.
QString memoryText(std::uint64_t bytes, MemoryUnit unit);

/// The same for bits, in decimal units: "0 kb", "512 bits", "2.4 Mb".
QString bitText(std::uint64_t bits);

} // namespace vantrix
