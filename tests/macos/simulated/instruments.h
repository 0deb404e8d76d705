#pragma once

#include <map>
#include <string>

#include "monitor/samplers.h"

namespace vantrix::simulated {

/// Every reading in words, by name; "-" for an absent one.
using ReadingTexts = std::map<std::string, std::string>;

/// All samplers over the sources of the present machine.
struct Instruments : Samplers {
    Instruments() : Samplers(makeSamplingSources({})) {}

    /// One pass of all samplers.
    ReadingTexts pass();
};

} // namespace vantrix::simulated
