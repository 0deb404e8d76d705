#pragma once

#include <cstdint>

#include <QString>

namespace vantrix {

/// A count of bytes as people read sizes of files: decimal units, one digit after the point for
/// megabytes and two from gigabytes up, zeros dropped, the decimal sign of the user's region. "0 KB", "512 bytes", "12
/// KB", "9.4 MB", "1.25 TB".
QString byteText(std::uint64_t bytes);

/// The same as people read sizes of memory: binary units under the same names. "10 GB" is 10 × 2³⁰ bytes.
QString memoryText(std::uint64_t bytes);

} // namespace vantrix
