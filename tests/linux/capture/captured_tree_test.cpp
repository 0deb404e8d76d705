#include "linux/capture/captured_tree.h"

#include <gmock/gmock.h>

#include "linux/kernel/kernel_file.h"
#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(CapturedTree, ChangesFilesInPlaceAndTellsOfFoldersAndWhatCannotBeRead) {
    const TemporaryFolder capture;
    capture.write("proc/stat", "before\n");
    capture.write("sys/fan/rpm", "1200\n");
    capture.write("pass-001/proc/stat", "after\n");
    capture.write("pass-001/absent", "sys/fan\n");
    capture.write("pass-001/folders", "sys/empty\n");
    capture.write("pass-001/unreadable", "sys/temp\n");
    std::string folder;
    {
        const CapturedTree tree;
        folder = tree.roots().proc;
        ASSERT_TRUE(tree.lay(capture.path(".")));
        KernelFile stat(tree.roots().proc + "/stat");
        EXPECT_EQ(stat.read(), "before\n");
        ASSERT_TRUE(tree.lay(capture.path("pass-001")));
        EXPECT_EQ(stat.read(), "after\n");
        EXPECT_FALSE(std::filesystem::exists(tree.roots().sys + "/fan"));
        EXPECT_TRUE(std::filesystem::is_directory(tree.roots().sys + "/empty"));
        EXPECT_TRUE(std::filesystem::exists(tree.roots().sys + "/temp"));
        EXPECT_EQ(KernelFile(tree.roots().sys + "/temp").read(), std::nullopt);
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(CapturedTree, IsNotLedOutOfItsFolder) {
    const TemporaryFolder outside;
    outside.write("kept", "mine\n");
    const std::pair<const char*, std::string> lists[] = {
        {"absent", outside.path("kept")}, {"absent", "../kept"}, {"absent", "sys/../../kept"},
        {"folders", "../made"},           {"absent", "README"},  {"unreadable", outside.path("made")},
        {"bases", "no-such-base"},
    };
    for (const auto& [list, line] : lists) {
        const TemporaryFolder capture;
        outside.write("tree/README", "mine\n");
        capture.write(list, line + '\n');
        EXPECT_EQ(layOver(outside.path("tree"), capture.path(".")), std::string_view(list) == "bases") << line;
    }
    for (const std::string& target : {outside.path(""), std::string("../../..")}) {
        const TemporaryFolder capture;
        std::filesystem::create_directories(capture.path("sys"));
        std::filesystem::create_symlink(target, capture.path("sys/out"));
        capture.write("pass-001/sys/out/kept", "overwritten\n");
        EXPECT_FALSE(layOver(outside.path("tree"), capture.path("."))) << target;
        EXPECT_TRUE(layOver(outside.path("tree"), capture.path("pass-001")));
    }
    EXPECT_EQ(outside.read("kept"), "mine\n");
    EXPECT_EQ(outside.read("tree/README"), "mine\n");
    EXPECT_FALSE(std::filesystem::exists(outside.path("made")));
}

} // namespace
} // namespace vantrix
