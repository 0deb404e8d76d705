#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "menubar/display_choices.h"
#include "platform/sampling_sources.h"

namespace vantrix {

enum class PrintFormat { text, json, waybar };

/// What the program was asked to do.
struct CommandLine {
    enum class Action {
        run,
        print,
        doctor,
        capture,
        help,
        version,
        showPopover,
        showSettings,
        quit,
        exportScreenshots
    };

    Action action = Action::run;
    PrintFormat format = PrintFormat::text; ///< of `print`; of `doctor` text or json
    std::optional<double> interval;         ///< seconds, 0.5 to 3600; absent: the stored preference
    std::optional<long> count;              ///< passes, at least 1; absent: until interrupted, or for `capture` 3
    std::optional<std::vector<MenuBarModule>> modules; ///< absent: those enabled in the settings
    bool listsPrograms = false;                        ///< of `print` as JSON: "processes" was among the modules
    std::optional<SettingsTab> settingsTab;
    std::string exportFolder;    ///< of `exportScreenshots`
    std::string captureFolder;   ///< of `capture`
    std::string replayFolder;    ///< of `run`, `print` and `doctor`: read a capture, not this machine; may be empty
    KernelRoots roots;           ///< without trailing slashes
    bool isStartedByBus = false; ///< of `run`: the session bus has a request, and waits for the program to take it

    /// False when the roots are those of a host watched from inside a container, and in a replay: the services here say
    /// nothing about that machine.
    bool watchesThisMachine() const { return roots == KernelRoots() && replayFolder.empty(); }
};

/// The parsed arguments (without the program's name), or one line that says what is wrong with them.
std::variant<CommandLine, std::string> parseCommandLine(const std::vector<std::string>& arguments);

/// The text of --help.
std::string helpText();

} // namespace vantrix
