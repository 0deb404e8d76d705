#include "linux/status_area/status_item_on_bus.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>

#include "linux/status_area/floating_strip.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

using std::chrono::milliseconds;

struct LinuxStatusItemTest : StatusItemOnBus {
    static int strips() {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return static_cast<int>(std::count_if(widgets.begin(), widgets.end(), [](QWidget* widget) {
            return qobject_cast<FloatingStrip*>(widget) != nullptr && widget->isVisible();
        }));
    }

    void expectStrip() {
        EXPECT_TRUE(awaitKind(Kind::strip));
        EXPECT_TRUE(wasThere);
        EXPECT_EQ(strips(), 1);
        EXPECT_TRUE(item->anchor().isValid());
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<RowWindow*>(widget))
                expectButton(QAccessible::queryAccessibleInterface(widget));
    }

    void expectButton(QAccessibleInterface* strip) {
        EXPECT_EQ(strip->role(), QAccessible::Button);
        EXPECT_TRUE(strip->text(QAccessible::Name).startsWith(u"CPU "_s));
        clicks.clear();
        strip->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(clicks, std::vector{StatusClick::Button::left});
    }
};

TEST_F(LinuxStatusItemTest, ShowsAStripWhereThereIsNoBus) {
    for (const std::optional<QString>& address :
         {std::optional<QString>(), std::optional(u"unix:path=/nowhere/at/all"_s), std::optional(u"garbage"_s)}) {
        surroundings.bus = std::make_shared<BusLink>(address);
        start();
        expectStrip();
        item->show(rowOf(13));
        item.reset();
        EXPECT_EQ(strips(), 0);
    }
}

TEST_F(LinuxStatusItemTest, WaitsForTheRowAndForTheStatusArea) {
    host.stop();
    surroundings.stripDelay = std::chrono::hours(1);
    start();
    EXPECT_FALSE(item->isShown());
    host.start(); // late, but before the strip
    EXPECT_TRUE(awaitItems(2));
    EXPECT_EQ(strips(), 0);
}

TEST_F(LinuxStatusItemTest, FollowsWhoeverTakesTheNameOver) {
    surroundings.isOnTerminal = true;
    testing::internal::CaptureStderr();
    startOn(NotifierHost(), 2);
    EXPECT_EQ(item->place(), "StatusNotifier items, host app_tests");
    FakeStatusHost next(bus.address()); // waits for the name
    layout = notifierHostNamed("gnome-shell");
    host.release();
    ASSERT_TRUE(spinUntil([&] { return !next.items.empty(); }));
    EXPECT_TRUE(next.properties(next.items[0]).contains(u"XAyatanaLabel"_s));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "vantrix: now in your panel; click it there\n") << "told once";
}

TEST_F(LinuxStatusItemTest, StripStepsInWhileThereIsNoWatcher) {
    startOn(NotifierHost());
    for (int round = 0; round < 3; ++round) {
        host.release();
        expectStrip();
        item->show(rowOf(20 + round));
        host.items.clear();
        host.start();
        ASSERT_TRUE(awaitKind(Kind::notifier));
        ASSERT_TRUE(awaitItems(1));
        EXPECT_EQ(strips(), 0);
        EXPECT_EQ(host.property(host.items[0], u"Title"_s).toString(),
                  u"Vantrix 1: CPU %1%"_s.arg(20 + round)); // what was shown meanwhile
    }
}

TEST_F(LinuxStatusItemTest, OutlivesTheBus) {
    startOn(notifierHostNamed("waybar"));
    bus.kill();
    item->show(rowOf(13));
    expectStrip();
    item->show(rowOf(14));
    bus.start();
    host.restart();
    ASSERT_TRUE(awaitItems(1));
    EXPECT_EQ(strips(), 0);
    EXPECT_EQ(host.property(host.items[0], u"Id"_s).toString(), u"vantrix"_s);
}

TEST_F(LinuxStatusItemTest, HostThatNeverAnswersHoldsNothingUp) {
    host.answers = false;
    layout.pace = milliseconds(0);
    start();
    ASSERT_TRUE(awaitKind(Kind::notifier));
    int cpu = 0;
    EXPECT_TRUE(spinUntil([&] {
        item->show(rowOf(++cpu % 100));
        return host.count(u"NewIcon") >= 87;
    }));
    EXPECT_TRUE(item->anchor().isValid());
}

TEST_F(LinuxStatusItemTest, ItemsThatNobodyReadsRegisterAllTheSame) {
    host.reads = false;
    startOn(NotifierHost(), 2);
}

TEST_F(LinuxStatusItemTest, ManyRowsModulesAndWatchersLeaveNothingBehind) {
    NotifierHost eager;
    eager.pace = milliseconds(2);
    startOn(eager, 2);
    const Item busItself{u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s};
    const auto told = [&](const QString& interface, const QString& member) {
        return host.call(busItself, interface, member).arguments().value(0);
    };
    const auto holdings = [&] { // files and objects here, names and match rules on the bus
        const auto stats = qdbus_cast<QVariantMap>(told(u"org.freedesktop.DBus.Debug.Stats"_s, u"GetStats"_s));
        return std::vector{QDir(u"/proc/self/fd"_s).entryList(QDir::NoFilter).size(),
                           item->findChildren<QObject*>().size(),
                           told(busItself.service, u"ListNames"_s).toStringList().size(),
                           qsizetype(stats.value(u"MatchRules"_s).toInt())};
    };
    const auto live = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            for (int i = 0; i < 1000; ++i) {
                item->show(rowOf(i % 100, round % 100));
                if (i % 50 == 0)
                    QCoreApplication::processEvents();
            }
            StatusContent other = rowOf(1);
            other.items.pop_back();
            item->show(other);
            host.restart();
            ASSERT_TRUE(awaitItems(1));
            host.items.clear();
            item->show(rowOf(1));
            ASSERT_TRUE(awaitItems(2));
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    live(1);
    const auto before = holdings();
    const auto newIcons = host.count(u"NewIcon");
    live(50);
    EXPECT_TRUE(spinUntil([&] { return holdings() == before; }))
        << testing::PrintToString(before) << testing::PrintToString(holdings());
    EXPECT_LT(host.count(u"NewIcon") - newIcons, 25'000) << "many changes become one signal";
}

} // namespace
} // namespace vantrix
