#include "app/doctor.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <sys/ioctl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>

#include "doctor/examination.h"
#include "doctor/system_facts.h"
#include "platform/desktop_services.h"

namespace vantrix {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds betweenPasses{500}; // loads and rates need two looks at the counters
constexpr milliseconds servicePatience{1000};
constexpr milliseconds readPatience{2000};

/// Of the terminal, within what can be read; 80 in a file, so that every report looks the same.
int columns() {
    winsize size{};
    const bool isTerminal = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isTerminal ? std::clamp<int>(size.ws_col, 72, 120) : 80;
}

std::vector<SourceDiagnosis> askServices() {
    std::vector<SourceDiagnosis> rows;
    const auto services = diagnoseServices(servicePatience);
    QEventLoop loop;
    services->finished = [&](std::vector<SourceDiagnosis> answers) {
        rows = std::move(answers);
        loop.quit();
    };
    loop.exec();
    return rows;
}

void waitUntil(const QElapsedTimer& start, milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(std::max(time - milliseconds(start.elapsed()), milliseconds(0)), &loop, &QEventLoop::quit);
    loop.exec();
}

std::optional<DoctorInstance> findInstance() {
    const auto pid = runningInstance();
    if (!pid)
        return std::nullopt;
    return DoctorInstance{*pid, *pid > 0 ? processStatistics(*pid) : std::nullopt};
}

DoctorReport makeReport(const KernelRoots& given, const char* version) {
    const KernelRoots roots = withoutTrailingSlashes(given);
    DoctorReport report;
    auto sources = makeSamplingSources(roots);
    const auto information = std::move(sources.information);
    report.instance = findInstance(); // before the rest costs the machine anything
    Examination examination(std::move(sources), readPatience);
    QElapsedTimer start;
    start.start();
    examination.beginPass();
    auto services = askServices();
    waitUntil(start, betweenPasses);
    report.readings = joined(diagnoseSources(roots), examination.finish());
    for (SourceDiagnosis& row : services) {
        auto& rows = row.name == reading_name::bluetooth ? report.readings : report.services;
        rows.push_back({std::move(row), {}});
    }
    if (roots != KernelRoots()) {
        renameFolder(report, roots.proc, "<proc>");
        renameFolder(report, roots.sys, "<sys>");
    }
    report.system = systemFacts(version, *information, roots);
    renameFolder(report, QDir::homePath().toStdString(), "~");
    return report;
}

bool isAnySilent(const DoctorReport& report) {
    const auto isSilent = [](const DoctorRow& row) { return row.diagnosis.state == SourceState::silent; };
    return std::any_of(report.readings.begin(), report.readings.end(), isSilent) ||
           std::any_of(report.services.begin(), report.services.end(), isSilent);
}

} // namespace

int runDoctor(const CommandLine& commandLine, const char* version, int& argc, char** argv) {
    ignoreBrokenPipes();
    QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale::c()); // a report is read by others than its user
    const DoctorReport report = makeReport(commandLine.roots, version);
    const bool isJSON = commandLine.format == PrintFormat::json;
    const std::string text = isJSON ? jsonReport(report) : textReport(report, columns());
    // A reader that went away is the usual end of a pipe, not a fault to report.
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
    if (isAnySilent(report))
        std::_Exit(0); // a thread may still wait for what is silent; ending in good order would wait for it
    return 0;
}

} // namespace vantrix
