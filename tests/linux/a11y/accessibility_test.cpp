#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "fakes/fixture_machine.h"
#include "linux/a11y/accessible_tree.h"
#include "views/theme.h"
#include "views/view.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

class AccessibilityTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(reader.isConnected()) << "no accessibility bus: is at-spi2-core installed?"; }

    /// Reads the program until `done` holds for its tree; the last tree read.
    template<typename Condition>
    AccessibleNode readUntil(const QString& program, Condition done) {
        AccessibleNode tree;
        EXPECT_TRUE(spinUntil([&] {
            tree = reader.program(program).value_or(AccessibleNode());
            return done(tree);
        })) << qPrintable(describe(tree));
        return tree;
    }

    AccessibilityBus reader;
};

/// A bar with a remark that comes and goes.
class Bar : public View {
  public:
    using View::View;
    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QString accessibleText() const override { return u"Memory"_s; }
    std::optional<double> accessibleFraction() const override { return fraction; }

    std::optional<double> fraction = 0.25;
};

TEST_F(AccessibilityTest, ViewsTellRoleNameAndValueInPopUpsToo) {
    fakes::FakeAppearance appearance;
    const Theme theme(appearance);
    for (const Qt::WindowType type : {Qt::Popup, Qt::Window}) {
        View window(theme);
        window.setWindowFlags(type);
        window.setAccessibleName(u"Readings"_s);
        Bar bar(theme, &window);
        Bar empty(theme, &window);
        empty.fraction.reset();
        window.show();
        const AccessibleNode tree = readUntil(u"a11y_tests"_s, [](const AccessibleNode& program) {
            return find(program, u"progress bar"_s, u"Memory"_s) != nullptr;
        });
        const AccessibleNode* shown = find(tree, u"panel"_s, u"Readings"_s);
        ASSERT_TRUE(shown) << qPrintable(describe(tree));
        ASSERT_EQ(shown->children.size(), 2u);
        ASSERT_TRUE(shown->children[0].value);
        EXPECT_EQ(shown->children[0].value->current, 0.25);
        EXPECT_EQ(shown->children[0].value->least, 0.0);
        EXPECT_EQ(shown->children[0].value->most, 1.0);
        EXPECT_FALSE(shown->children[1].value);
        window.hide();
        readUntil(u"a11y_tests"_s, [](const AccessibleNode& program) { return program.children.empty(); });
    }
}

/// The program as a user runs it, with files of its own.
class AccessibleProgramTest : public AccessibilityTest {
  protected:
    ~AccessibleProgramTest() override {
        program.kill();
        program.waitForFinished();
    }

    void start(QProcess& process, const QStringList& arguments = {}) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(VANTRIX_PROGRAM), arguments);
    }

    /// Starts the program, and once it can be read hands it a request.
    void startAndAsk(const QStringList& request, const QStringList& arguments = {}) {
        start(program, arguments);
        readUntil(u"vantrix"_s, [](const AccessibleNode& tree) { return tree.role == u"application"; });
        QProcess asking;
        start(asking, request);
        ASSERT_TRUE(spinUntil([&] { return asking.state() == QProcess::NotRunning; }));
        ASSERT_EQ(asking.exitCode(), 0);
    }

    QTemporaryDir folder;
    QProcess program;
};

TEST_F(AccessibleProgramTest, ThePopoverCanBeRead) {
    startAndAsk({u"--show-popover"_s});
    const AccessibleNode tree = readUntil(u"vantrix"_s, [](const AccessibleNode& program) {
        const AccessibleNode* popover = find(program, u"dialog"_s, u"Vantrix"_s);
        return popover != nullptr && find(*popover, u"panel"_s, u"Disk"_s) != nullptr;
    });
    SCOPED_TRACE(qPrintable(describe(tree)));
    const AccessibleNode* found = find(tree, u"dialog"_s, u"Vantrix"_s);
    ASSERT_TRUE(found);
    const AccessibleNode& popover = *found;
    EXPECT_TRUE(find(popover, u"push button"_s, u"Vantrix menu"_s));
    const struct {
        QString card;
        QString gauge;
    } cards[] = {{u"CPU"_s, u"CPU load"_s}, {u"Memory"_s, u"Memory in use"_s}, {u"Disk"_s, u"Disk space in use"_s}};
    for (const auto& [card, gauge] : cards) {
        const AccessibleNode* panel = find(popover, u"panel"_s, card);
        ASSERT_TRUE(panel) << qPrintable(card);
        const AccessibleNode* bar = find(*panel, u"progress bar"_s, gauge);
        ASSERT_TRUE(bar && bar->value) << qPrintable(gauge);
        EXPECT_GE(bar->value->current, 0.0);
        EXPECT_LE(bar->value->current, bar->value->most);
    }
    EXPECT_TRUE(find(popover, u"label"_s, u"Pressure: normal"_s) || find(popover, u"label"_s, u"Pressure: warning"_s) ||
                find(popover, u"label"_s, u"Pressure: critical"_s));
    EXPECT_TRUE(find(popover, u"chart"_s, u"Download history"_s));
}

TEST_F(AccessibleProgramTest, CardsOfALaptopCanBeReadAndOpened) {
    const fakes::FixtureMachine machine("two-packs-and-accessories");
    startAndAsk({u"--show-popover"_s}, {u"--sys-root"_s, QString::fromStdString(machine.roots().sys)});
    const AccessibleNode tree = readUntil(u"vantrix"_s, [](const AccessibleNode& program) {
        return find(program, u"panel"_s, u"Accessories, 4 connected"_s) != nullptr;
    });
    SCOPED_TRACE(qPrintable(describe(tree)));
    const AccessibleNode* battery = find(tree, u"panel"_s, u"Battery, On battery"_s);
    ASSERT_TRUE(battery);
    const AccessibleNode* charge = find(*battery, u"progress bar"_s, u"Battery charge"_s);
    ASSERT_TRUE(charge && charge->value);
    EXPECT_GT(charge->value->current, 0.0);
    EXPECT_TRUE(find(tree, u"label"_s, u"Desk Keyboard: 87%"_s));
    EXPECT_TRUE(find(tree, u"label"_s, u"Game Pad: 100%, Charging"_s));
}

/// The controls in `node` that assistive programs could not tell from each other.
void collectNameless(const AccessibleNode& node, QStringList& found) {
    static const QStringList controls = {u"push button"_s, u"check box"_s, u"radio button"_s,
                                         u"slider"_s,      u"combo box"_s, u"page tab"_s};
    if (controls.contains(node.role) && node.name.isEmpty())
        found += node.role;
    for (const AccessibleNode& child : node.children)
        collectNameless(child, found);
}

TEST_F(AccessibleProgramTest, EveryControlOfTheSettingsHasItsName) {
    startAndAsk({u"--show-settings"_s, u"alerts"_s});
    const AccessibleNode tree = readUntil(u"vantrix"_s, [](const AccessibleNode& program) {
        return find(program, u"slider"_s, u"Disk full threshold"_s) != nullptr;
    });
    SCOPED_TRACE(qPrintable(describe(tree)));
    const struct {
        QString role;
        QString name;
    } expected[] = {{u"page tab"_s, u"Menu Bar"_s},          {u"check box"_s, u"Launch at login"_s},
                    {u"combo box"_s, u"Update every"_s},     {u"slider"_s, u"Warning threshold"_s},
                    {u"radio button"_s, u"With graph"_s},    {u"check box"_s, u"Bluetooth accessories"_s},
                    {u"push button"_s, u"Move Memory up"_s}, {u"push button"_s, u"Send test notification"_s}};
    for (const auto& [role, name] : expected)
        EXPECT_TRUE(find(tree, role, name)) << qPrintable(role) << ' ' << qPrintable(name);
    const AccessibleNode* slider = find(tree, u"slider"_s, u"Critical threshold"_s);
    ASSERT_TRUE(slider && slider->value);
    EXPECT_NEAR(slider->value->current, 0.9, 1e-9);
    EXPECT_NEAR(slider->value->least, 0.55, 1e-9);
    EXPECT_NEAR(slider->value->most, 1.0, 1e-9);
    QStringList nameless;
    collectNameless(tree, nameless);
    EXPECT_EQ(nameless, QStringList());
}

} // namespace
} // namespace vantrix
