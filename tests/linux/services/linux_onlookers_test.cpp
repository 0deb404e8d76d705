#include "linux/services/linux_onlookers.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include "linux/services/fake_service.h"
#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

struct LoginSession {
    QString identifier;
    QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& argument, const LoginSession& session) {
    argument.beginStructure();
    argument << session.identifier << session.path;
    argument.endStructure();
    return argument;
}

[[maybe_unused]] const QDBusArgument& operator>>(const QDBusArgument& argument, LoginSession&) {
    return argument; // nobody here is told one
}

const QString sessionPath = u"/org/freedesktop/login1/session/_32"_s;
const QString sessionInterface = u"org.freedesktop.login1.Session"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

/// A service with one value, which it tells when asked for it, by whatever method, and when it changes.
struct FakeTeller : FakeService {
    FakeTeller(const PrivateBus& bus, const QString& name, const QString& path)
        : FakeService(
              bus.address(), name, path, [this](const QDBusMessage& call) { return reply(call); },
              QDBusConnection::SubPath) {
        qDBusRegisterMetaType<LoginSession>();
    }

    QDBusMessage reply(const QDBusMessage& call) const {
        if (call.member() == u"GetSession")
            return ownSession.isEmpty() ? call.createErrorReply(QDBusError::Failed, u"no such session"_s)
                                        : call.createReply(QVariant::fromValue(QDBusObjectPath(ownSession)));
        if (call.member() != u"Get")
            return call.createReply(value);
        const bool isSession = call.arguments().value(1) == u"Display"_s;
        const QVariant told =
            isSession ? QVariant::fromValue(LoginSession{u"2"_s, QDBusObjectPath(sessionPath)}) : value;
        return call.createReply(QVariant::fromValue(QDBusVariant(told)));
    }

    void setProperty(const QString& path, const QString& interface, const QString& property, const QVariant& now) {
        value = now;
        emitSignal(path, propertiesInterface, u"PropertiesChanged"_s,
                   {interface, QVariantMap{{property, now}}, QStringList()});
    }

    QVariant value = false;
    QString ownSession; ///< path of the one that is asked for
};

struct LinuxOnlookersTest : testing::Test {
    LinuxOnlookersTest() { qunsetenv("XDG_SESSION_ID"); }
    ~LinuxOnlookersTest() override { qunsetenv("XDG_SESSION_ID"); }

    void start() { onlookers = std::make_unique<LinuxOnlookers>(session.link(), system.link()); }
    bool becomes(bool somebodyLooks) {
        return spinUntil([&] { return onlookers->somebodyLooks() == somebodyLooks; });
    }

    PrivateBus session;
    PrivateBus system;
    std::unique_ptr<LinuxOnlookers> onlookers;
};

TEST_F(LinuxOnlookersTest, AreGoneWhileAScreenSaverThatRunsSaysSo) {
    const QString name = u"org.mate.ScreenSaver"_s;
    const QString path = u"/org/mate/ScreenSaver"_s;
    const auto tell = [&](FakeService& who, bool active) { who.emitSignal(path, name, u"ActiveChanged"_s, {active}); };
    start();
    EXPECT_TRUE(onlookers->somebodyLooks()) << "nothing tells";
    for (const bool dies : {false, true}) {
        auto saver = std::make_unique<FakeTeller>(session, name, path);
        saver->value = true;
        ASSERT_TRUE(saver->appear());
        EXPECT_TRUE(becomes(false)) << "it is on already";
        tell(*saver, false);
        EXPECT_TRUE(becomes(true));
        tell(*saver, true);
        EXPECT_TRUE(becomes(false));
        if (dies)
            session.kill();
        else
            saver.reset();
        EXPECT_TRUE(becomes(true)) << "one that is gone must not keep the row dark";
    }
    session.start();
    FakeTeller saver(session, name, path);
    ASSERT_TRUE(saver.appear());
    FakeTeller stranger(session, u"org.example"_s, path);
    EXPECT_TRUE(spinUntil([&] { return saver.count(u"GetActive") == 1; })) << "another bus";
    tell(stranger, true);
    tell(saver, true);
    EXPECT_TRUE(becomes(false));
    tell(stranger, false);
    saver.value = u"nonsense"_s;
    saver.resign();
    EXPECT_TRUE(becomes(true));
}

TEST_F(LinuxOnlookersTest, AreGoneWhileLogindLocksTheSession) {
    FakeTeller logind(system, u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s);
    logind.hangs = true;
    ASSERT_TRUE(logind.appear());
    start();
    ASSERT_TRUE(spinUntil([&] { return logind.asked.size() == 1; }));
    EXPECT_TRUE(onlookers->somebodyLooks()) << "it does not answer";
    logind.hangs = false;
    logind.value = true;
    logind.answer(logind.asked[0]);
    EXPECT_TRUE(becomes(false)) << "locked before";
    for (const bool locked : {false, true}) {
        logind.setProperty(sessionPath, sessionInterface, u"LockedHint"_s, locked);
        EXPECT_TRUE(becomes(!locked));
    }
    logind.setProperty(u"/org/freedesktop/login1/session/_33"_s, sessionInterface, u"LockedHint"_s, false);
    logind.setProperty(sessionPath, sessionInterface, u"IdleHint"_s, false);
    EXPECT_FALSE(onlookers->somebodyLooks());
    logind.resign();
    EXPECT_TRUE(becomes(true));
}

TEST_F(LinuxOnlookersTest, LookAtTheirOwnSessionAsLongAsThereIsOne) {
    const QString managerPath = u"/org/freedesktop/login1"_s;
    const QString ownPath = u"/org/freedesktop/login1/session/_37"_s;
    FakeTeller logind(system, u"org.freedesktop.login1"_s, managerPath);
    logind.ownSession = ownPath;
    ASSERT_TRUE(logind.appear());
    qputenv("XDG_SESSION_ID", "7");
    start();
    ASSERT_TRUE(spinUntil([&] { return logind.count(u"Get") == 1; }));
    logind.setProperty(sessionPath, sessionInterface, u"LockedHint"_s, true);
    logind.setProperty(ownPath, sessionInterface, u"LockedHint"_s, true);
    EXPECT_TRUE(becomes(false));
    logind.setProperty(ownPath, sessionInterface, u"LockedHint"_s, false);
    EXPECT_TRUE(becomes(true)) << "another session of the user's may be locked";
    logind.setProperty(ownPath, sessionInterface, u"LockedHint"_s, true);
    EXPECT_TRUE(becomes(false));
    logind.ownSession.clear();
    logind.value = false;
    logind.emitSignal(managerPath, u"org.freedesktop.login1.Manager"_s, u"SessionRemoved"_s,
                      {u"7"_s, QVariant::fromValue(QDBusObjectPath(ownPath))});
    EXPECT_TRUE(becomes(true));
    logind.setProperty(sessionPath, sessionInterface, u"LockedHint"_s, true);
    EXPECT_TRUE(becomes(false)) << "the user's graphical one counts instead";
}

TEST_F(LinuxOnlookersTest, AreGoneWhileGnomesDisplaysAreOff) {
    const QString name = u"org.gnome.Mutter.DisplayConfig"_s;
    const QString path = u"/org/gnome/Mutter/DisplayConfig"_s;
    FakeTeller mutter(session, name, path);
    mutter.value = 3;
    ASSERT_TRUE(mutter.appear());
    start();
    EXPECT_TRUE(becomes(false));
    for (const int mode : {0, 1, -1}) {
        mutter.setProperty(path, name, u"PowerSaveMode"_s, mode);
        EXPECT_TRUE(becomes(mode <= 0)) << mode;
    }
}

} // namespace
} // namespace vantrix
