#pragma once

#include "app/command_line.h"

namespace vantrix {

/// Runs the program without a window: one line per pass on standard output until the count is reached, standard
/// output closes or a signal ends it. Needs no display. Returns the exit status.
int runInTerminal(const CommandLine& commandLine, int& argc, char** argv);

} // namespace vantrix
