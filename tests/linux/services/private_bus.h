#pragma once

#include <csignal>
#include <sys/prctl.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "linux/services/bus_link.h"
#include "posix/spin_until.h"

namespace vantrix {

/// A message bus of the test's own; gone with the object. It starts no service but one that is `startable`, and of
/// that a program which leaves it to the test to take the name; and what the files in the folder `services` say.
class PrivateBus {
  public:
    explicit PrivateBus(const QByteArray& startable = {}, const QByteArray& services = "/nowhere",
                        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
        const QByteArray folder = QFile::encodeName(folder_.path());
        put("startable.service", "[D-BUS Service]\nName=" + startable + "\nExec=/bin/sleep 20\n");
        put("bus.conf", "<busconfig><type>session</type><listen>" + address().toLocal8Bit() +
                            "</listen><policy context=\"default\"><allow send_destination=\"*\"/><allow own=\"*\"/>"
                            "<allow eavesdrop=\"true\"/></policy><servicedir>" +
                            folder + "</servicedir><servicedir>" + services + "</servicedir></busconfig>\n");
        daemon_.setProcessEnvironment(environment);
        // Not left behind by a test that crashes.
        daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        start();
    }

    ~PrivateBus() { kill(); }

    QString address() const { return QStringLiteral("unix:path=") + folder_.filePath(QStringLiteral("bus")); }

    /// A connection that is there already.
    std::shared_ptr<BusLink> link() const {
        auto link = std::make_shared<BusLink>(address(), std::chrono::milliseconds(5));
        EXPECT_TRUE(spinUntil([&] { return link->bus() != nullptr; }));
        return link;
    }

    /// Takes connections, but answers nobody.
    void freeze() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP); }

    void kill() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    /// After it was killed: another daemon at the same address.
    void start() {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--config-file=") + folder_.filePath(QStringLiteral("bus.conf")),
                       QStringLiteral("--print-address"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead())
            continue;
        EXPECT_FALSE(daemon_.readLine().isEmpty()) << "no dbus-daemon";
    }

  private:
    void put(const char* name, const QByteArray& contents) const {
        QFile file(folder_.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    QTemporaryDir folder_;
    QProcess daemon_;
};

} // namespace vantrix
