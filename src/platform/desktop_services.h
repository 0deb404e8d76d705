#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/user_defaults.h"

class QSocketNotifier;
class QWidget;

namespace vantrix {

struct StatusMenuEntry;

/// To be called first: makes sure that there are standard streams, and asks the system for many open files.
void prepareProcess();

/// Writes `text` to the plain file at `path`, behind what it holds or in its stead. False when that is impossible;
/// neither follows a link nor waits for whoever reads a pipe.
bool writePlainFile(const std::string& path, std::string_view text, bool appends);

/// The settings of this user.
std::unique_ptr<DefaultsStore> makeStandardDefaultsStore();

/// Chooses the windowing system to draw on, unless there are several and the user has chosen one. Null when there is no
/// display at all. Keeps the toolkit's plug-ins for desktops out of the program, too. Call before the application
/// object exists, and keep the result until it does: an X server that loses its only client resets itself, and refuses
/// connections meanwhile.
std::shared_ptr<void> prepareDisplay(int argc, char** argv);

/// Draws without any display from now on. Call before the application object exists.
void drawOffscreen();

/// Makes the system's events reach a program without windows too. Call before its application object exists.
void prepareTerminal();

/// Brings the program to the front, on systems where its windows would otherwise open behind those of others.
void activateProgram();

/// Shows a menu of `entries` below `widget`, drawn by the system, and returns when it has closed. False where the
/// program has to draw its menus itself.
bool popUpSystemMenu(const std::vector<StatusMenuEntry>& entries, const QWidget& widget);

/// Gives the system back the memory that the program holds only because it has started, once it has. Takes about a
/// millisecond.
void releaseIdleMemory();

/// True when the display blends windows that have an alpha channel with what is behind them. May change at any time.
bool windowsAreBlended();

/// True when a whole window can be made more or less opaque.
bool windowsCanFade();

/// True while a button of the mouse is held down, in whichever window; false where the display does not tell.
bool mouseIsPressed();

/// From now on, writing to a closed pipe is an error and does not end the program.
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

/// Keeps a session to one running instance, and receives the requests of others that are started.
class InstanceChannel {
  public:
    virtual ~InstanceChannel() = default;
    /// Called on the main thread for each request, after it was answered. Set before the event loop runs.
    std::function<void(const std::string&)> received;
    /// What to answer a request that asks something; empty for one that does not. Must not take long.
    std::function<std::string(const std::string&)> answer;
};

/// This session's only instance; null when another one runs. Needs the application object's event loop to receive.
std::unique_ptr<InstanceChannel> claimInstance();

/// What the running instance answers when asked that way: where its status item is shown, in a few words.
inline constexpr const char* statusItemQuestion = "tell-status-item";

/// Hands `request` (one line) to the running instance and returns its answer, at most 256 bytes; absent when none
/// answers within two seconds. "ok" to a request that asks nothing, or nothing that it knows.
std::optional<std::string> sendToRunningInstance(const std::string& request);

/// The process ID of the session's running instance, found without asking it anything. Absent when none runs; 0 when it
/// runs in another process namespace, where it has no number here.
std::optional<int> runningInstance();

} // namespace vantrix
