#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "support/user_defaults.h"

class QSocketNotifier;

namespace vantrix {

/// The settings of this user.
std::unique_ptr<DefaultsStore> makeStandardDefaultsStore();

/// Chooses the windowing system to draw on, unless there are several and the user chose one. Null when there is no
/// display at all. Call before the application object exists, and keep what is returned until it does: an X server
/// that loses its only client starts over, and would refuse the next one meanwhile.
std::shared_ptr<void> prepareDisplay(int argc, char** argv);

/// Draws without any display from now on. Call before the application object exists.
void drawOffscreen();

/// Lets what the system tells a program reach one without windows, too. Call before its application object exists.
void prepareTerminal();

/// Puts the program before all others, where its windows would else open behind theirs.
void activateProgram();

/// True when the display blends windows that have an alpha channel with what is behind them. May change at any time.
bool windowsAreBlended();

/// True when a whole window can be made more or less opaque.
bool windowsCanFade();

/// Writing to a closed pipe gives an error from then on instead of ending the program.
void ignoreBrokenPipes();

/// Calls `terminate` on the main thread when the system asks the program to end (SIGTERM, SIGINT, SIGHUP). Made after
/// the application object; a second request ends the program at once.
class TerminationSignals {
  public:
    explicit TerminationSignals(std::function<void()> terminate);
    ~TerminationSignals();

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

/// Lets one instance per session run and others talk to it.
class InstanceChannel {
  public:
    virtual ~InstanceChannel() = default;
    /// Called on the main thread for each request. Set before the event loop runs.
    std::function<void(const std::string&)> received;
};

/// This session's only instance; null when another one runs. Needs the application object's event loop to receive.
std::unique_ptr<InstanceChannel> claimInstance();

/// Hands `request` (one line) to the running instance; false when none answers within two seconds.
bool sendToRunningInstance(const std::string& request);

/// The process of the session's running instance, found without asking it anything; absent when none runs, 0 when it
/// runs out of sight, in another namespace of processes.
std::optional<int> runningInstance();

} // namespace vantrix
