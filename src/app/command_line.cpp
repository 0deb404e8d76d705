#include "app/command_line.h"

#include <algorithm>
#include <locale>
#include <sstream>

#include "support/integer.h"

namespace vantrix {
namespace {

constexpr std::string_view exportFlag = "-exportScreenshots";
constexpr double leastInterval = 0.5;
constexpr double mostInterval = 3600.0;

/// Without from_chars, which cannot read fractions in every standard library.
std::optional<double> fraction(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double number = 0.0;
    if (!(stream >> std::noskipws >> number) || stream.peek() != std::istringstream::traits_type::eof())
        return std::nullopt;
    return number;
}

/// "/host/proc/" as "/host/proc".
std::string withoutTrailingSlashes(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

/// Goes through the arguments up to the first mistake.
class Parser {
  public:
    explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    std::variant<CommandLine, std::string> parse() {
        // In any place and despite any other argument: scripts rely on that.
        const auto flag = std::find(arguments_.begin(), arguments_.end(), exportFlag);
        if (flag != arguments_.end() && flag + 1 != arguments_.end()) {
            result_.action = Action::exportScreenshots;
            result_.exportFolder = *(flag + 1);
            return result_;
        }
        while (next_ < arguments_.size() && error_.empty())
            parseOption(arguments_[next_++]);
        if (error_.empty())
            checkCombination();
        if (!error_.empty())
            return error_;
        return result_;
    }

  private:
    using Action = CommandLine::Action;

    void parseOption(const std::string& option) {
        if (option == "--help" || option == "-h")
            act(Action::help, option);
        else if (option == "--version")
            act(Action::version, option);
        else if (option == "--show-popover")
            act(Action::showPopover, option);
        else if (option == "--quit")
            act(Action::quit, option);
        else if (option == "--show-settings")
            parseShowSettings(option);
        else if (option == "--doctor")
            parseDoctor(option);
        else if (option == "--started-by-bus")
            result_.isStartedByBus = true; // the session bus says so itself; no option for people
        else if (option == "-platform" || option == "--platform")
            value(option); // the windowing toolkit reads it itself
        else if (option == "-reverse" || option == exportFlag)
            return; // the toolkit's own, for a layout from right to left; and a flag without its folder
        else
            parseSetting(option);
    }

    void parseSetting(const std::string& option) {
        if (option == "--print")
            parsePrint(option);
        else if (option == "--interval")
            parseInterval(option);
        else if (option == "--count")
            parseCount(option);
        else if (option == "--modules")
            parseModules(option);
        else if (option == "--capture")
            parseCapture(option);
        else if (option == "--replay")
            result_.replayFolder = folder(option);
        else if (option == "--proc-root")
            result_.roots.proc = withoutTrailingSlashes(value(option));
        else if (option == "--sys-root")
            result_.roots.sys = withoutTrailingSlashes(value(option));
        else
            error_ = "unknown option " + option + " (see vantrix --help)";
    }

    void act(Action action, const std::string& option) {
        if (result_.action != Action::run)
            error_ = option + " cannot be combined with another request";
        result_.action = action;
    }

    std::string value(const std::string& option) {
        if (next_ >= arguments_.size()) {
            error_ = option + " needs a value";
            return {};
        }
        return arguments_[next_++];
    }

    /// A value that must not be empty.
    std::string folder(const std::string& option) {
        std::string path = value(option);
        if (error_.empty() && path.empty())
            error_ = option + " needs a folder";
        return path;
    }

    void parseCapture(const std::string& option) {
        act(Action::capture, option);
        result_.captureFolder = folder(option);
    }

    void parsePrint(const std::string& option) {
        act(Action::print, option);
        const std::string format = value(option);
        if (format == "text")
            result_.format = PrintFormat::text;
        else if (format == "json")
            result_.format = PrintFormat::json;
        else if (format == "waybar")
            result_.format = PrintFormat::waybar;
        else if (error_.empty())
            error_ = "--print takes text, json or waybar, not " + format;
    }

    void parseInterval(const std::string& option) {
        const auto seconds = fraction(value(option));
        if (error_.empty() && !(seconds && *seconds >= leastInterval && *seconds <= mostInterval))
            error_ = "--interval takes seconds from 0.5 to 3600";
        result_.interval = seconds;
        printOptions_.push_back(option);
    }

    void parseCount(const std::string& option) {
        const auto count = parseInteger<long>(value(option));
        if (error_.empty() && !(count && *count >= 1))
            error_ = "--count takes a whole number from 1";
        result_.count = count;
        printOptions_.push_back(option);
    }

    void parseModules(const std::string& option) {
        std::istringstream names(value(option));
        std::vector<MenuBarModule> modules;
        for (std::string name; std::getline(names, name, ',') && error_.empty();) {
            const auto module = choiceNamed(menuBarModules, name);
            if (module)
                modules.push_back(*module);
            else if (name == "processes")
                result_.listsPrograms = true;
            else
                error_ = "--modules: there is no module " + name;
        }
        if (error_.empty() && modules.empty() && !result_.listsPrograms)
            error_ = "--modules needs at least one module";
        result_.modules = std::move(modules);
        printOptions_.push_back(option);
    }

    void parseShowSettings(const std::string& option) {
        act(Action::showSettings, option);
        if (next_ >= arguments_.size() || arguments_[next_].starts_with('-'))
            return;
        result_.settingsTab = choiceNamed(settingsTabs, arguments_[next_]);
        if (!result_.settingsTab)
            error_ = "--show-settings takes general, menuBar, popover or alerts, not " + arguments_[next_];
        ++next_;
    }

    void parseDoctor(const std::string& option) {
        act(Action::doctor, option);
        if (next_ >= arguments_.size() || arguments_[next_].starts_with('-'))
            return;
        const std::string& format = arguments_[next_++];
        if (format == "json")
            result_.format = PrintFormat::json;
        else if (format != "text")
            error_ = "--doctor takes text or json, not " + format;
    }

    void checkCombination() {
        if (result_.listsPrograms && result_.format != PrintFormat::json)
            error_ = "--modules processes goes with --print json";
        const bool isCapture = result_.action == Action::capture;
        for (const std::string& option : printOptions_)
            if (result_.action != Action::print && (!isCapture || option == "--modules"))
                error_ = option + " goes with --print" + (option == "--modules" ? "" : " or --capture");
        if (!result_.replayFolder.empty())
            checkReplay();
    }

    void checkReplay() {
        const bool isShown =
            result_.action == Action::run || result_.action == Action::print || result_.action == Action::doctor;
        if (!isShown)
            error_ = "--replay goes with --print, --doctor or alone";
        else if (result_.interval)
            error_ = "--replay keeps to the times of the capture: it takes no --interval";
        else if (result_.roots != KernelRoots())
            error_ = "--replay reads its own trees: it takes no --proc-root and no --sys-root";
    }

    const std::vector<std::string>& arguments_;
    std::size_t next_ = 0;
    CommandLine result_;
    std::string error_;
    std::vector<std::string> printOptions_;
};

} // namespace

std::variant<CommandLine, std::string> parseCommandLine(const std::vector<std::string>& arguments) {
    return Parser(arguments).parse();
}

std::string helpText() {
    return "Usage: vantrix [OPTION]...\n"
           "Shows live readings of this machine in the status area of the desktop.\n"
           "\n"
           "  --print FORMAT        no window: one line per pass on standard output, as\n"
           "                        text, json or waybar (that bar's custom module)\n"
           "                        json is in bytes, bytes per second, °C and W, whatever\n"
           "                        units the settings choose for the other two\n"
           "  --interval SECONDS    with --print: time between passes, 0.5 to 3600\n"
           "  --count N             with --print: stop after N passes\n"
           "  --modules A,B         with --print: what to show, of cpu, memory, network,\n"
           "                        disk, gpu, temperature, battery; in json processes, too\n"
           "  --doctor [json]       tell what every reading comes from and why one is\n"
           "                        missing; what a bug report starts with\n"
           "  --capture DIR         write what is read on this machine into the empty folder\n"
           "                        DIR, without addresses, serial numbers and names: so\n"
           "                        that others can see a fault; --count (3) and --interval\n"
           "  --replay DIR          show such a capture instead of this machine, with\n"
           "                        --print, --doctor or alone\n"
           "  --show-popover        open the popover of the running program\n"
           "  --show-settings [TAB] open its settings\n"
           "  --quit                end it\n"
           "  -exportScreenshots DIR  draw the popover, the status row and the settings into\n"
           "                        PNG files in DIR, from demo readings, and end\n"
           "  --proc-root DIR       read the kernel's process tree from DIR, not /proc\n"
           "  --sys-root DIR        read the kernel's device tree from DIR, not /sys\n"
           "  --version, --help, -h\n";
}

} // namespace vantrix
