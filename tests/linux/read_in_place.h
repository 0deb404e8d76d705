#pragma once

#include "linux/kernel/reading_manner.h"

namespace vantrix {

/// While it lives, devices are read by whoever asks for their values, which are those of that moment.
struct ReadInPlace {
    ReadInPlace() { readingManner.isRepeatable = true; }
    ~ReadInPlace() { readingManner = {}; }
    ReadInPlace(const ReadInPlace&) = delete;
    ReadInPlace& operator=(const ReadInPlace&) = delete;
};

} // namespace vantrix
