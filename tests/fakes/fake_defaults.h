#pragma once

#include "fakes/memory_defaults_store.h"
#include "menubar/preferences.h"

namespace vantrix::fakes {

/// Settings in memory with everything registered, as the running program has them.
struct FakeDefaults : UserDefaults {
    FakeDefaults() : UserDefaults(std::make_unique<MemoryDefaultsStore>()) { registerPreferences(*this); }
};

} // namespace vantrix::fakes
