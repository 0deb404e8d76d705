#include "app/command_line.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using Action = CommandLine::Action;
using namespace Qt::StringLiterals;

/// Arguments with one blank between them; two blanks make an empty one.
auto parsed(const char* line) {
    std::vector<std::string> arguments;
    for (const QString& argument : QString::fromLatin1(line).split(u' '))
        arguments.push_back(argument.toStdString());
    return parseCommandLine(arguments);
}

TEST(CommandLine, ReadsWhatMayBeLeftOut) {
    const std::pair<const char*, Action> cases[] = {
        {"--show-settings", Action::showSettings},
        {"--doctor", Action::doctor},
        {"--doctor json --sys-root /host/sys", Action::doctor},
        {"--capture /tmp/a --interval 1", Action::capture},
        {"--replay /tmp/a", Action::run},
        {"--replay /tmp/a --doctor json", Action::doctor},
        {"-platform offscreen", Action::run},
        {"-exportScreenshots", Action::run},                                  // no folder behind it
        {"--nonsense -exportScreenshots --print", Action::exportScreenshots}, // into a folder of that name
    };
    for (const auto& [line, action] : cases) {
        const auto result = parsed(line);
        ASSERT_TRUE(std::holds_alternative<CommandLine>(result)) << std::get<std::string>(result);
        EXPECT_EQ(std::get<CommandLine>(result).action, action) << line;
    }
}

TEST(CommandLine, ReadsThePrintOptions) {
    const auto result = parsed("--print waybar --interval 0.5 --count 3 --modules disk,cpu --proc-root /host/proc/ "
                               "--sys-root /host/sys//");
    const auto& line = std::get<CommandLine>(result);
    EXPECT_EQ(line.action, Action::print);
    EXPECT_EQ(line.format, PrintFormat::waybar);
    EXPECT_EQ(line.interval, 0.5);
    EXPECT_EQ(line.count, 3);
    EXPECT_EQ(line.modules, (std::vector{MenuBarModule::disk, MenuBarModule::cpu}));
    EXPECT_EQ(line.roots, (KernelRoots{"/host/proc", "/host/sys"}));
    const auto programs = std::get<CommandLine>(parsed("--modules processes --print json"));
    EXPECT_TRUE(programs.listsPrograms && programs.modules->empty() && !line.listsPrograms);
}

TEST(CommandLine, TheUsualRootsAreThisMachinesHoweverTheyAreWritten) {
    for (const char* roots : {"--proc-root /proc/", "--sys-root /sys"})
        EXPECT_TRUE(std::get<CommandLine>(parsed(roots)).watchesThisMachine()) << roots;
    for (const char* others : {"--proc-root /", "--replay /tmp/a"})
        EXPECT_FALSE(std::get<CommandLine>(parsed(others)).watchesThisMachine()) << others;
}

TEST(CommandLine, SaysInOneLineWhatIsWrong) {
    const char* const lines[] = {
        "--unknown",
        "",
        "--print xml",
        "--print text --interval 0.4",
        "--print text --interval nan",
        "--print text --count 99999999999999999999",
        "--print text --modules cpu,CPU",
        "--print text --modules ",
        "--print waybar --modules cpu,processes",
        "--print text --quit",
        "--doctor xml",
        "--doctor --count 2",
        "--capture",
        "--capture ",
        "--capture a --modules cpu",
        "--capture a --replay b",
        "--replay a --print text --interval 2",
        "--replay a --sys-root /host/sys",
        "--replay a --quit",
        "--interval 2",
        "--show-settings sounds",
        "--proc-root",
    };
    for (const char* line : lines) {
        const auto result = parsed(line);
        ASSERT_TRUE(std::holds_alternative<std::string>(result)) << line;
        EXPECT_FALSE(std::get<std::string>(result).empty());
        EXPECT_EQ(std::get<std::string>(result).find('\n'), std::string::npos);
    }
}

/// "--print", "-h" and the like, once each.
QStringList optionsIn(const QString& text) {
    static const QRegularExpression option(QStringLiteral("(?<![-\\w])(--?\\w[-\\w]+|-h\\b)"));
    QStringList found;
    for (const auto& match : option.globalMatch(text))
        found.append(match.captured());
    found.removeDuplicates();
    found.sort();
    return found;
}

TEST(CommandLine, IsToldAlikeByHelpManualAndCompletions) {
    const QStringList told = optionsIn(QString::fromStdString(helpText()));
    EXPECT_GE(told.size(), 15);
    for (const QString& option : told) {
        const auto result = parseCommandLine({option.toStdString()});
        const auto* error = std::get_if<std::string>(&result);
        EXPECT_FALSE(error != nullptr && error->starts_with("unknown")) << *error;
    }
    // How each writes an option, in pairs of what stands there and what is meant.
    const std::pair<const char*, QStringList> files[] = {
        // The list alone counts, not where options are spoken of.
        {"vantrix.1", {u"--"_s, u""_s, u".It Fl "_s, u"@"_s, u", Fl h"_s, u"@h"_s, u" -"_s, u""_s, u"@"_s, u"-"_s}},
        {"completions/vantrix.bash", {}},
        {"completions/vantrix.zsh", {}},
        {"completions/vantrix.fish", {u" -l "_s, u" --"_s, u" -o "_s, u" -"_s, u" -s "_s, u" -"_s}},
    };
    for (const auto& [name, spelling] : files) {
        QFile file(QStringLiteral(SOURCE_TREE "/resources/linux/") + QLatin1StringView(name));
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << name;
        QString text = QString::fromUtf8(file.readAll());
        for (int i = 0; i < spelling.size(); i += 2)
            text.replace(spelling[i], spelling[i + 1]);
        EXPECT_EQ(optionsIn(text), told) << name << ": " << optionsIn(text).join(u' ').toStdString();
        const auto knows = [&](std::string_view word) {
            return text.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(QLatin1StringView(word))));
        };
        for (const auto& module : menuBarModules)
            EXPECT_TRUE(knows(module.rawValue)) << name << ": " << module.rawValue;
        for (const auto& tab : settingsTabs)
            EXPECT_TRUE(knows(tab.rawValue)) << name << ": " << tab.rawValue;
    }
}

} // namespace
} // namespace vantrix
