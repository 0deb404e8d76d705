#pragma once

#include "app/command_line.h"
#include "platform/capture.h"

namespace vantrix {

/// Prints where every reading comes from, and why any is missing. Needs neither a display nor a bus, changes nothing
/// and wakes no device. Takes about a second, a few more where something hangs. Returns the exit status.
int runDoctor(const CommandLine& commandLine, const char* version, Replay* replay, int& argc, char** argv);

} // namespace vantrix
