#include "app/command_line.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using Action = CommandLine::Action;

TEST(CommandLine, ReadsEveryRequest) {
    struct Case {
        std::vector<std::string> arguments;
        Action action;
    };
    const Case cases[] = {
        {{}, Action::run},
        {{"--print", "json"}, Action::print},
        {{"--help"}, Action::help},
        {{"--version"}, Action::version},
        {{"--show-popover"}, Action::showPopover},
        {{"--show-settings"}, Action::showSettings},
        {{"--show-settings", "menuBar"}, Action::showSettings},
        {{"--quit"}, Action::quit},
        {{"--doctor"}, Action::doctor},
        {{"--doctor", "text"}, Action::doctor},
        {{"--doctor", "json", "--sys-root", "/host/sys"}, Action::doctor},
        {{"-platform", "offscreen"}, Action::run},
        {{"-reverse"}, Action::run},
        {{"-exportScreenshots"}, Action::run}, // no folder behind it
        {{"-exportScreenshots", "/tmp/pictures"}, Action::exportScreenshots},
        {{"--nonsense", "-exportScreenshots", "--print"}, Action::exportScreenshots}, // into a folder of that name
    };
    for (const Case& c : cases) {
        const auto parsed = parseCommandLine(c.arguments);
        ASSERT_TRUE(std::holds_alternative<CommandLine>(parsed)) << std::get<std::string>(parsed);
        EXPECT_EQ(std::get<CommandLine>(parsed).action, c.action);
    }
}

TEST(CommandLine, ReadsThePrintOptions) {
    const auto parsed = parseCommandLine({"--print", "waybar", "--interval", "0.5", "--count", "3", "--modules",
                                          "disk,cpu", "--proc-root", "/host/proc/", "--sys-root", "/host/sys//"});
    const auto& line = std::get<CommandLine>(parsed);
    EXPECT_EQ(line.format, PrintFormat::waybar);
    EXPECT_EQ(line.interval, 0.5);
    EXPECT_EQ(line.count, 3);
    EXPECT_EQ(line.modules, (std::vector{MenuBarModule::disk, MenuBarModule::cpu}));
    EXPECT_EQ(line.roots, (KernelRoots{"/host/proc", "/host/sys"}));
}

TEST(CommandLine, TheUsualRootsAreThisMachinesHoweverTheyAreWritten) {
    for (const auto& roots : {std::vector<std::string>{"--proc-root", "/proc/"}, {"--sys-root", "/sys"}, {}})
        EXPECT_TRUE(std::get<CommandLine>(parseCommandLine(roots)).watchesThisMachine());
    EXPECT_FALSE(std::get<CommandLine>(parseCommandLine({"--proc-root", "/"})).watchesThisMachine());
}

TEST(CommandLine, SaysInOneLineWhatIsWrong) {
    const std::vector<std::vector<std::string>> wrong = {
        {"--unknown"},
        {"stray"},
        {""},
        {"--print"},
        {"--print", "xml"},
        {"--print", "text", "--interval", "0.4"},
        {"--print", "text", "--interval", "2s"},
        {"--print", "text", "--interval", "nan"},
        {"--print", "text", "--interval", "1e9"},
        {"--print", "text", "--count", "0"},
        {"--print", "text", "--count", "99999999999999999999"},
        {"--print", "text", "--modules", "cpu,CPU"},
        {"--print", "text", "--modules", ""},
        {"--print", "text", "--quit"},
        {"--doctor", "xml"},
        {"--doctor", "waybar"},
        {"--doctor", "--print", "json"},
        {"--doctor", "--count", "2"},
        {"--interval", "2"},
        {"--count", "2"},
        {"--show-settings", "sounds"},
        {"--proc-root"},
    };
    for (const auto& arguments : wrong) {
        const auto parsed = parseCommandLine(arguments);
        ASSERT_TRUE(std::holds_alternative<std::string>(parsed)) << ::testing::PrintToString(arguments);
        EXPECT_EQ(std::get<std::string>(parsed).find('\n'), std::string::npos);
        EXPECT_FALSE(std::get<std::string>(parsed).empty());
    }
}

} // namespace
} // namespace vantrix
