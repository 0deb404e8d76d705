#include "app/app_delegate.h"

#include <set>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_login_item.h"
#include "fakes/fake_notification_center.h"
#include "fakes/fake_onlookers.h"
#include "fakes/fake_sources.h"
#include "fakes/fake_widget_center.h"
#include "popover/popover_host.h"
#include "posix/spin_until.h"
#include "settings/settings_view.h"

namespace vantrix {
namespace {

struct FakeStatusItem : StatusItem {
    explicit FakeStatusItem(Handlers handlers) : handlers(std::move(handlers)) {}
    void show(const StatusContent& content) override {
        shown.push_back(content);
        if (onShow)
            onShow();
    }
    bool isShown() const override { return isThere; }
    QRect anchor() const override { return {100, 0, 60, 22}; }
    bool popUpMenu(const std::vector<StatusMenuEntry>&) override {
        menus += drawsMenus;
        return drawsMenus;
    }

    Handlers handlers;
    bool isThere = true;
    bool drawsMenus = false;
    int menus = 0;
    std::vector<StatusContent> shown;
    std::function<void()> onShow;
};

struct AppDelegateTest : ::testing::Test {
    AppDelegateTest()
        : delegate({.sources = machine.makeSources(),
                    .appearance = appearance,
                    .makeStatusItem =
                        [this](StatusItem::Handlers handlers) {
                            auto made = std::make_unique<FakeStatusItem>(std::move(handlers));
                            item = made.get();
                            return made;
                        },
                    .loginItem = std::make_unique<fakes::FakeLoginItem>(),
                    .notifications = std::unique_ptr<NotificationCenter>(notifications),
                    .widgets = std::unique_ptr<WidgetCenter>(widgets),
                    .onlookers = std::unique_ptr<Onlookers>(onlookers),
                    .makePopover =
                        [](const Theme& theme, PopoverWindow::MakeView makeView) {
                            return std::make_unique<PopoverHost>(theme, std::move(makeView));
                        }},
                   defaults) {
        delegate.applicationDidFinishLaunching();
    }

    void click(StatusClick::Button button, bool control = false) { item->handlers.clicked({button, control}); }

    static bool menuIsOpen() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; }
    static bool popoverIsOpen() { return QApplication::activePopupWidget() != nullptr && !menuIsOpen(); }

    /// The settings window while it is open.
    static SettingsView* settings() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* view = qobject_cast<SettingsView*>(window); view && view->isVisible())
                return view;
        return nullptr;
    }

    /// From now on, who hears of a pass; each is bad enough for an alert.
    std::shared_ptr<std::vector<std::string>> noteOrder() {
        machine.volume->volume = DiskSampler::Volume{1000, 1};
        defaults.set(preference_key::alertDuration, 0.0);
        defaults.set(preference_key::alertsEnabled, true);
        defaults.set(preference_key::updateInterval, 0.5); // starts the timer anew
        auto order = std::make_shared<std::vector<std::string>>();
        item->onShow = [order] { order->push_back("status item"); };
        notifications->onPost = [order] { order->push_back("alert"); };
        widgets->onStore = [order] { order->push_back("widget"); };
        return order;
    }

    fakes::FakeMachine machine;
    fakes::FakeAppearance appearance;
    fakes::FakeDefaults defaults;
    fakes::FakeNotificationCenter* notifications = new fakes::FakeNotificationCenter; // the delegate's
    fakes::FakeWidgetCenter* widgets = new fakes::FakeWidgetCenter;                   // the delegate's
    fakes::FakeOnlookers* onlookers = new fakes::FakeOnlookers;                       // the delegate's
    FakeStatusItem* item = nullptr;
    AppDelegate delegate;
};

using Button = StatusClick::Button;

TEST_F(AppDelegateTest, ClicksOpenWhatTheyShould) {
    click(Button::left);
    EXPECT_TRUE(popoverIsOpen());
    click(Button::left);
    click(Button::middle);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), item->shown.back().accessibilityLabel);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(u"CPU ")) << "the row";
    for (const auto& [button, control] : {std::pair(Button::right, false), {Button::left, true}}) {
        delegate.showPopover();
        click(button, control);
        EXPECT_TRUE(menuIsOpen());
        const QWidget* menu = QApplication::activePopupWidget();
        EXPECT_EQ(menu->minimumSize(), menu->maximumSize()) << "a tiling compositor makes a tile of it";
        QApplication::activePopupWidget()->close();
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the menu closes the popover first";
    }
}

TEST_F(AppDelegateTest, LeavesItsMenuToASystemThatDrawsMenus) {
    item->drawsMenus = true;
    click(Button::left);
    click(Button::left, true);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr); // neither the popover nor a menu of the toolkit's
    EXPECT_EQ(item->menus, 1);
}

TEST_F(AppDelegateTest, TheRowShowsFromLaunchAndFollowsTheSettingsAtOnce) {
    ASSERT_FALSE(item->shown.empty());
    EXPECT_EQ(item->shown.back().accessibilityLabel, "CPU 0%, RAM 50%");
    item->shown.clear();
    defaults.set(preference_key::menuBarEnabled, QString());
    ASSERT_EQ(item->shown.size(), 1u);
    EXPECT_EQ(item->shown.back().accessibilityLabel, "Vantrix") << "no items";
    defaults.set(preference_key::menuBarEnabled, QStringLiteral("disk"));
    defaults.set(preference_key::menuBarStyle, QStringLiteral("graph"));
    EXPECT_EQ(item->shown.back().style, MenuBarStyle::graph);
    EXPECT_EQ(item->shown.back().accessibilityLabel, "DISK 60%");
}

TEST_F(AppDelegateTest, EachPassGoesToTheStatusItemThenTheAlertsThenTheWidgets) {
    EXPECT_EQ(widgets->reloads, 1) << "the first pass tells the widgets at once";
    const auto order = noteOrder();
    EXPECT_TRUE(spinUntil([&] { return order->size() >= 3; }));
    EXPECT_EQ(*order, (std::vector<std::string>{"status item", "alert", "widget"}));
}

TEST_F(AppDelegateTest, PassesReachTheAlertsAloneWhileNobodyLooks) {
    delegate.showPopover();
    const auto order = noteOrder();
    onlookers->set(false);
    EXPECT_FALSE(popoverIsOpen());
    EXPECT_TRUE(spinUntil([&] { return !order->empty(); }));
    defaults.set(preference_key::menuBarEnabled, QStringLiteral("disk"));
    EXPECT_EQ(*order, std::vector<std::string>{"alert"});
    onlookers->set(true);
    EXPECT_EQ(*order, (std::vector<std::string>{"alert", "status item", "widget"})) << "at once";
    EXPECT_EQ(item->shown.back().accessibilityLabel, "DISK 100%");
}

TEST_F(AppDelegateTest, WhoeverClicksLooks) {
    delegate.handleRequest("show-settings general");
    for (const char* request : {"show-popover", "show-settings"}) {
        onlookers->set(false);
        EXPECT_FALSE(settings()->updatesEnabled());
        item->shown.clear();
        delegate.handleRequest(request);
        EXPECT_EQ(item->shown.size(), 1u) << request;
        EXPECT_TRUE(settings()->updatesEnabled());
    }
    onlookers->set(false);
    click(Button::left);
    EXPECT_EQ(item->shown.size(), 2u);
}

TEST_F(AppDelegateTest, AnswersRequestsOfOtherProcesses) {
    delegate.handleRequest("show-popover");
    EXPECT_TRUE(popoverIsOpen());
    delegate.handleRequest("show-popover");
    EXPECT_TRUE(popoverIsOpen());
    delegate.handleRequest("show-settings alerts");
    EXPECT_FALSE(popoverIsOpen()); // it would cover what was asked for
    ASSERT_NE(settings(), nullptr);
    EXPECT_EQ(settings()->currentTab(), SettingsTab::alerts);
    delegate.handleRequest("show-settings"); // the tab that was shown last
    EXPECT_EQ(settings()->currentTab(), SettingsTab::alerts);
    for (const char* request : {"", "nonsense", "show-settings nonsense", "show-settingsgeneral"})
        delegate.handleRequest(request);
    EXPECT_EQ(settings()->currentTab(), SettingsTab::alerts);
    item->isThere = false; // just started
    delegate.handleRequest("show-popover");
    EXPECT_FALSE(popoverIsOpen()) << "in some corner";
    item->isThere = true;
    item->handlers.appeared();
    EXPECT_TRUE(popoverIsOpen());
}

TEST_F(AppDelegateTest, AClickOnAnAlertShowsItsCardUnfolded) {
    notifications->activated(QStringLiteral("vantrix.nonsense"));
    EXPECT_FALSE(popoverIsOpen());
    EXPECT_EQ(machine.processes->reads, 0);
    notifications->activated(QStringLiteral("vantrix.memory"));
    EXPECT_TRUE(popoverIsOpen());
    EXPECT_EQ(machine.processes->reads, 1);
    delegate.handleRequest("show-settings"); // which closes it
    EXPECT_EQ(machine.processes->forgotten, 1);
}

/// The first in a tree of what assistive programs read with that role and name; null when there is none, or no tree.
QAccessibleInterface* find(QAccessibleInterface* tree, QAccessible::Role role, const char* name) {
    if (!tree || (tree->role() == role && tree->text(QAccessible::Name) == QLatin1StringView(name)))
        return tree;
    for (int i = 0; i < tree->childCount(); ++i)
        if (auto* found = find(tree->child(i), role, name))
            return found;
    return nullptr;
}

TEST_F(AppDelegateTest, AssistiveProgramsReadThePopoverAndItsGauges) {
    delegate.showPopover();
    auto* popover = find(QAccessible::queryAccessibleInterface(qApp), QAccessible::Dialog, "Vantrix");
    ASSERT_TRUE(popover) << "the toolkit leaves pop-ups out";
    EXPECT_TRUE(find(popover, QAccessible::Button, "Vantrix menu"));
    const std::tuple<const char*, const char*, double> gauges[] = {
        {"CPU", "CPU load", 0.0}, {"Memory", "Memory in use", 0.5}, {"Disk", "Disk space in use", 0.6}};
    for (const auto& [card, name, value] : gauges) {
        auto* gauge = find(find(popover, QAccessible::Grouping, card), QAccessible::ProgressBar, name);
        ASSERT_TRUE(gauge && gauge->valueInterface()) << name;
        EXPECT_EQ(gauge->valueInterface()->currentValue().toDouble(), value);
        EXPECT_EQ(gauge->valueInterface()->maximumValue(), 1.0);
    }
}

TEST_F(AppDelegateTest, EveryControlOfTheSettingsHasItsName) {
    const std::set controls{QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
                            QAccessible::Slider, QAccessible::ComboBox, QAccessible::PageTab};
    for (const auto& tab : settingsTabs) {
        delegate.handleRequest("show-settings " + std::string(tab.rawValue));
        for (QWidget* widget : settings()->findChildren<QWidget*>()) {
            auto* told = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(controls.contains(told->role()) && told->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className();
        }
    }
    delegate.handleRequest("show-settings general");
    auto* slider = find(QAccessible::queryAccessibleInterface(settings()), QAccessible::Slider, "Critical threshold");
    ASSERT_TRUE(slider && slider->valueInterface());
    EXPECT_DOUBLE_EQ(slider->valueInterface()->currentValue().toDouble(), 0.9);
    EXPECT_DOUBLE_EQ(slider->valueInterface()->minimumValue().toDouble(), 0.55);
}

} // namespace
} // namespace vantrix
