#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include "app/app_delegate.h"
#include "app/command_line.h"
#include "app/terminal_output.h"
#include "menubar/preferences.h"
#include "platform/desktop_services.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr int usageError = 2;

int fail(const std::string& message, int status) {
    std::fprintf(stderr, "vantrix: %s\n", message.c_str());
    return status;
}

/// The first root that cannot be read, if any.
std::optional<std::string> unreadableRoot(const KernelRoots& roots) {
    std::error_code error;
    for (const std::string& root : {roots.proc, roots.sys})
        if (!std::filesystem::is_directory(root, error) || ::access(root.c_str(), R_OK | X_OK) != 0)
            return root;
    return std::nullopt;
}

int request(const std::string& message) {
    return sendToRunningInstance(message) ? 0 : fail("no running Vantrix answers in this session", 1);
}

std::string settingsRequest(const CommandLine& commandLine) {
    std::string message = "show-settings";
    if (commandLine.settingsTab)
        message += ' ' + std::string(choiceOf(settingsTabs, *commandLine.settingsTab).rawValue);
    return message;
}

/// Stores every preference as it stands.
void storePreferences(UserDefaults& defaults) {
    for (const Preference& preference : allPreferences()) {
        if (preference.standard.typeId() == QMetaType::Bool)
            defaults.set(preference.key, defaults.boolean(preference.key));
        else if (preference.standard.typeId() == QMetaType::Double)
            defaults.set(preference.key, defaults.number(preference.key));
        else if (preference.registered)
            defaults.set(preference.key, *defaults.string(preference.key));
    }
}

/// The settings live in a file that a person can read; it is watched, so every saved edit shows at once.
void editSettings(UserDefaults& defaults) {
    storePreferences(defaults); // a file that names every setting explains itself
    defaults.synchronize();
    QDesktopServices::openUrl(QUrl::fromLocalFile(settingsFile()));
}

int runInStatusArea(const CommandLine& commandLine, int& argc, char** argv) {
    auto display = prepareDisplay(argc, argv);
    if (!display) {
        std::fprintf(stderr, "vantrix: there is no display to draw on; printing the readings here instead\n");
        return runInTerminal(commandLine, argc, argv);
    }
    ignoreBrokenPipes();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication application(argc, argv);
    display.reset();
    QApplication::setApplicationName(QStringLiteral("vantrix"));
    QApplication::setApplicationDisplayName(QStringLiteral("Vantrix"));
    const auto channel = claimInstance();
    if (!channel)
        return request("show-popover"); // started twice: the user wants to see the one that runs
    UserDefaults defaults(makeStandardDefaultsStore());
    AppDelegate delegate(
        {
            .sources = makeSamplingSources(commandLine.roots),
            .makeStatusItem =
                [&](StatusItem::Handlers handlers) { return makeStatusItem(std::move(handlers), defaults); },
            .showSettings = [&] { editSettings(defaults); },
        },
        defaults);
    channel->received = [&](const std::string& message) { delegate.handleRequest(message); };
    TerminationSignals signals([] { QApplication::quit(); });
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}

int perform(const CommandLine& commandLine, int& argc, char** argv) {
    using Action = CommandLine::Action;
    if (commandLine.action == Action::run || commandLine.action == Action::print)
        if (const auto root = unreadableRoot(commandLine.roots))
            return fail("cannot read the folder " + *root, usageError);
    switch (commandLine.action) {
    case Action::help:
        std::fputs(helpText().c_str(), stdout);
        return 0;
    case Action::version:
        std::puts("vantrix " VANTRIX_VERSION);
        return 0;
    case Action::showPopover:
        return request("show-popover");
    case Action::showSettings:
        return request(settingsRequest(commandLine));
    case Action::quit:
        return request("quit");
    case Action::print:
        return runInTerminal(commandLine, argc, argv);
    case Action::run:
        break;
    }
    return runInStatusArea(commandLine, argc, argv);
}

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    const auto parsed = vantrix::parseCommandLine({argv + 1, argv + argc});
    if (const auto* problem = std::get_if<std::string>(&parsed))
        return vantrix::fail(*problem, vantrix::usageError);
    return vantrix::perform(std::get<vantrix::CommandLine>(parsed), argc, argv);
}
