#pragma once

#include "app/command_line.h"
#include "platform/capture.h"

namespace vantrix {

/// Runs the program without a window: one line per pass on standard output until the count is reached, standard
/// output closes or a signal ends it. Needs no display. Returns the exit status.
int runInTerminal(const CommandLine& commandLine, int& argc, char** argv);

/// The same for a capture, one line per pass without any waiting. What is printed depends on the capture alone: neither
/// on the settings nor on the language.
int printReplay(const CommandLine& commandLine, Replay& replay, int& argc, char** argv);

/// Takes a capture of this machine. Returns the exit status.
int runCapture(const CommandLine& commandLine, int& argc, char** argv);

} // namespace vantrix
