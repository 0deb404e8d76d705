#include "linux/capture/tree_recorder.h"

#include <gmock/gmock.h>

#include "linux/capture/captured_tree.h"
#include "linux/kernel/kernel_file.h"
#include "linux/kernel/kernel_folder.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

/// A machine whose reading is taken down, and what is laid out of it elsewhere.
struct TreeRecorderTest : ::testing::Test {
    TreeRecorderTest() {
        machine.write("proc/stat", "1\n");
        machine.write("sys/devices/usb1/fan0/rpm", "1200\n");
        machine.write("sys/devices/usb1/fan0/name", "fan\n");
        machine.write("sys/devices/usb1/fan0/alarm", "0\n");
        std::filesystem::create_directories(machine.path("sys/devices/usb1/fan0/temp")); // cannot be read
        std::filesystem::create_directories(machine.path("sys/class/fans"));
        link("../../devices/usb1/fan0", "sys/class/fans/fan0");
        readingManner = {true, &recorder};
    }
    ~TreeRecorderTest() override { readingManner = {}; }

    void link(const std::string& target, const std::string& entry) const {
        std::filesystem::create_symlink(target, machine.path(entry));
    }

    /// Lays down what was read, lays it out, and lets what is read from now on be read there.
    std::string replayPass() {
        EXPECT_TRUE(recorder.layDown(capture.path(std::to_string(++pass))));
        EXPECT_TRUE(copy.lay(capture.path(std::to_string(pass))));
        readingManner.watch = nullptr;
        return copy.roots().sys;
    }
    void nextPass() {
        readingManner.watch = &recorder;
        recorder.beginPass();
    }

    TemporaryFolder machine;
    TemporaryFolder capture;
    CapturedTree copy;
    Redaction redaction{{}};
    TreeRecorder recorder{{machine.path("proc"), machine.path("sys")}, redaction};
    std::string sys = machine.path("sys");
    int pass = 0;
};

TEST_F(TreeRecorderTest, LaysDownWhatWasLookedAtAndNothingElse) {
    KernelFile rpm(sys + "/class/fans/fan0/rpm");
    EXPECT_EQ(rpm.read(), "1200\n");
    EXPECT_EQ(KernelFile(sys + "/class/fans/fan0/temp").read(), std::nullopt);
    EXPECT_TRUE(pathExists(sys + "/class/fans//fan0/alarm"));
    EXPECT_FALSE(pathExists(sys + "/class/fans/fan0/label"));
    EXPECT_EQ(linkTarget(sys + "/class/fans/fan0"), "../../devices/usb1/fan0");
    EXPECT_EQ(resolvedPath(sys + "/class/fans/fan0"), sys + "/devices/usb1/fan0");
    const std::string copied = replayPass();
    EXPECT_EQ(readStart(copied + "/class/fans/fan0/rpm"), "1200\n");
    EXPECT_EQ(readStart(copied + "/class/fans/fan0/alarm"), ""); // never read: it may be slow, or have effects
    EXPECT_EQ(readStart(copied + "/class/fans/fan0/temp"), std::nullopt);
    EXPECT_TRUE(pathExists(copied + "/class/fans/fan0/temp"));
    EXPECT_FALSE(pathExists(copied + "/class/fans/fan0/name"));
    EXPECT_EQ(linkTarget(copied + "/class/fans/fan0"), "../../devices/usb1/fan0");
    EXPECT_FALSE(pathExists(copy.roots().proc + "/stat"));
}

TEST_F(TreeRecorderTest, ShowsAFileAsItWasFirstReadInAPass) {
    const std::string stat = machine.path("proc/stat");
    KernelFile file(stat);
    EXPECT_EQ(readStart(stat, 1), "1");
    EXPECT_EQ(file.read(), "1\n"); // there is more of it than was read first
    machine.write("proc/stat", "2\n");
    EXPECT_EQ(file.read(), "1\n");
    EXPECT_EQ(readStart(stat, 1), "1");
    replayPass();
    nextPass();
    EXPECT_EQ(file.read(), "2\n");
    replayPass();
    EXPECT_EQ(readStart(copy.roots().proc + "/stat"), "2\n");
}

TEST_F(TreeRecorderTest, TellsWhatComesAndGoes) {
    KernelFolder fans(sys + "/class/fans");
    EXPECT_TRUE(fans.list());
    EXPECT_EQ(readStart(sys + "/class/fans/fan0/rpm"), "1200\n");
    const auto number = entryNumber(sys + "/class/fans/fan0");
    KernelFolder copied(replayPass() + "/class/fans");
    EXPECT_TRUE(copied.list());
    const auto copiedNumber = entryNumber(copied.path() + "/fan0");

    nextPass();
    machine.write("sys/class/fans/fan1/rpm", "700\n");
    std::filesystem::rename(machine.path("sys/devices/usb1/fan0"), machine.path("sys/devices/usb1/old"));
    machine.write("sys/devices/usb1/fan0/rpm", "1200\n");
    EXPECT_TRUE(fans.list());
    EXPECT_THAT(fans.names(), ElementsAre("fan0", "fan1"));
    EXPECT_EQ(readStart(sys + "/class/fans/fan0/rpm"), "1200\n");
    EXPECT_NE(entryNumber(sys + "/class/fans/fan0"), number);
    replayPass();
    EXPECT_TRUE(copied.list());
    EXPECT_THAT(copied.names(), ElementsAre("fan0", "fan1"));
    EXPECT_NE(entryNumber(copied.path() + "/fan0"), copiedNumber); // another one of that name
    EXPECT_EQ(readStart(copied.path() + "/fan0/rpm"), "1200\n");

    nextPass();
    machine.remove("sys/class/fans/fan0");
    EXPECT_TRUE(fans.list());
    replayPass();
    EXPECT_TRUE(copied.list());
    EXPECT_THAT(copied.names(), ElementsAre("fan1"));
}

} // namespace
} // namespace vantrix
