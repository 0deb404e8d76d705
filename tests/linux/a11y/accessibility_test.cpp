#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app/accessible_application.h"
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
    static void SetUpTestSuite() { installAccessibleApplication(); }

    void SetUp() override { ASSERT_TRUE(reader.isConnected()) << "no accessibility bus: is at-spi2-core installed?"; }

    /// Reads the program's tree until the condition holds for it.
    template<typename Condition>
    bool readUntil(const char* program, Condition done) {
        return spinUntil([&] {
                   tree = reader.program(QString::fromLatin1(program)).value_or(AccessibleNode());
                   return done();
               }) ||
               (ADD_FAILURE() << qPrintable(describe(tree)), false);
    }

    AccessibilityBus reader;
    AccessibleNode tree;
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
        ASSERT_TRUE(readUntil("a11y_tests", [&] { return find(&tree, "progress bar", "Memory") != nullptr; }));
        const AccessibleNode* shown = find(&tree, "panel", "Readings");
        ASSERT_TRUE(shown);
        ASSERT_EQ(shown->children.size(), 2u);
        EXPECT_EQ(shown->children[0].value, (AccessibleValue{0.25, 0.0, 1.0}));
        EXPECT_FALSE(shown->children[1].value);
        window.hide();
        EXPECT_TRUE(readUntil("a11y_tests", [&] { return tree.children.empty(); }));
    }
}

/// The program as a user runs it, with files of its own.
class AccessibleProgramTest : public AccessibilityTest {
  protected:
    ~AccessibleProgramTest() override {
        program.kill();
        program.waitForFinished();
    }

    void start(QProcess& process, const QStringList& arguments) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(VANTRIX_PROGRAM), arguments);
    }

    /// Starts the program on a laptop with accessories, hands it a request, and waits for what it is to show.
    void request(const QStringList& request, const char* role, const char* name) {
        start(program, {u"--sys-root"_s, QString::fromStdString(machine.roots().sys)});
        ASSERT_TRUE(readUntil("vantrix", [&] { return tree.role == u"application"; }));
        QProcess asking;
        start(asking, request);
        ASSERT_TRUE(spinUntil([&] { return asking.state() == QProcess::NotRunning; }));
        ASSERT_EQ(asking.exitCode(), 0);
        ASSERT_TRUE(readUntil("vantrix", [&] { return find(&tree, role, name) != nullptr; }));
    }

    fakes::FixtureMachine machine{"two-packs-and-accessories"};
    QTemporaryDir folder;
    QProcess program;
};

TEST_F(AccessibleProgramTest, ThePopoverCanBeRead) {
    request({u"--show-popover"_s}, "panel", "Accessories, 4 connected");
    SCOPED_TRACE(qPrintable(describe(tree)));
    const AccessibleNode* popover = find(&tree, "dialog", "Vantrix");
    EXPECT_TRUE(find(popover, "push button", "Vantrix menu"));
    const struct {
        const char* card;
        const char* gauge;
    } cards[] = {{"CPU", "CPU load"},
                 {"Memory", "Memory in use"},
                 {"Disk", "Disk space in use"},
                 {"Battery, On battery", "Battery charge"}};
    for (const auto& [card, gauge] : cards) {
        const AccessibleNode* bar = find(find(popover, "panel", card), "progress bar", gauge);
        ASSERT_TRUE(bar && bar->value) << gauge;
        EXPECT_GE(bar->value->current, 0.0);
        EXPECT_LE(bar->value->current, bar->value->most);
    }
    EXPECT_TRUE(find(popover, "chart", "Download history"));
    EXPECT_TRUE(find(popover, "label", "Desk Keyboard: 87%"));
    EXPECT_TRUE(find(popover, "label", "Game Pad: 100%, Charging"));
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
    request({u"--show-settings"_s, u"alerts"_s}, "slider", "Disk full threshold");
    SCOPED_TRACE(qPrintable(describe(tree)));
    const struct {
        const char* role;
        const char* name;
    } expected[] = {{"page tab", "Menu Bar"},          {"check box", "Launch at login"},
                    {"combo box", "Update every"},     {"slider", "Warning threshold"},
                    {"radio button", "With graph"},    {"check box", "Bluetooth accessories"},
                    {"push button", "Move Memory up"}, {"push button", "Send test notification"}};
    for (const auto& [role, name] : expected)
        EXPECT_TRUE(find(&tree, role, name)) << role << ' ' << name;
    const AccessibleNode* slider = find(&tree, "slider", "Critical threshold");
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
