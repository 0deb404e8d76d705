#include "linux/services/desktop_notifications.h"

#include <QDBusArgument>

#include "linux/services/fake_service.h"
#include "linux/services/notification_picture.h"
#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

/// A notification daemon that numbers what it shows from `firstId`.
struct FakeNotificationService : FakeService {
    explicit FakeNotificationService(const QString& busAddress, uint firstId = 1)
        : FakeService(busAddress, QStringLiteral("org.freedesktop.Notifications"),
                      QStringLiteral("/org/freedesktop/Notifications"),
                      [nextId = firstId](const QDBusMessage& notify) mutable {
                          const uint replaced = notify.arguments().at(1).toUInt();
                          return notify.createReply(replaced != 0 ? replaced : nextId++);
                      }) {
        appear();
    }

    /// That it can do something is not noted, and told even by one that hangs otherwise.
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() != u"GetCapabilities")
            return FakeService::handleMessage(call, bus);
        ++questions;
        return bus.send(call.createReply(capabilities));
    }

    QStringList capabilities{u"body"_s, u"body-markup"_s};
    int questions = 0;
};

uint replacedBy(const QDBusMessage& notify) {
    return notify.arguments().at(1).toUInt();
}

QString titleOf(const QDBusMessage& notify) {
    return notify.arguments().at(3).toString();
}

struct DesktopNotificationsTest : testing::Test {
    void post(const QString& identifier, const QString& title = u"title"_s) {
        center.post(identifier, title, u"body"_s);
    }

    static bool gets(const FakeNotificationService& service, std::size_t count) {
        return spinUntil([&] { return service.asked.size() >= count; }) && service.asked.size() == count;
    }

    static std::optional<bool> authorization(DesktopNotifications& asked) {
        std::optional<bool> answer;
        asked.requestAuthorization([&](bool granted) { answer = granted; });
        EXPECT_FALSE(answer) << "answered before returning";
        EXPECT_TRUE(spinUntil([&] { return answer.has_value(); }));
        return answer;
    }

    PrivateBus bus;
    std::shared_ptr<BusLink> link = bus.link();
    DesktopNotifications center{link};
};

TEST_F(DesktopNotificationsTest, SaysWhatDaemonsUnderstand) {
    FakeNotificationService service(bus.address());
    center.post(u"vantrix.cpu"_s, u"A <title>"_s, u"Less < more"_s);
    ASSERT_TRUE(gets(service, 1));
    ASSERT_EQ(service.asked[0].signature(), u"susssasa{sv}i"_s);
    const QVariantList arguments = service.asked[0].arguments();
    EXPECT_EQ(arguments.mid(0, 5), QVariantList({u"Vantrix"_s, 0U, u"vantrix"_s, u"A <title>"_s, u"Less &lt; more"_s}));
    EXPECT_EQ(arguments[7], QVariant(-1));
    const auto hints = qdbus_cast<QVariantMap>(arguments[6]);
    EXPECT_EQ(hints.value(u"urgency"_s), QVariant::fromValue(uchar{1})); // daemons refuse another type than byte
    EXPECT_EQ(hints.value(u"desktop-entry"_s), u"app.vantrix.Vantrix"_s);
    EXPECT_FALSE(hints.value(u"sound-name"_s).toString().isEmpty());
}

TEST_F(DesktopNotificationsTest, HeedsWhatTheServiceCanDo) {
    FakeNotificationService service(bus.address());
    QStringList clicked;
    center.activated = [&](const QString& identifier) { clicked += identifier; };
    post(u"vantrix.cpu"_s);
    ASSERT_TRUE(gets(service, 1));
    EXPECT_EQ(service.asked[0].arguments()[5].toStringList(), QStringList());
    service.resign();
    service.capabilities = {u"body"_s, u"actions"_s};
    service.appear();
    EXPECT_EQ(authorization(center), true); // by now it knows of that
    post(u"vantrix.disk"_s);
    ASSERT_TRUE(gets(service, 2));
    center.post(u"vantrix.memory"_s, u"title"_s, u"Less < more"_s);
    ASSERT_TRUE(gets(service, 3));
    EXPECT_EQ(service.questions, 2);
    EXPECT_EQ(service.asked[2].arguments()[4].toString(), u"Less < more"_s);
    EXPECT_EQ(service.asked[2].arguments()[5].toStringList().value(0), u"default"_s);
    EXPECT_EQ(authorization(center), true);
    for (const uint id : {0U, 77U, 3U})
        service.emitSignal(u"/org/freedesktop/Notifications"_s, u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s,
                           {id, u"default"_s});
    EXPECT_TRUE(spinUntil([&] { return !clicked.isEmpty(); }));
    EXPECT_EQ(clicked, QStringList(u"vantrix.memory"_s));
}

TEST_F(DesktopNotificationsTest, BringsItsIconWhereItIsNotInstalled) {
    FakeNotificationService service(bus.address());
    post(u"a"_s);
    ASSERT_TRUE(gets(service, 1));
    const auto hints = qdbus_cast<QVariantMap>(service.asked[0].arguments()[6]);
    const auto picture = qdbus_cast<NotificationPicture>(hints.value(u"image-data"_s));
    EXPECT_EQ(picture, programPicture());
    EXPECT_EQ(picture.bytes.size(), 64 * 64 * 4);
    EXPECT_LT(picture.bytes.count('\0'), picture.bytes.size()) << "nothing is drawn";
}

TEST_F(DesktopNotificationsTest, ReplacesWhatTheSameServiceShowsUnderTheIdentifier) {
    for (int restart = 0; restart < 2; ++restart) {
        FakeNotificationService service(bus.address(), 40);
        EXPECT_EQ(authorization(center), true); // by now it knows of this service
        std::vector<uint> replaced;
        for (const auto& identifier : {u"a"_s, u"b"_s, u"a"_s, u"a"_s, u"b"_s}) {
            post(identifier);
            ASSERT_TRUE(gets(service, replaced.size() + 1));
            replaced.push_back(replacedBy(service.asked.back()));
        }
        EXPECT_EQ(replaced, (std::vector<uint>{0, 0, 40, 40, 41}));
    }
}

TEST_F(DesktopNotificationsTest, HoldsTheLatestBackWhileTheServiceIsSlow) {
    FakeNotificationService service(bus.address(), 7);
    service.hangs = true;
    post(u"a"_s, u"first"_s);
    ASSERT_TRUE(gets(service, 1));
    post(u"a"_s, u"outdated"_s);
    post(u"a"_s, u"latest"_s);
    post(u"b"_s, u"another"_s); // is not held up
    ASSERT_TRUE(gets(service, 2));
    EXPECT_EQ(titleOf(service.asked[1]), u"another"_s);
    service.answer(service.asked[0]);
    ASSERT_TRUE(gets(service, 3));
    EXPECT_EQ(titleOf(service.asked[2]), u"latest"_s);
    EXPECT_EQ(replacedBy(service.asked[2]), 7U);
}

TEST_F(DesktopNotificationsTest, GoesOnAfterWrongAnswers) {
    FakeNotificationService service(bus.address());
    const QVariantList answers[] = {{}, {u"1"_s}, {1U, 2U}};
    std::size_t count = 0;
    const auto expectFresh = [&](const char* what) {
        post(u"a"_s);
        ASSERT_TRUE(gets(service, ++count)) << what;
        EXPECT_EQ(replacedBy(service.asked.back()), 0U) << what;
    };
    for (const QVariantList& answer : answers) {
        service.always = answer;
        expectFresh("nonsense");
    }
    service.error = QDBusError::LimitsExceeded;
    expectFresh("after nonsense");
    expectFresh("after an error");
}

TEST_F(DesktopNotificationsTest, SurvivesAServiceThatDiesUnanswered) {
    std::optional<FakeNotificationService> service(std::in_place, bus.address());
    service->hangs = true;
    post(u"a"_s);
    ASSERT_TRUE(gets(*service, 1));
    post(u"a"_s, u"held back"_s);
    service.reset();
    FakeNotificationService successor(bus.address());
    EXPECT_TRUE(spinUntil([&] {
        if (successor.asked.empty())
            post(u"a"_s, u"once more"_s);
        return !successor.asked.empty();
    }));
    EXPECT_EQ(replacedBy(successor.asked[0]), 0U);
}

TEST_F(DesktopNotificationsTest, IsAuthorizedWhereThereIsAService) {
    EXPECT_EQ(authorization(center), false) << "nobody shows notifications";
    {
        FakeNotificationService service(bus.address());
        service.hangs = true;
        EXPECT_EQ(authorization(center), true) << "a service runs";
    }
    EXPECT_EQ(authorization(center), false) << "it is gone";
    DesktopNotifications busless{std::make_shared<BusLink>(std::nullopt)};
    busless.post(u"a"_s, {}, {});
    EXPECT_EQ(authorization(busless), false) << "no bus";
    bus.kill();
    EXPECT_EQ(authorization(center), false) << "the bus is gone";
    post(u"a"_s);
}

TEST_F(DesktopNotificationsTest, ReplacesWhatAServiceShowsThatThePostStarted) {
    const PrivateBus starting("org.freedesktop.Notifications");
    DesktopNotifications starter(starting.link());
    starter.post(u"a"_s, {}, {});
    EXPECT_EQ(authorization(starter), true) << "it can be started";
    FakeNotificationService service(starting.address(), 40); // the bus kept the post for it
    ASSERT_TRUE(gets(service, 1));
    starter.post(u"a"_s, {}, {});
    ASSERT_TRUE(gets(service, 2));
    EXPECT_EQ(replacedBy(service.asked[1]), 40U);
}

} // namespace
} // namespace vantrix
