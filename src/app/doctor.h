#pragma once

#include "app/command_line.h"

namespace vantrix {

/// Prints what every reading comes from and why one is missing. Needs neither a display nor a bus, changes nothing and
/// wakes nothing; takes about a second, and a few where something hangs. Returns the exit status.
int runDoctor(const CommandLine& commandLine, const char* version, int& argc, char** argv);

} // namespace vantrix
