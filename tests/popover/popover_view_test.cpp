#include "popover/popover_view.h"

#include <algorithm>
#include <span>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "menubar/preferences.h"
#include "monitor/system_monitor.h"
#include "popover/cards/accessories_card.h"
#include "popover/cards/battery_card.h"
#include "popover/cards/cpu_card.h"
#include "popover/cards/disk_card.h"
#include "popover/cards/gpu_card.h"
#include "popover/cards/memory_card.h"
#include "popover/cards/network_card.h"
#include "popover/cards/sensors_card.h"
#include "popover/cards/steady_programs.h"
#include "popover/charts/program_row.h"
#include "samplers/processor_description.h"
#include "views/drawn.h"
#include "views/texts_of.h"
#include "views/theme.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

struct PopoverViewTest : ::testing::Test {
    PopoverViewTest()
        : monitor(machine.makeSources(), defaults, std::make_unique<QtRepeatingTimer>(),
                  std::make_unique<ThreadTaskRunner>()) {}

    std::unique_ptr<PopoverView> makeView() {
        return std::make_unique<PopoverView>(monitor, context, [] { return std::vector<StatusMenuEntry>(); });
    }

    static void settle() { QCoreApplication::sendPostedEvents(); }

    /// As if `key` had been pressed.
    static void press(const PopoverView& view, const QKeySequence& key) {
        for (auto* shortcut : view.findChildren<QShortcut*>())
            if (shortcut->key() == key)
                Q_EMIT shortcut->activated();
    }

    fakes::FakeMachine machine;
    fakes::FakeDefaults defaults;
    fakes::FakeAppearance appearance{{true, std::nullopt, true}};
    Theme theme{appearance};
    fakes::FakeInformation information;
    ProcessorDescription processor{information};
    CardContext context{theme, defaults, processor};
    SystemMonitor monitor;
};

TEST_F(PopoverViewTest, PlacesTheChosenCardsInTheirFixedOrder) {
    using enum PopoverCard;
    const struct {
        const char* name;
        QString chosen;
        std::vector<PopoverCard> shown;
    } cases[] = {
        {"another order", u"disk,network,cpu"_s, {cpu, network, disk}},
        {"unknown names", u"nonsense,memory"_s, {memory}},
        {"nothing", u""_s, {}},
        {"only what this machine lacks", u"gpu,battery"_s, {}},
        {"everything", u"cpu,memory,network,disk,gpu,sensors,battery,accessories"_s, {cpu, memory, network, disk}},
    };
    const auto view = makeView();
    view->show();
    for (const auto& c : cases) {
        defaults.set(preference_key::visibleCards, c.chosen);
        settle();
        EXPECT_EQ(view->shownCards(), c.shown) << c.name;
        const auto hint = Contains("No cards selected. Choose what to show in Settings → Popover.");
        EXPECT_THAT(textsOf(*view), hint.Times(c.chosen.isEmpty() ? 1 : 0)) << c.name;
    }
}

/// Counts the calls that an object has had posted.
struct CallCounter : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::MetaCall ? 1 : 0;
        return false;
    }
};

TEST_F(PopoverViewTest, FollowsTheMonitorOnlyWhileItIsOpen) {
    const auto open = makeView();
    const auto closed = makeView();
    for (const auto& view : {open.get(), closed.get()})
        view->show();
    closed->hide();
    CallCounter calls;
    closed->installEventFilter(&calls);
    monitor.loadDemo();
    settle();
    EXPECT_EQ(calls.count, 0); // it is told of nothing
    EXPECT_THAT(textsOf(*open), Contains("User: 25%"));
    EXPECT_EQ(open->shownCards().size(), popoverCards.size());
    EXPECT_THAT(textsOf(*closed), Not(Contains("User: 25%")));
    closed->show(); // and is up to date as it opens
    EXPECT_THAT(textsOf(*closed), Contains("User: 25%"));
}

TEST_F(PopoverViewTest, ChangesItsUnitsWhileItIsOpen) {
    const auto view = makeView();
    view->show();
    monitor.loadDemo();
    settle();
    EXPECT_THAT(textsOf(*view), AllOf(Contains("App: 6.25 GB"), Contains("2.4 MB/s"), Contains("SoC: 45°C")));
    defaults.set(preference_key::temperatureUnit, u"fahrenheit"_s);
    defaults.set(preference_key::networkUnit, u"bits"_s);
    defaults.set(preference_key::memoryUnit, u"gib"_s);
    settle();
    EXPECT_THAT(textsOf(*view), AllOf(Contains("App: 6.25 GiB"), Contains("19.2 Mb/s"), Contains("SoC: 113°F"),
                                      Contains("Temperature: 88°F"), Contains("31 MB/s"), // a disk's stay in bytes
                                      Contains(StartsWith("Download history: now 20"))));
}

TEST_F(PopoverViewTest, KeysScrollItWithoutAFocusOfItsOwn) {
    monitor.loadDemo();
    const auto view = makeView();
    view->resize(PopoverView::contentWidth, 300);
    view->show();
    settle();
    settle();
    const auto* bar = view->findChild<QScrollArea*>()->verticalScrollBar();
    press(*view, Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 0);
    press(*view, Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(PopoverViewTest, OpensAtTheCardOfAModule) {
    monitor.loadDemo();
    const auto view = makeView();
    view->resize(PopoverView::contentWidth, 480);
    view->show();
    view->showCardOf(MenuBarModule::temperature); // at once
    settle();
    const View* card = viewOf(*view, "Sensors");
    const auto* area = view->findChild<QScrollArea*>();
    EXPECT_EQ(card->mapTo(area->viewport(), QPoint()).y(), 12);
    defaults.set(preference_key::visibleCards, u"cpu"_s);
    settle();
    view->showCardOf(MenuBarModule::temperature); // not there any more
}

TEST_F(PopoverViewTest, AsksForTheHeightOfItsCards) {
    monitor.loadDemo();
    const auto view = makeView();
    view->show();
    const QSize all = view->sizeHint(); // known at once
    view->resize(all);
    settle();
    EXPECT_EQ(view->sizeHint(), all);
    const auto* bar = view->findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_EQ(bar->maximum(), 0);
    view->resize(all - QSize(0, 1));
    settle();
    EXPECT_EQ(bar->maximum(), 1);
    defaults.set(preference_key::visibleCards, u"cpu"_s);
    settle();
    EXPECT_LT(view->sizeHint().height(), all.height() / 4);
}

TEST_F(PopoverViewTest, EverythingFitsInItsWidth) {
    monitor.loadDemo();
    for (const int pixels : {13, 27}) {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPixelSize(pixels);
        QApplication::setFont(large);
        const auto view = makeView();
        view->resize(PopoverView::contentWidth, 800);
        view->show();
        settle();
        settle();
        for (const QWidget* child : view->findChildren<QWidget*>()) {
            if (!child->isVisible())
                continue;
            const QRect place(child->mapTo(view.get(), QPoint()), child->size());
            EXPECT_GE(place.left(), 0) << pixels;
            EXPECT_LE(place.right(), PopoverView::contentWidth - 1) << pixels << child->metaObject()->className();
            EXPECT_GE(child->height(), child->heightForWidth(child->width()))
                << pixels << ' ' << child->accessibleName().toStdString();
        }
        QApplication::setFont(usual);
    }
}

struct CardsTest : PopoverViewTest {
    template<typename Kind>
    std::unique_ptr<Kind> shown() {
        auto card = std::make_unique<Kind>(context);
        card->showReadings(readings);
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible()) << "a row of the card opened a window of its own";
        return card;
    }

    Readings readings = demoReadings();
};

TEST_F(CardsTest, TheNetworkCardLeavesOutWhatIsNotKnown) {
    const auto details = [this](NetworkInfo info) {
        readings.networkInfo = std::move(info);
        std::vector<std::string> texts = textsOf(*shown<NetworkCard>());
        const auto isLastAbove = [](const std::string& text) { return text.starts_with("Upload history"); };
        texts.erase(texts.begin(), std::find_if(texts.begin(), texts.end(), isLastAbove) + 1);
        return texts;
    };
    EXPECT_THAT(details(demoReadings().networkInfo),
                ElementsAre("Network: Home", "Signal: -52 dBm · Good", "Signal-to-noise: 40 dB", "Link speed: 866 Mbps",
                            "Interface: Wi-Fi (en0)", "IP address: 192.168.1.24"));
    EXPECT_THAT(details({.kind = NetworkInfo::Kind::wifi, .rssi = -71}), ElementsAre("Signal: -71 dBm · Weak"));
    EXPECT_THAT(details({.kind = NetworkInfo::Kind::ethernet, .interface = "enp3s0"}),
                ElementsAre("Interface: enp3s0"));
    EXPECT_THAT(details({}), ElementsAre());
}

TEST_F(CardsTest, AChosenPortOrVolumeThatIsGoneShowsNoFigures) {
    defaults.set(preference_key::networkInterface, u"en0"_s);
    defaults.set(preference_key::diskVolume, u"/home"_s);
    EXPECT_THAT(textsOf(*shown<NetworkCard>()),
                AllOf(Contains("en0"), Contains("2.4 MB/s"), Contains("Network: Home")));
    EXPECT_THAT(textsOf(*shown<DiskCard>()), AllOf(Contains("/home"), Contains("186 GB free of 500 GB")));
    defaults.set(preference_key::networkInterface, u"en5"_s);
    readings.network.isThere = false;
    readings.disk.total = 0;
    EXPECT_THAT(textsOf(*shown<NetworkCard>()), AllOf(Contains("en5 is not available"), Contains("–"),
                                                      Not(Contains("2.4 MB/s")), Not(Contains("Network: Home"))));
    EXPECT_THAT(textsOf(*shown<DiskCard>()), AllOf(Contains("/home is not available"), Contains("–")));
}

TEST_F(CardsTest, AWithheldNetworkNameIsAskedFor) {
    int asked = 0;
    context.requestLocationAccess = [&] { ++asked; };
    readings.networkInfo = {.kind = NetworkInfo::Kind::wifi, .ssidHiddenByPrivacy = true};
    const auto card = shown<NetworkCard>();
    auto* link = card->findChild<QAbstractButton*>();
    EXPECT_TRUE(link->isVisibleTo(card.get()));
    link->click();
    EXPECT_EQ(asked, 1);
    readings.networkInfo.ssidHiddenByPrivacy = false;
    card->showReadings(readings);
    EXPECT_FALSE(link->isVisibleTo(card.get()));
}

TEST_F(CardsTest, TheDiskCardShowsAbsentRatesAsZeroAndSurvivesAnEmptyVolume) {
    EXPECT_THAT(textsOf(*shown<DiskCard>()), Contains("186 GB free of 500 GB"));
    readings.disk = {0, 0, std::nullopt, std::nullopt};
    const auto card = shown<DiskCard>();
    EXPECT_THAT(textsOf(*card), Contains("0 KB free"));
    EXPECT_THAT(textsOf(*card), Contains("0 KB/s").Times(2));
}

TEST_F(CardsTest, AnAlarmingFigureHasTheColourOfItsGraph) {
    appearance.set({.reducesMotion = true});
    const auto shows = [](Card& card, const QColor& color) {
        const QImage picture = drawn(card, card.sizeHint(), Qt::white);
        const auto* pixels = reinterpret_cast<const QRgb*>(picture.constBits());
        return std::count(pixels, pixels + picture.width() * picture.height(), color.rgb()) > 0;
    };
    const auto check = [&](bool alarming) {
        const QColor red = theme.colors().red;
        const std::unique_ptr<Card> cards[] = {shown<CPUCard>(), shown<GPUCard>(), shown<BatteryCard>(),
                                               shown<SensorsCard>(), shown<MemoryCard>()};
        for (const auto& card : cards)
            EXPECT_EQ(shows(*card, theme.colors().readable(red)), alarming) << card->accessibleText().toStdString();
        for (const auto& card : std::span(cards).first(4)) // memory has a graph of kinds
            EXPECT_EQ(shows(*card, red), alarming) << card->accessibleText().toStdString();
    };
    check(false);
    readings.cpu.total = 0.95;
    readings.gpu = 0.95;
    readings.gpuHistory = History(historyLength, 0.95);
    readings.battery->percent = 20;
    readings.sensors.cpu = 90.0;
    readings.memory.pressure = MemorySample::Pressure::critical;
    check(true);
}

TEST_F(CardsTest, TheBatteryCardTellsTimesAndDetailsThatItKnows) {
    readings.battery =
        BatterySample{.percent = 50, .isCharging = true, .isPluggedIn = true, .minutesRemaining = 59, .watts = 31.25};
    EXPECT_THAT(textsOf(*shown<BatteryCard>()), AllOf(Contains("to full: 59m"), Contains("Charging power: 31.3 W")));
    readings.battery = BatterySample{.percent = 50, .minutesRemaining = 60, .healthPercent = 96, .temperature = 30.6};
    EXPECT_THAT(textsOf(*shown<BatteryCard>()),
                AllOf(Contains("left: 1h 0m"), Contains("Maximum capacity: 96%"), Contains("Temperature: 31°C"),
                      Not(Contains(HasSubstr("power"))), Not(Contains(HasSubstr("Cycle count")))));
}

TEST_F(CardsTest, ASensorThatIsGoneLeavesNoHoleAndNoWork) {
    struct Work : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::LayoutRequest || event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } work;
    const auto sensors = shown<SensorsCard>();
    const auto battery = shown<BatteryCard>();
    const auto refresh = [&] {
        for (Card* card : {static_cast<Card*>(sensors.get()), static_cast<Card*>(battery.get())}) {
            card->show();
            card->showReadings(readings);
            for (QObject* child : card->findChildren<QObject*>())
                child->installEventFilter(&work);
        }
        QCoreApplication::processEvents();
        return std::exchange(work.count, 0);
    };
    readings.sensors.gpu.reset();
    refresh();
    refresh(); // the rows below have moved up
    EXPECT_EQ(refresh(), 0);
    readings.sensors.cpu = 71.0;
    EXPECT_GT(refresh(), 0) << "a change is painted";
}

TEST_F(CardsTest, ATemperatureIsMarkedByHowHotItIs) {
    const std::pair<double, QColor> cases[] = {{79.9, theme.colors().green}, {80.0, theme.colors().orange}};
    for (const auto& [celsius, color] : cases) {
        readings.sensors.ssd = celsius;
        const auto card = shown<SensorsCard>();
        const QImage picture = drawn(*card, card->sizeHint(), Qt::black);
        const View* row = viewOf(*card, "SSD");
        EXPECT_EQ(picture.pixelColor(row->mapTo(card.get(), QPoint(3, row->height() / 2))), color) << celsius;
    }
}

TEST_F(CardsTest, EverySensorIsListedOnDemand) {
    readings.activeComponents.ane.reset();
    const auto card = shown<SensorsCard>();
    EXPECT_THAT(textsOf(*card), AllOf(Contains("GPU power: 1.9 W"), Not(Contains(StartsWith("Neural Engine")))));
    auto* button = card->findChild<QAbstractButton*>();
    EXPECT_EQ(button->text(), u"All sensors (6)"_s);
    EXPECT_THAT(textsOf(*card), Not(Contains("NAND: 38°C")));
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(button);
    EXPECT_EQ(told->role(), QAccessible::Button);
    EXPECT_TRUE(told->state().collapsed && !told->state().checkable);
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(told->state().expanded && !told->state().collapsed);
    EXPECT_THAT(textsOf(*card), Contains("NAND: 38°C"));
    readings.sensors.all.resize(1);
    card->showReadings(readings);
    EXPECT_THAT(textsOf(*card), Not(Contains("NAND: 38°C")));
    EXPECT_FALSE(button->isVisibleTo(card.get()));
}

TEST_F(CardsTest, TheAccessoriesCardFollowsItsList) {
    const auto card = shown<AccessoriesCard>();
    EXPECT_EQ(card->accessibleText(), u"Accessories, 3 connected"_s);
    readings.accessories = {{"Mouse", 64, true, "computermouse"}};
    card->showReadings(readings);
    EXPECT_THAT(textsOf(*card), Contains("Mouse: 64%, Charging"));
    EXPECT_THAT(textsOf(*card), Not(Contains(StartsWith("Keyboard"))));
    readings.accessories = {{"Mouse", 20, false, ""}, {"Pen", 21, false, ""}, {"Pad", 10, true, ""}};
    card->showReadings(readings);
    EXPECT_THAT(textsOf(*card),
                AllOf(Contains("Mouse: 20%, Battery low"), Contains("Pen: 21%"), Contains("Pad: 10%, Charging")));
}

QAbstractButton* disclosureOf(const PopoverView& view, const QString& name) {
    for (auto* button : view.findChildren<QAbstractButton*>())
        if (button->accessibleName() == name)
            return button;
    return nullptr;
}

TEST_F(PopoverViewTest, ListsProgramsOnDemandAndLooksAtThemOnlyThen) {
    context.watchPrograms = [this] { return monitor.watchPrograms(); };
    context.keepUnfolded = [this](PopoverCard card, bool shows) { setShowsPrograms(defaults, card, shows); };
    machine.processes->names[1].name = "<b>" + std::string(60, 'w');
    const auto view = makeView();
    view->show();
    settle();
    EXPECT_EQ(machine.processes->reads, 0);
    const int folded = view->sizeHint().height();
    auto* const button = disclosureOf(*view, u"Programs by memory use"_s);
    ASSERT_NE(button, nullptr);
    button->click();
    settle();
    EXPECT_GT(view->sizeHint().height(), folded + 100);
    EXPECT_EQ(defaults.string(preference_key::popoverProcesses), u"memory"_s);
    EXPECT_THAT(textsOf(*view), AllOf(Contains("A: 10 bytes"), Contains(StartsWith("<b>www"))));
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(button);
    EXPECT_TRUE(told->state().expanded && told->role() == QAccessible::Button);
    EXPECT_EQ(told->text(QAccessible::Name), button->toolTip());
    const auto rows = view->findChildren<ProgramRow*>();
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [](auto* row) {
        return row->toolTip().startsWith(u"&lt;b&gt;"_s) || row->toolTip().contains(u"&lt;b"_s);
    }));
    view->hide();
    monitor.sample();
    EXPECT_EQ(machine.processes->forgotten, 1);
    const int reads = machine.processes->reads;
    view->show(); // and remembers
    settle();
    EXPECT_EQ(machine.processes->reads, reads + 1);
    EXPECT_THAT(textsOf(*view), Contains("A: 10 bytes"));
    button->click();
    settle();
    EXPECT_EQ(view->sizeHint().height(), folded);
    EXPECT_EQ(machine.processes->forgotten, 2);
    button->click(); // and goes while it is unfolded
}

TEST(SteadyPrograms, NothingJumpsUnderTheEye) {
    SteadyPrograms programs([](const ProgramShare& program) { return program.cpu; });
    const auto pass = [&](std::vector<std::pair<const char*, double>> latest) {
        std::vector<ProgramShare> shares;
        for (const auto& [name, cpu] : latest)
            shares.push_back({name, {}, 1, cpu, 0});
        std::string order;
        for (const ProgramShare& program : programs.arranged(shares))
            order += program.name;
        return order;
    };
    EXPECT_EQ(pass({{"a", 0.5}, {"b", 0.4}, {"c", 0.3}}), "abc");
    EXPECT_EQ(pass({{"b", 0.6}, {"a", 0.5}, {"c", 0.3}}), "abc"); // once is not enough
    EXPECT_EQ(pass({{"a", 0.6}, {"b", 0.5}, {"c", 0.3}}), "abc");
    EXPECT_EQ(pass({{"c", 0.9}, {"b", 0.6}, {"a", 0.5}}), "abc");
    EXPECT_EQ(pass({{"c", 0.8}, {"b", 0.7}, {"a", 0.5}}), "cba");
    EXPECT_EQ(pass({{"d", 0.9}, {"c", 0.8}, {"a", 0.5}}), "cda"); // in the place of the one that is gone
    EXPECT_EQ(pass({{"c", 0.8}}), "c");
    EXPECT_EQ(pass({}), "");
}

} // namespace
} // namespace vantrix
