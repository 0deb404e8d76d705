// What the running program costs while nobody looks: this program plays the status area's host, as real hosts behave
// (every change signal is answered by asking for all properties anew), starts the program and measures it from outside.
// Usage: idle_bench PROGRAM SECONDS [HOST-NAME]

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <sys/prctl.h>
#include <time.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>
#include <QTimer>

namespace {

constexpr int settleSeconds = 8; // fonts, first pictures, the bus's own start

double cpuMilliseconds(qint64 process) {
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(static_cast<pid_t>(process), &clock) != 0 || clock_gettime(clock, &time) != 0)
        return 0.0;
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The sum of a file's lines of the given names, e.g. "Private_Dirty: 12 kB".
long sumOf(const std::filesystem::path& path, std::initializer_list<const char*> names) {
    std::ifstream file(path);
    long sum = 0;
    for (std::string line; std::getline(file, line);)
        for (const char* name : names)
            if (line.starts_with(name))
                sum += std::stol(line.substr(line.find(':') + 1));
    return sum;
}

long contextSwitches(qint64 process) {
    long sum = 0;
    std::error_code ignored;
    for (const auto& task : std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task", ignored))
        sum += sumOf(task.path() / "status", {"voluntary_ctxt_switches", "nonvoluntary_ctxt_switches"});
    return sum;
}

double ussMebibytes(qint64 process) {
    return static_cast<double>(sumOf("/proc/" + std::to_string(process) + "/smaps_rollup", {"Private_"})) / 1024.0;
}

} // namespace

class Host : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
  public:
    bool hostRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    QStringList items() const { return items_; }

    Q_SCRIPTABLE void RegisterStatusNotifierHost(const QString&) {}
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& name) {
        const QString service = name.startsWith(u'/') ? message().service() : name;
        items_ += service;
        paths_[message().service()] = name.startsWith(u'/') ? name : QStringLiteral("/StatusNotifierItem");
        paths_[service] = paths_[message().service()];
        for (const char* signal : {"NewIcon", "NewToolTip", "NewTitle", "NewStatus", "XAyatanaNewLabel"})
            QDBusConnection::sessionBus().connect(service, paths_[service],
                                                  QStringLiteral("org.kde.StatusNotifierItem"),
                                                  QLatin1StringView(signal), this, SLOT(refresh(QDBusMessage)));
        fetch(service);
    }

    void startProgram(const QString& path) {
        program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program_.start(path, {});
    }

    void measure(int seconds) {
        before_ = {cpuMilliseconds(program_.processId()), contextSwitches(program_.processId()), signals_};
        QTimer::singleShot(seconds * 1000, this, [this, seconds] { report(seconds); });
    }

  public Q_SLOTS:
    void refresh(const QDBusMessage& signal) {
        ++signals_;
        fetch(signal.service());
    }

  private:
    struct State {
        double cpu = 0.0;
        long switches = 0;
        int signals = 0;
    };

    void fetch(const QString& service) {
        auto call = QDBusMessage::createMethodCall(
            service, paths_[service], QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
        call << QStringLiteral("org.kde.StatusNotifierItem");
        auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            watcher->deleteLater();
            if (watcher->isError() || firstPictureCpu_ > 0.0)
                return;
            firstPictureCpu_ = cpuMilliseconds(program_.processId());
        });
    }

    void report(int seconds) {
        const qint64 process = program_.processId();
        const double perMinute = 60.0 / seconds;
        std::printf("%-34s %8.1f\n", "CPU ms to the first picture", firstPictureCpu_);
        std::printf("%-34s %8.1f\n", "CPU ms a minute", (cpuMilliseconds(process) - before_.cpu) * perMinute);
        std::printf("%-34s %8.0f\n", "context switches a minute",
                    static_cast<double>(contextSwitches(process) - before_.switches) * perMinute);
        std::printf("%-34s %8.0f\n", "change signals a minute", (signals_ - before_.signals) * perMinute);
        std::printf("%-34s %8.1f\n", "USS MiB", ussMebibytes(process));
        std::fflush(stdout);
        program_.terminate();
        program_.waitForFinished(5000);
        QCoreApplication::quit();
    }

    QProcess program_;
    QStringList items_;
    std::map<QString, QString> paths_;
    double firstPictureCpu_ = 0.0;
    int signals_ = 0;
    State before_;
};

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: idle_bench PROGRAM SECONDS [HOST-NAME]\n", stderr);
        return 2;
    }
    if (argc > 3)
        prctl(PR_SET_NAME, argv[3]); // the program treats hosts by their process name
    QCoreApplication application(argc, argv);
    Host host;
    auto bus = QDBusConnection::sessionBus();
    bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &host,
                       QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableInvokables |
                           QDBusConnection::ExportAllProperties);
    if (!bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"))) {
        std::fputs("idle_bench: another status area answers on this bus\n", stderr);
        return 1;
    }
    host.startProgram(QString::fromLocal8Bit(argv[1]));
    QTimer::singleShot(settleSeconds * 1000, &host, [&] { host.measure(std::atoi(argv[2])); });
    return QCoreApplication::exec();
}

#include "idle_bench.moc"
