#include "linux/status_area/status_item_on_bus.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>

#include "linux/status_area/floating_strip.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

using std::chrono::milliseconds;

class LinuxStatusItemTest : public StatusItemOnBus {
  protected:
    static int strips() {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return static_cast<int>(std::count_if(widgets.begin(), widgets.end(), [](QWidget* widget) {
            return qobject_cast<FloatingStrip*>(widget) != nullptr && widget->isVisible();
        }));
    }

    void expectStrip() {
        EXPECT_TRUE(awaitKind(Kind::strip));
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
    EXPECT_EQ(item->kind(), Kind::none);
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

/// What a long life must not add to, by name.
using Holdings = std::map<std::string, qsizetype>;

class StatusItemSoak : public LinuxStatusItemTest {
  protected:
    Holdings holdings() {
        const Item busItself{u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s};
        const auto names = host.call(busItself, busItself.service, u"ListNames"_s).arguments().value(0);
        const auto stats =
            host.call(busItself, u"org.freedesktop.DBus.Debug.Stats"_s, u"GetStats"_s).arguments().value(0);
        return {{"files", QDir(u"/proc/self/fd"_s).entryList(QDir::NoFilter).size()},
                {"children", item->findChildren<QObject*>().size()},
                {"names", names.toStringList().size()},
                {"match rules", qdbus_cast<QVariantMap>(stats).value(u"MatchRules"_s).toInt()}};
    }

    /// Shows `count` rows that differ from one to the next, now and then of other modules.
    void showRows(int count) {
        for (int i = 1; i <= count; ++i) {
            item->show(rowOf(i % 100, i / 100 % 100));
            if (i % 50 == 0)
                QCoreApplication::processEvents();
            if (i % 1000 == 0)
                changeModules();
        }
        changeModules();
        host.settle(host.items.back());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void changeModules() {
        for (const std::size_t modules : {1U, 2U}) {
            host.items.clear();
            StatusContent content = rowOf(1);
            content.items.resize(modules);
            item->show(content);
            ASSERT_TRUE(awaitItems(modules));
        }
    }
};

TEST_F(StatusItemSoak, ManyRowsAndWatchersLeaveNothingBehind) {
    NotifierHost eager;
    eager.pace = milliseconds(2);
    startOn(eager, 2);
    showRows(100);
    const Holdings before = holdings();
    const auto areAsBefore = [&] { return holdings() == before; };
    showRows(100'000);
    EXPECT_TRUE(spinUntil(areAsBefore)) << testing::PrintToString(before) << testing::PrintToString(holdings());
    EXPECT_GT(host.count(u"NewIcon"), 100);
    EXPECT_LT(host.count(u"NewIcon"), 50'000) << "many changes become one signal";
    for (int i = 0; i < 50; ++i) {
        host.restart();
        ASSERT_TRUE(awaitItems(2));
    }
    EXPECT_TRUE(spinUntil(areAsBefore)) << testing::PrintToString(before) << testing::PrintToString(holdings());
}

} // namespace
} // namespace vantrix
