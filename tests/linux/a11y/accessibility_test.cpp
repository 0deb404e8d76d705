#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/a11y/accessible_tree.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

class AccessibilityTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(reader.isConnected()) << "no accessibility bus: is at-spi2-core installed?"; }

    /// Reads the program's tree until the condition holds for it.
    template<typename Condition>
    bool readUntil(Condition done) {
        return spinUntil([&] {
                   tree = reader.program(u"vantrix"_s).value_or(AccessibleNode());
                   return done();
               }) ||
               (ADD_FAILURE() << qPrintable(describe(tree)), false);
    }

    AccessibilityBus reader;
    AccessibleNode tree;
};

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
        ASSERT_TRUE(readUntil([&] { return tree.role == u"application"; }));
        QProcess asking;
        start(asking, request);
        ASSERT_TRUE(spinUntil([&] { return asking.state() == QProcess::NotRunning; }));
        ASSERT_EQ(asking.exitCode(), 0);
        ASSERT_TRUE(readUntil([&] { return find(&tree, role, name) != nullptr; }));
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
    EXPECT_TRUE(describe(*popover).contains(u"chart \"Download history: now "_s));
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
