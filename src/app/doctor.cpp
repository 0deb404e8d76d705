#include "app/doctor.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>

#include <sys/ioctl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QLocale>
#include <QTimer>

#include "app/standard_output.h"
#include "doctor/examination.h"
#include "doctor/system_facts.h"
#include "menubar/preferences.h"
#include "platform/desktop_services.h"
#include "support/finishes_within.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds betweenPasses{500}; // loads and rates are differences between two readings
constexpr milliseconds servicePatience{1000};
constexpr milliseconds readPatience{2000};
constexpr const char* captureAdvice =
    "Is a reading wrong or missing? vantrix --capture DIR writes down what is read on this machine, without addresses, "
    "serial numbers and names. Whoever gets that folder sees what you see.";
constexpr const char* bluetoothElsewhere = "Levels are only asked for on the machine itself, not through another root.";

/// The terminal's width, within limits that read well; 80 for a file, so that all reports look the same.
int columns() {
    winsize size{};
    const bool isTerminal = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isTerminal ? std::clamp<int>(size.ws_col, 72, 120) : 80;
}

/// Puts the report together. What may hang is asked on a thread of its own and waited for only so long.
class Doctor {
  public:
    Doctor(const KernelRoots& roots, const char* version, Replay* replay)
        : roots_(replay != nullptr ? replay->roots() : roots), version_(version), replay_(replay) {}

    DoctorReport examine();

    /// True when a thread is still waiting for something that hangs.
    bool leftThreadBehind() const { return leftThreadBehind_; }

  private:
    std::optional<DoctorInstance> findInstance();
    std::vector<SourceDiagnosis> askSources(const Findings& findings);
    std::vector<SourceDiagnosis> askServices();

    /// What `ask` returns; absent when it hangs.
    template<typename Answer>
    std::optional<Answer> inTime(std::function<Answer()> ask) {
        const auto answer = std::make_shared<Answer>();
        if (finishesWithin(readPatience, [answer, ask = std::move(ask)] { *answer = ask(); }))
            return std::move(*answer);
        leftThreadBehind_ = true;
        return std::nullopt;
    }

    KernelRoots roots_;
    const char* version_;
    Replay* replay_; ///< null on this machine
    bool leftThreadBehind_ = false;
};

void waitUntil(const QElapsedTimer& start, milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(std::max(time - milliseconds(start.elapsed()), milliseconds(0)), &loop, &QEventLoop::quit);
    loop.exec();
}

/// A report is shown to others, so it does not spell out the user's folders.
void hidePrivateFolders(DoctorReport& report) {
    const QString home = QDir::homePath();
    for (const QString& path : {home, QFileInfo(home).canonicalFilePath()})
        renameFolder(report, path.toStdString(), "~");
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        renameFolder(report, qEnvironmentVariable(variable).toStdString(), std::string("$") + variable);
}

/// What is told of the machine that replays, not of the one that was captured.
void forgetThisMachine(DoctorReport& report) {
    std::erase_if(report.system, [](const auto& fact) {
        return fact.first == "System" || fact.first == "Session" || fact.first == "Roots";
    });
    for (DoctorRow& row : report.readings)
        row.microseconds.reset();
}

std::optional<DoctorInstance> Doctor::findInstance() {
    using Statistics = std::optional<ProcessStatistics>;
    const auto pid = replay_ != nullptr ? std::nullopt : runningInstance();
    if (!pid)
        return std::nullopt;
    DoctorInstance instance{.pid = *pid};
    // Its memory figures cannot be read while it is changing its address space.
    if (*pid != 0)
        instance.statistics =
            inTime<Statistics>([pid = *pid] { return processStatistics(pid); }).value_or(std::nullopt);
    const auto place = sendToRunningInstance(statusItemQuestion);
    instance.statusItem = !place ? "It does not answer." : *place == "ok" ? "" : *place;
    return instance;
}

/// Where the sources cannot be told in time, the readings are listed without them.
std::vector<SourceDiagnosis> Doctor::askSources(const Findings& findings) {
    using Rows = std::vector<SourceDiagnosis>;
    if (auto rows = inTime<Rows>([this] { return replay_ != nullptr ? replay_->diagnose() : diagnoseSources(roots_); }))
        return std::move(*rows);
    Rows rows;
    for (const auto& found : findings)
        rows.push_back({std::string(found.first),
                        "unknown",
                        SourceState::ok,
                        {},
                        "Where it comes from could not be found out in time."});
    return rows;
}

std::vector<SourceDiagnosis> Doctor::askServices() {
    std::vector<SourceDiagnosis> rows;
    if (replay_ != nullptr)
        return rows;
    const auto services = diagnoseServices(servicePatience);
    QEventLoop loop;
    services->finished = [&](std::vector<SourceDiagnosis> answers) {
        rows = std::move(answers);
        loop.quit();
    };
    loop.exec();
    leftThreadBehind_ = leftThreadBehind_ || services->leftThreadBehind;
    return rows;
}

DoctorReport Doctor::examine() {
    DoctorReport report;
    auto sources = replay_ != nullptr ? replay_->makeSources() : makeSamplingSources(roots_);
    const auto information = std::move(sources.information);
    report.instance = findInstance(); // first, so that this run does not count in its figures
    Examination examination(std::move(sources), readPatience);
    UserDefaults defaults(makeStandardDefaultsStore());
    examination.choose(storedText(defaults, preference_key::networkInterface),
                       storedText(defaults, preference_key::diskVolume));
    QElapsedTimer start;
    start.start();
    examination.beginPass();
    auto services = askServices();
    if (replay_ == nullptr)
        waitUntil(start, betweenPasses);
    else
        replay_->nextPass();
    const auto findings = examination.finish();
    report.readings = joined(askSources(findings), findings);
    leftThreadBehind_ = leftThreadBehind_ || examination.leftThreadBehind();
    for (SourceDiagnosis& row : services) {
        const bool isReading = row.name == reading_name::bluetooth;
        if (isReading && roots_ != KernelRoots())
            row = {row.name, row.source, SourceState::absent, {}, bluetoothElsewhere};
        (isReading ? report.readings : report.services).push_back({std::move(row), {}});
    }
    if (roots_ != KernelRoots()) {
        renameFolder(report, roots_.proc, "<proc>");
        renameFolder(report, roots_.sys, "<sys>");
    }
    report.system = systemFacts(version_, *information, roots_);
    if (replay_ != nullptr)
        forgetThisMachine(report);
    else if (canCapture())
        report.advice = captureAdvice;
    hidePrivateFolders(report);
    return report;
}

} // namespace

int runDoctor(const CommandLine& commandLine, const char* version, Replay* replay, int& argc, char** argv) {
    ignoreBrokenPipes();
    prepareTerminal();
    QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale::c()); // others than the user read the report
    Doctor doctor(commandLine.roots, version, replay);
    const DoctorReport report = doctor.examine();
    const bool isJSON = commandLine.format == PrintFormat::json;
    const int status = writeOut(isJSON ? jsonReport(report) : textReport(report, columns())).value_or(0);
    if (doctor.leftThreadBehind())
        std::_Exit(status); // an orderly exit would destroy what that thread still uses
    return status;
}

} // namespace vantrix
