#include "linux/services/desktop_appearance.h"

#include <limits>

#include <QApplication>
#include <QDBusConnectionInterface>
#include <QPalette>

#include "linux/desktop_folders.h"
#include "linux/services/desktop_wishes.h"
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

struct DesktopAppearanceTest : testing::Test {
    DesktopAppearanceTest() { QGuiApplication::setPalette(QPalette(QColor(239, 239, 239))); }
    ~DesktopAppearanceTest() override { QGuiApplication::setPalette(QPalette()); }

    void start() {
        source = std::make_unique<DesktopAppearance>(bus.link());
        QObject::connect(source.get(), &AppearanceSource::changed, source.get(), [this] { ++changes; });
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

    DesktopFolders nothing; // of the desktop that the test runs on
    PrivateBus bus;
    std::unique_ptr<DesktopAppearance> source;
    int changes = 0;
};

TEST_F(DesktopAppearanceTest, TakesThePaletteWhereNobodyTells) {
    for (const auto& link : {bus.link(), std::make_shared<BusLink>(std::nullopt)}) {
        QGuiApplication::setPalette(QPalette(QColor(239, 239, 239)));
        DesktopAppearance appearance(link);
        EXPECT_EQ(appearance.appearance(), Appearance());
        QGuiApplication::setPalette(QPalette(QColor(30, 30, 30)));
        EXPECT_TRUE(spinUntil([&] { return appearance.appearance() == Appearance{.dark = true}; }));
    }
}

TEST(DesktopWishes, TellDarkFromLight) {
    const struct {
        QVariant told;
        std::optional<bool> dark;
    } cases[] = {{1U, true}, {2U, false}, {0U, {}}, {99U, {}}, {u"1"_s, {}}};
    for (const auto& [told, dark] : cases) {
        DesktopWishes wishes;
        wishes.take(common, u"color-scheme"_s, told);
        EXPECT_EQ(wishes.dark(), dark) << qPrintable(told.toString());
    }
}

TEST(DesktopWishes, ReduceMotionByTheFirstDesktopThatTells) {
    const QVariant none;
    const struct {
        const char* name;
        QVariant common, gnome, kde;
        bool expected;
    } cases[] = {
        {"whatever the other two say", 0U, false, 0.0, false},     {"GNOME without animations", none, false, 1.0, true},
        {"GNOME with animations", none, true, 0.0, false},         {"KDE without animations", none, none, 0.0, true},
        {"KDE with slow animations", none, none, u"2.5"_s, false},
    };
    for (const auto& c : cases) {
        DesktopWishes wishes;
        wishes.take(common, u"reduced-motion"_s, c.common);
        wishes.take(gnome, u"enable-animations"_s, c.gnome);
        wishes.take(kde, u"AnimationDurationFactor"_s, c.kde);
        EXPECT_EQ(wishes.reducesMotion(), c.expected) << c.name;
    }
}

TEST(DesktopWishes, TakeGnomesContrastWhereNobodyElseTells) {
    DesktopWishes wishes;
    wishes.take(u"org.gnome.desktop.a11y.interface"_s, u"high-contrast"_s, true);
    EXPECT_TRUE(wishes.highContrast());
    wishes.take(common, u"contrast"_s, 0U);
    EXPECT_FALSE(wishes.highContrast());
}

TEST_F(DesktopAppearanceTest, TakesAccentsThatAreColours) {
    FakePortal portal(bus.address(), dark());
    start();
    const QVariant none[] = {color(-1.0, -1.0, -1.0), // none is chosen
                             color(std::numeric_limits<double>::quiet_NaN(), 0.2, 0.2), u"#ff8800"_s};
    for (const QVariant& accent : none) {
        portal.change(common, u"accent-color"_s, color(1.0, 0.5, 0.0));
        EXPECT_TRUE(becomes({.dark = true, .accent = QColor::fromRgbF(1.0F, 0.5F, 0.0F)}));
        portal.change(common, u"accent-color"_s, accent);
        EXPECT_TRUE(becomes({.dark = true}));
    }
}

TEST(DesktopSettings, AreThoseOfTheDesktopThatRuns) {
    const QFont serif(u"DejaVu Serif"_s, 12);
    const QFont plasmas(u"Noto Sans"_s, 10);
    const QColor breeze(61, 174, 233);
    const std::string dark =
        "[Colors:Window]\nBackgroundNormal=42,46,50\n[Colors:Selection]\nBackgroundNormal=200,60,30\n";
    const std::string font = "font=DejaVu Serif,12,-1,5,50,0,0,0,0,0\n";
    const struct {
        const char* name;
        QByteArray desktop;
        std::map<std::string, std::string> files;
        DesktopSettings expected;
    } cases[] = {
        {"a fresh Plasma", "KDE", {}, {.font = plasmas, .highlight = breeze, .iconTheme = u"breeze"_s}},
        {"a Plasma of somebody's own",
         "KDE",
         {{"own/kdeglobals", "[General]\n" + font + "[Icons]\nTheme=papirus\n[KDE]\nStartDragDist=9\n" + dark}},
         {serif, QColor(42, 46, 50), QColor(200, 60, 30), u"papirus"_s, 9}},
        {"colours by name only, in what the session takes by default",
         "KDE",
         {{"session/kdeglobals", "[General]\nColorScheme=Twilight\n"}, {"data/color-schemes/Twilight.colors", dark}},
         {plasmas, QColor(42, 46, 50), QColor(200, 60, 30), u"breeze"_s}},
        {"LXQt",
         "X:LXQt",
         {{"own/lxqt/lxqt.conf", "[General]\nicon_theme=papirus\n[Qt]\n" + font + "[Palette]\nwindow_color=#202020\n"}},
         {.font = serif, .window = QColor(32, 32, 32), .iconTheme = u"papirus"_s}},
        {"another desktop", "XFCE", {{"own/kdeglobals", dark}}, {}},
    };
    for (const auto& c : cases) {
        const DesktopFolders folders(c.desktop);
        for (const auto& [file, text] : c.files)
            folders.write(file, text);
        DesktopSettings settings = DesktopSettings::read();
        settings.files.clear();
        settings.userFile.clear();
        EXPECT_EQ(settings, c.expected) << c.name;
    }
}

TEST(DesktopWishes, TakeGnomesFont) {
    DesktopWishes wishes;
    for (const auto& [told, family] :
         {std::pair(u"Cantarell 11"_s, u"Cantarell"_s), {u"Noto Sans Semi-Bold Italic 11"_s, u"Noto Sans"_s}}) {
        wishes.take(gnome, u"font-name"_s, told);
        EXPECT_EQ(wishes.gnomeFont(false), QFont(family, 11));
    }
    wishes.take(gnome, u"text-scaling-factor"_s, 2.0);
    EXPECT_EQ(wishes.gnomeFont(false)->pointSizeF(), 11.0) << "X11 has it in its resolution";
    EXPECT_EQ(wishes.gnomeFont(true)->pointSizeF(), 22.0);
    for (const QString& nonsense : {u""_s, u"11"_s, u"Bold 11"_s, u"Cantarell"_s}) {
        wishes.take(gnome, u"font-name"_s, nonsense);
        EXPECT_FALSE(wishes.gnomeFont(true)) << qPrintable(nonsense);
    }
}

TEST_F(DesktopAppearanceTest, GivesTheToolkitTheDesktopsFontAndFollowsItsFile) {
    const QFont usual = QGuiApplication::font();
    const DesktopFolders folders("KDE");
    const auto put = [&](const std::string& points) { // the way a desktop replaces its file
        folders.write("own/new", "[General]\nfont=DejaVu Serif," + points + ",-1,5,50,0,0,0,0,0\n");
        std::filesystem::rename(folders.path("own/new"), folders.path("own/kdeglobals"));
    };
    put("12");
    start();
    int before = 12;
    for (const int points : {8, 110}) { // never as long as the one before, which may be of the same tick
        EXPECT_EQ(QGuiApplication::font(), QFont(u"DejaVu Serif"_s, std::exchange(before, points)));
        EXPECT_EQ(source->appearance().accent, QColor(61, 174, 233));
        put(std::to_string(points));
        EXPECT_TRUE(spinUntil([&] { return QGuiApplication::font().pointSize() == points; }));
    }
    std::filesystem::remove(folders.path("own/kdeglobals"));
    EXPECT_TRUE(spinUntil([&] { return QGuiApplication::font().pointSize() == 10; }));
    put("9");
    EXPECT_TRUE(spinUntil([&] { return QGuiApplication::font().pointSize() == 9; })) << "there was none to watch";
    QApplication::setFont(usual);
}

TEST_F(DesktopAppearanceTest, FollowsAPortalThatComesAndGoes) {
    start();
    for (int round = 0; round < 2; ++round) {
        std::optional<FakePortal> portal(std::in_place, bus.address(), dark());
        EXPECT_TRUE(becomes({.dark = true}));
        portal.reset();
        EXPECT_TRUE(becomes({})) << "the portal is gone: back to the palette";
    }
    bus.kill();
    bus.start();
    FakePortal portal(bus.address(), dark());
    EXPECT_TRUE(becomes({.dark = true})) << "another bus";
}

TEST_F(DesktopAppearanceTest, FollowsChangesAndTellsEachOnce) {
    FakePortal portal(bus.address(), dark());
    start();
    ASSERT_TRUE(becomes({.dark = true}));
    EXPECT_EQ(changes, 1);
    portal.change(common, u"color-scheme"_s, 2U);
    EXPECT_TRUE(becomes({}));
    portal.change(gnome, u"enable-animations"_s, false);
    EXPECT_TRUE(becomes({.reducesMotion = true}));
    EXPECT_EQ(changes, 3);
    portal.change(common, u"contrast"_s, 1U);
    EXPECT_TRUE(becomes({.reducesMotion = true, .highContrast = true}));
    portal.change(gnome, u"enable-animations"_s, false);
    portal.change(u"org.example"_s, u"color-scheme"_s, 1U);
    settle(portal);
    EXPECT_EQ(changes, 4 + 1);
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
    FakePortal portal(bus.address(), dark());
    portal.always = {u"no settings"_s, 7};
    start();
    settle(portal);
    EXPECT_EQ(source->appearance(), Appearance{.reducesMotion = true});
    portal.resign();
    EXPECT_TRUE(becomes({}));
    portal.error = QDBusError::AccessDenied;
    portal.asked.clear();
    ASSERT_TRUE(portal.appear());
    settle(portal);
    EXPECT_EQ(source->appearance(), Appearance{.reducesMotion = true});
    EXPECT_EQ(changes, 3);
}

} // namespace
} // namespace vantrix
