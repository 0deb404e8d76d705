#include "app/terminal_output.h"

#include <cstdio>
#include <thread>

#include <QCoreApplication>
#include <QTimer>

#include "app/printed_line.h"
#include "app/standard_output.h"
#include "app/translations.h"
#include "menubar/preferences.h"
#include "monitor/system_monitor.h"
#include "platform/bluetooth.h"
#include "platform/desktop_services.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr std::chrono::milliseconds firstLook{250}; // a load is the difference between two readings

/// Only the JSON format lists accessories.
Bluetooth bluetoothFor(const CommandLine& commandLine) {
    const bool isWanted = commandLine.format == PrintFormat::json && commandLine.watchesThisMachine();
    return isWanted ? makeBluetooth() : Bluetooth();
}

/// Prints the monitor's readings after each pass.
class LinePrinter {
  public:
    LinePrinter(const CommandLine& commandLine, const SystemMonitor& monitor, const UserDefaults& defaults)
        : commandLine_(commandLine), monitor_(monitor), defaults_(defaults) {}

    /// The exit status once there is nothing more to print.
    std::optional<int> print() {
        if (const auto status = writeOut(nextLine() + '\n'))
            return status;
        return ++printed_ == commandLine_.count ? std::optional(0) : std::nullopt;
    }

  private:
    std::string nextLine() const {
        const Readings& readings = monitor_.readings();
        if (commandLine_.format == PrintFormat::json)
            return jsonLine(readings, commandLine_.modules, commandLine_.listsPrograms);
        const auto items = menuBarItems(commandLine_.modules ? *commandLine_.modules : enabledMenuBarModules(defaults_),
                                        readings, defaults_);
        return commandLine_.format == PrintFormat::waybar ? waybarLine(items) : textLine(items);
    }

    const CommandLine& commandLine_;
    const SystemMonitor& monitor_;
    const UserDefaults& defaults_;
    long printed_ = 0;
};

/// Stores nothing.
class NoStore final : public DefaultsStore {
  public:
    QVariant value(const QString&) const override { return {}; }
    void setValue(const QString&, const QVariant&) override {}
};

int fail(const std::string& message) {
    std::fprintf(stderr, "vantrix: %s\n", message.c_str());
    return 1;
}

/// A look before the first pass, since loads and rates are differences, then the passes.
bool takePasses(Capture& capture, long count, double interval) {
    const UserDefaults defaults(std::make_unique<NoStore>());
    capture.beginPass();
    SystemMonitor monitor(capture.makeSources(), defaults, std::make_unique<QtRepeatingTimer>(),
                          std::make_unique<ImmediateTaskRunner>());
    monitor.setInterval(interval);
    monitor.sample();
    bool isWritten = capture.endPass({});
    for (long pass = 0; isWritten && pass < count; ++pass) {
        std::this_thread::sleep_for(std::chrono::duration<double>(interval));
        capture.beginPass();
        monitor.sample();
        isWritten = capture.endPass(jsonLine(monitor.readings(), {}));
    }
    return isWritten;
}

} // namespace

int runCapture(const CommandLine& commandLine, int& argc, char** argv) {
    constexpr long usualCount = 3;
    QCoreApplication application(argc, argv);
    UserDefaults defaults(makeStandardDefaultsStore());
    registerPreferences(defaults);
    const double interval = commandLine.interval.value_or(updateInterval(defaults));
    auto started = startCapture(commandLine.captureFolder, commandLine.roots, interval);
    if (const auto* problem = std::get_if<std::string>(&started))
        return fail("--capture: " + *problem);
    Capture& capture = *std::get<std::unique_ptr<Capture>>(started);
    if (!takePasses(capture, commandLine.count.value_or(usualCount), interval))
        return fail("--capture: cannot write into the folder " + commandLine.captureFolder);
    return writeOut(std::to_string(capture.fileCount()) + " files in " + commandLine.captureFolder +
                    ": look at its README before you send them\n")
        .value_or(0);
}

int printReplay(const CommandLine& commandLine, Replay& replay, int& argc, char** argv) {
    ignoreBrokenPipes();
    QCoreApplication application(argc, argv);
    UserDefaults defaults(std::make_unique<NoStore>());
    registerPreferences(defaults);
    SystemMonitor monitor(replay.makeSources(), defaults, std::make_unique<QtRepeatingTimer>(),
                          std::make_unique<ImmediateTaskRunner>());
    monitor.setInterval(replay.interval().value_or(updateInterval(defaults)));
    LinePrinter printer(commandLine, monitor, defaults);
    monitor.sample();
    while (replay.nextPass()) {
        monitor.sample();
        if (const auto status = printer.print())
            return *status;
    }
    return 0;
}

int runInTerminal(const CommandLine& commandLine, int& argc, char** argv) {
    ignoreBrokenPipes();
    prepareTerminal();
    QCoreApplication application(argc, argv);
    installTranslations();
    UserDefaults defaults(makeStandardDefaultsStore());
    registerPreferences(defaults);
    SystemMonitor monitor(makeSamplingSources(commandLine.roots), defaults, std::make_unique<QtRepeatingTimer>(),
                          std::make_unique<ThreadTaskRunner>(), bluetoothFor(commandLine));
    LinePrinter printer(commandLine, monitor, defaults);
    TerminationSignals signals([] { QCoreApplication::quit(); });
    const std::shared_ptr<void> watch = commandLine.listsPrograms ? monitor.watchPrograms() : nullptr;
    monitor.sample();
    QTimer::singleShot(firstLook, &monitor, [&] {
        monitor.onUpdate = [&] {
            if (const auto status = printer.print())
                QCoreApplication::exit(*status);
        };
        monitor.start(commandLine.interval.value_or(updateInterval(defaults)));
    });
    if (!commandLine.interval)
        QObject::connect(&defaults, &UserDefaults::changed, &monitor,
                         [&] { monitor.setInterval(updateInterval(defaults)); });
    return QCoreApplication::exec();
}

} // namespace vantrix
