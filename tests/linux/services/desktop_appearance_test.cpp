#include "linux/services/desktop_appearance.h"

#include <limits>

#include <QDBusConnectionInterface>
#include <QGuiApplication>
#include <QPalette>

#include "linux/services/fake_portal.h"
#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

const QString common = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;
const QString kde = u"org.kde.kdeglobals.KDE"_s;

QVariant color(double red, double green, double blue) {
    return QVariant::fromValue(PortalColor{red, green, blue});
}

PortalSettings dark() {
    return {{common, {{u"color-scheme"_s, 1U}}}};
}

class DesktopAppearanceTest : public testing::Test {
  protected:
    DesktopAppearanceTest() { QGuiApplication::setPalette(QPalette(QColor(239, 239, 239))); }
    ~DesktopAppearanceTest() override { QGuiApplication::setPalette(QPalette()); }

    void start() {
        source = std::make_unique<DesktopAppearance>(connection.bus());
        QObject::connect(source.get(), &AppearanceSource::changed, source.get(), [this] { ++changes; });
    }

    /// Returns when nothing that portals sent so far can reach another source.
    void stop() {
        source.reset();
        connection.bus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s);
    }

    bool becomes(const Appearance& wanted) {
        return spinUntil([&] { return source->appearance() == wanted; });
    }

    /// Waits until everything that the portal sent before has arrived: its signals are told in order.
    void settle(FakePortal& portal) {
        ASSERT_TRUE(spinUntil([&] { return !portal.asked.empty(); })); // it asks as soon as it listens
        const bool reduces = source->appearance().reducesMotion;
        portal.change(common, u"reduced-motion"_s, reduces ? 0U : 1U);
        ASSERT_TRUE(spinUntil([&] { return source->appearance().reducesMotion != reduces; }));
    }

    PrivateBus bus;
    BusConnection connection{bus.address()};
    std::unique_ptr<DesktopAppearance> source;
    int changes = 0;
};

TEST_F(DesktopAppearanceTest, TakesThePaletteWhereNobodyTells) {
    for (const bool onBus : {true, false}) {
        QGuiApplication::setPalette(QPalette(QColor(239, 239, 239)));
        DesktopAppearance appearance(onBus ? std::optional(connection.bus()) : std::nullopt);
        EXPECT_EQ(appearance.appearance(), Appearance());
        QGuiApplication::setPalette(QPalette(QColor(30, 30, 30)));
        EXPECT_TRUE(spinUntil([&] { return appearance.appearance() == Appearance{.dark = true}; }));
    }
}

TEST_F(DesktopAppearanceTest, UnderstandsWhatDesktopsTell) {
    struct Row {
        const char* name;
        PortalSettings settings;
        Appearance expected;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto motion = [](const QVariant& common_, const QVariant& gnome_, const QVariant& kde_) -> PortalSettings {
        return {{common, {{u"color-scheme"_s, 1U}, {u"reduced-motion"_s, common_}}},
                {gnome, {{u"enable-animations"_s, gnome_}}},
                {kde, {{u"AnimationDurationFactor"_s, kde_}}}};
    };
    const auto shade = [](const QVariant& accent) -> PortalSettings {
        return {{common, {{u"color-scheme"_s, 1U}, {u"accent-color"_s, accent}}}};
    };
    const auto scheme = [](const QVariant& value) -> PortalSettings {
        return {{common, {{u"color-scheme"_s, value}, {u"reduced-motion"_s, 1U}}}};
    };
    const Appearance plain{.dark = true};
    const Appearance still{.dark = true, .reducesMotion = true};
    const Appearance light{.reducesMotion = true};
    const QVariant none = u"none"_s;
    const Row table[] = {
        {"dark", scheme(1U), still},
        {"light", scheme(2U), light},
        {"no preference: the palette", scheme(0U), light},
        {"a scheme of the future", scheme(99U), light},
        {"a scheme of another type", scheme(u"1"_s), light},
        {"wrapped once more", scheme(QVariant::fromValue(QDBusVariant(1U))), still},
        {"an accent", shade(color(1.0, 0.5, 0.0)), {.dark = true, .accent = QColor::fromRgbF(1.0F, 0.5F, 0.0F)}},
        {"no accent chosen", shade(color(-1.0, -1.0, -1.0)), plain},
        {"an accent out of range", shade(color(0.2, 1.1, 0.2)), plain},
        {"an accent that is no number", shade(color(nan, 0.2, 0.2)), plain},
        {"an accent as a list", shade(QVariant::fromValue(QList<double>{0.1, 0.2, 0.3})), plain},
        {"reduced motion", motion(1U, true, 1.0), still},
        {"motion, whatever the other two say", motion(0U, false, 0.0), plain},
        {"GNOME without animations", motion(none, false, 1.0), still},
        {"GNOME with animations", motion(none, true, 0.0), plain},
        {"KDE without animations", motion(none, none, 0.0), still},
        {"KDE without animations, as a text", motion(none, none, u"0"_s), still},
        {"KDE with nonsense", motion(none, none, u"fast"_s), plain},
    };
    for (const Row& row : table) {
        SCOPED_TRACE(row.name);
        FakePortal portal(bus.address(), row.settings);
        start();
        EXPECT_TRUE(becomes(row.expected));
        EXPECT_EQ(portal.asked.size(), 1u);
        portal.resign();
        stop();
    }
}

TEST_F(DesktopAppearanceTest, FollowsAPortalThatComesAndGoes) {
    start();
    for (int round = 0; round < 2; ++round) {
        std::optional<FakePortal> portal(std::in_place, bus.address(), dark());
        EXPECT_TRUE(becomes({.dark = true}));
        portal.reset();
        EXPECT_TRUE(becomes({})) << "the portal is gone: back to the palette";
    }
}

TEST_F(DesktopAppearanceTest, FollowsChangesAndTellsEachOnce) {
    FakePortal portal(bus.address(), dark());
    start();
    ASSERT_TRUE(becomes({.dark = true}));
    EXPECT_EQ(changes, 1);
    portal.change(common, u"accent-color"_s, color(0.0, 1.0, 0.0));
    EXPECT_TRUE(becomes({.dark = true, .accent = QColor(Qt::green)}));
    portal.change(common, u"accent-color"_s, u"garbage"_s);
    EXPECT_TRUE(becomes({.dark = true}));
    portal.change(common, u"color-scheme"_s, 2U);
    EXPECT_TRUE(becomes({}));
    portal.change(gnome, u"enable-animations"_s, false);
    EXPECT_TRUE(becomes({.reducesMotion = true}));
    EXPECT_EQ(changes, 5);
    portal.change(gnome, u"enable-animations"_s, false);
    portal.change(gnome, u"cursor-size"_s, 24);
    portal.change(u"org.example"_s, u"color-scheme"_s, 1U);
    portal.change(common, u"contrast"_s, 1U);
    settle(portal);
    EXPECT_EQ(changes, 5 + 1);
    EXPECT_FALSE(source->appearance().dark);
}

TEST_F(DesktopAppearanceTest, IsNotHeldUpByAPortalThatDoesNotAnswer) {
    FakePortal portal(bus.address(), dark());
    portal.hangs = true;
    start();
    ASSERT_TRUE(spinUntil([&] { return portal.asked.size() == 1; }));
    EXPECT_EQ(source->appearance(), Appearance());
    portal.answer(portal.asked[0]);
    EXPECT_TRUE(becomes({.dark = true}));
}

TEST_F(DesktopAppearanceTest, SurvivesWrongAnswers) {
    for (const bool refuses : {false, true}) {
        FakePortal portal(bus.address(), dark());
        portal.nonsense = {u"no settings"_s, 7};
        portal.error = refuses ? QDBusError::AccessDenied : QDBusError::NoError;
        changes = 0;
        start();
        settle(portal);
        EXPECT_EQ(source->appearance(), (Appearance{.reducesMotion = true}));
        EXPECT_EQ(changes, 1);
        portal.resign();
        stop();
    }
}

TEST_F(DesktopAppearanceTest, OutlivesTheBus) {
    FakePortal portal(bus.address(), dark());
    start();
    ASSERT_TRUE(becomes({.dark = true}));
    bus.kill();
    EXPECT_TRUE(spinUntil([&] { return !connection.bus().isConnected(); }));
    QGuiApplication::setPalette(QPalette(QColor(30, 30, 30)));
    QCoreApplication::processEvents();
    EXPECT_TRUE(source->appearance().dark);
}

} // namespace
} // namespace vantrix
