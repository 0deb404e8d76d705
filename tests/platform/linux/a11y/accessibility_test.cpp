#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "fakes/fake_appearance.h"
#include "platform/linux/a11y/accessible_tree.h"
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

    QTemporaryDir folder;
    QProcess program;
};

TEST_F(AccessibleProgramTest, ThePopoverCanBeRead) {
    start(program);
    readUntil(u"vantrix"_s, [](const AccessibleNode& tree) { return tree.role == u"application"; });
    QProcess request;
    start(request, {u"--show-popover"_s});
    ASSERT_TRUE(spinUntil([&] { return request.state() == QProcess::NotRunning; }));
    ASSERT_EQ(request.exitCode(), 0);
    const AccessibleNode tree = readUntil(u"vantrix"_s, [](const AccessibleNode& program) {
        const AccessibleNode* popover = find(program, u"dialog"_s, u"Vantrix"_s);
        return popover != nullptr && !popover->children.empty();
    });
    SCOPED_TRACE(qPrintable(describe(tree)));
    const AccessibleNode& content = find(tree, u"dialog"_s, u"Vantrix"_s)->children.front();
    EXPECT_EQ(content.name, u"Vantrix"_s);
}

} // namespace
} // namespace vantrix
