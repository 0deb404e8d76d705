#pragma once

#include <csignal>
#include <sys/prctl.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "posix/spin_until.h"

namespace vantrix {

/// A message bus of the test's own; gone with the object. It starts no service but one that is `startable`, and of
/// that a program which leaves it to the test to take the name.
class PrivateBus {
  public:
    explicit PrivateBus(const QByteArray& startable = {}) {
        const QByteArray folder = QFile::encodeName(folder_.path());
        put("startable.service", "[D-BUS Service]\nName=" + startable + "\nExec=/bin/sleep 20\n");
        put("bus.conf", "<busconfig><type>session</type><listen>unix:dir=" + folder +
                            "</listen><policy context=\"default\"><allow send_destination=\"*\"/><allow own=\"*\"/>"
                            "<allow eavesdrop=\"true\"/></policy>" +
                            (startable.isEmpty() ? "" : "<servicedir>" + folder + "</servicedir>") + "</busconfig>\n");
        // Not left behind by a test that crashes.
        daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--config-file=") + folder_.filePath(QStringLiteral("bus.conf")),
                       QStringLiteral("--print-address"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead())
            continue;
        address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
        EXPECT_FALSE(address_.isEmpty()) << "no dbus-daemon";
    }

    ~PrivateBus() { kill(); }

    const QString& address() const { return address_; }

    void kill() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

  private:
    void put(const char* name, const QByteArray& contents) const {
        QFile file(folder_.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

} // namespace vantrix
