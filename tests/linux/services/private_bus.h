#pragma once

#include <chrono>
#include <csignal>
#include <sys/prctl.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace vantrix {

/// Runs the event loop until `done` holds; false when it does not come to hold in time.
template<typename Condition>
bool spinUntil(Condition done, std::chrono::milliseconds patience = std::chrono::seconds(20)) {
    const QDeadlineTimer deadline(patience);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return true;
}

/// A message bus of the test's own, which starts no services but those that `more` configures; gone with the object.
class PrivateBus {
  public:
    explicit PrivateBus(const QByteArray& more = {}) {
        QFile config(folder_.filePath(QStringLiteral("bus.conf")));
        if (!config.open(QIODevice::WriteOnly))
            return;
        config.write("<busconfig><type>session</type><listen>unix:dir=" + QFile::encodeName(folder_.path()) +
                     "</listen><policy context=\"default\"><allow send_destination=\"*\"/><allow own=\"*\"/>"
                     "<allow eavesdrop=\"true\"/></policy>" +
                     more + "</busconfig>\n");
        config.close();
        // Not left behind by a test that crashes.
        daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--print-address"),
                       QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead())
            continue;
        address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
    }

    ~PrivateBus() { kill(); }

    /// Empty when no dbus-daemon could be started.
    const QString& address() const { return address_; }

    void kill() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

  private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

} // namespace vantrix
