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
    enum class Action { run, print, doctor, help, version, showPopover, showSettings, quit, exportScreenshots };

    Action action = Action::run;
    PrintFormat format = PrintFormat::text;            ///< of `print`; of `doctor` text or json
    std::optional<double> interval;                    ///< seconds, 0.5 to 3600; absent: the stored preference
    std::optional<long> count;                         ///< passes, at least 1; absent: until interrupted
    std::optional<std::vector<MenuBarModule>> modules; ///< absent: those enabled in the settings
    std::optional<SettingsTab> settingsTab;
    std::string exportFolder; ///< of `exportScreenshots`
    KernelRoots roots;        ///< without trailing slashes

    /// False for a host that is watched from inside a container: what this machine's services tell is not of it.
    bool watchesThisMachine() const { return roots == KernelRoots(); }
};

/// The parsed arguments (the program's own name left out), or one line that says what is wrong with them.
std::variant<CommandLine, std::string> parseCommandLine(const std::vector<std::string>& arguments);

/// The text of --help.
std::string helpText();

} // namespace vantrix
