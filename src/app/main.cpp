#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include "app/app_delegate.h"
#include "app/command_line.h"
#include "app/doctor.h"
#include "app/screenshot_export.h"
#include "app/terminal_output.h"
#include "app/translations.h"
#include "menubar/preferences.h"
#include "platform/appearance.h"
#include "platform/application_service.h"
#include "platform/bluetooth.h"
#include "platform/capture.h"
#include "platform/desktop_services.h"
#include "platform/login_item.h"
#include "platform/notification_center.h"
#include "platform/onlookers.h"
#include "platform/widget_center.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr int usageError = 2;
constexpr std::chrono::seconds patienceWithBus{2};

int fail(const std::string& message, int status) {
    std::fprintf(stderr, "vantrix: %s\n", message.c_str());
    return status;
}

int request(const std::string& message) {
    const bool isTaken = askApplicationService(message) || sendToRunningInstance(message);
    return isTaken ? 0 : fail("no running Vantrix answers in this session", 1);
}

std::string settingsRequest(const CommandLine& commandLine) {
    std::string message = "show-settings";
    if (commandLine.settingsTab)
        message += ' ' + std::string(choiceOf(settingsTabs, *commandLine.settingsTab).rawValue);
    return message;
}

/// Goes on to the next pass of a capture each time; stays at the last.
class ReplayTimer final : public RepeatingTimer {
  public:
    explicit ReplayTimer(Replay& replay) : replay_(replay) {}
    void schedule(double period, double tolerance, std::function<void()> fire) override {
        timer_.schedule(period, tolerance, [this, fire = std::move(fire)] {
            if (replay_.nextPass())
                fire();
        });
    }

  private:
    Replay& replay_;
    QtRepeatingTimer timer_;
};

std::unique_ptr<RepeatingTimer> makeTimer(Replay* replay) {
    if (replay == nullptr)
        return std::make_unique<QtRepeatingTimer>();
    return std::make_unique<ReplayTimer>(*replay);
}

int runInTerminal(const CommandLine& commandLine, Replay* replay, int& argc, char** argv) {
    return replay != nullptr ? printReplay(commandLine, *replay, argc, argv) : runInTerminal(commandLine, argc, argv);
}

/// What the session bus has started the program for; nothing when it does not tell soon.
std::vector<std::string> firstRequests(ApplicationService& service) {
    std::vector<std::string> requests;
    QEventLoop loop;
    service.received = [&](const std::string& message) {
        requests.push_back(message);
        loop.quit();
    };
    QTimer::singleShot(patienceWithBus, &loop, &QEventLoop::quit);
    loop.exec();
    service.received = {};
    return requests;
}

/// To the instance that runs without the bus having known.
int passOn(const std::vector<std::string>& requests) {
    for (const std::string& message : requests)
        if (!sendToRunningInstance(message))
            return fail("the running Vantrix does not answer", 1);
    return 0;
}

int runInStatusArea(const CommandLine& commandLine, Replay* replay, int& argc, char** argv) {
    auto display = prepareDisplay(argc, argv);
    if (!display && commandLine.isStartedByBus)
        return fail("there is no display to draw on", 1);
    if (!display) {
        std::fprintf(stderr, "vantrix: there is no display to draw on; printing the readings here instead\n");
        return runInTerminal(commandLine, replay, argc, argv);
    }
    ignoreBrokenPipes();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication application(argc, argv);
    display.reset();
    installTranslations();
    QApplication::setApplicationName(QStringLiteral("vantrix"));
    QApplication::setDesktopFileName(QString::fromLatin1(applicationId));
    const auto channel = claimInstance();
    if (!channel && replay != nullptr)
        return fail("--replay: Vantrix runs in this session; --quit ends it", 1);
    if (!channel && !commandLine.isStartedByBus)
        return request("show-popover"); // started twice: the user wants to see the one that runs
    const auto service = makeApplicationService();
    const auto wanted = commandLine.isStartedByBus ? firstRequests(*service) : std::vector<std::string>();
    if (!channel)
        return passOn(wanted);
    if (std::find(wanted.begin(), wanted.end(), "quit") != wanted.end())
        return 0; // without a trace on the screen
    UserDefaults defaults(makeStandardDefaultsStore());
    const auto appearance = makeAppearanceSource();
    AppDelegate delegate(
        {
            .sources = replay != nullptr ? replay->makeSources() : makeSamplingSources(commandLine.roots),
            .appearance = *appearance,
            .makeStatusItem =
                [&](StatusItem::Handlers handlers) {
                    return makeStatusItem(std::move(handlers), defaults, *appearance);
                },
            .loginItem = makeLoginItem(),
            .notifications = makeNotificationCenter(),
            .widgets = makeWidgetCenter(),
            .onlookers = makeOnlookers(),
            .bluetooth = commandLine.watchesThisMachine() ? makeBluetooth() : Bluetooth(),
            .timer = makeTimer(replay),
        },
        defaults);
    channel->answer = [&](const std::string& message) { return delegate.answerTo(message); };
    channel->received = [&](const std::string& message) { delegate.handleRequest(message); };
    service->received = channel->received;
    TerminationSignals signals([] { QApplication::quit(); });
    delegate.applicationDidFinishLaunching();
    for (const std::string& message : wanted)
        delegate.handleRequest(message);
    return QApplication::exec();
}

int drawScreenshots(const CommandLine& commandLine, int& argc, char** argv) {
    drawOffscreen();
    QApplication application(argc, argv);
    installTranslations();
    return exportScreenshots(
        QString::fromLocal8Bit(commandLine.exportFolder), [&] { return makeSamplingSources(commandLine.roots); },
        makeStandardDefaultsStore);
}

int perform(const CommandLine& commandLine, int& argc, char** argv) {
    using Action = CommandLine::Action;
    if (commandLine.action == Action::run || commandLine.action == Action::print ||
        commandLine.action == Action::doctor || commandLine.action == Action::capture)
        if (const auto root = unreadableRoot(commandLine.roots))
            return fail("cannot read the folder " + *root, usageError);
    std::unique_ptr<Replay> replay;
    if (!commandLine.replayFolder.empty()) {
        auto started = startReplay(commandLine.replayFolder);
        if (const auto* problem = std::get_if<std::string>(&started))
            return fail("--replay: " + *problem, usageError);
        replay = std::move(std::get<std::unique_ptr<Replay>>(started));
    }
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
        return runInTerminal(commandLine, replay.get(), argc, argv);
    case Action::doctor:
        return runDoctor(commandLine, VANTRIX_VERSION, replay.get(), argc, argv);
    case Action::capture:
        return runCapture(commandLine, argc, argv);
    case Action::exportScreenshots:
        return drawScreenshots(commandLine, argc, argv);
    case Action::run:
        break;
    }
    return runInStatusArea(commandLine, replay.get(), argc, argv);
}

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    vantrix::prepareProcess();
    const auto parsed = vantrix::parseCommandLine({argv + 1, argv + argc});
    if (const auto* problem = std::get_if<std::string>(&parsed))
        return vantrix::fail(*problem, vantrix::usageError);
    return vantrix::perform(std::get<vantrix::CommandLine>(parsed), argc, argv);
}
