#include "linux/kernel/kernel_file.h"

#include <csignal>

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(KernelFile, FollowsAFileThatComesGrowsAndIsCutShort) {
    const TemporaryFolder folder;
    KernelFile file(folder.path("value"));
    EXPECT_EQ(file.read(), std::nullopt);
    folder.write("value", "1\n");
    EXPECT_EQ(file.read(), "1\n");
    const std::string longText(100'000, 'x');
    folder.write("value", longText);
    EXPECT_EQ(file.read(), longText);
    folder.write("value", "");
    EXPECT_EQ(file.read(), "");
    folder.write("value", "2\n");
    EXPECT_EQ(file.read(), "2\n");
}

TEST(KernelFile, OpensAnewAfterItsDeviceVanished) {
    const TemporaryFolder folder;
    const pid_t child = fork();
    if (child == 0) {
        pause();
        _exit(0);
    }
    // The kernel's file about a process fails once that process is gone, like that of a device.
    const std::string vanishing = "/proc/" + std::to_string(child) + "/stat";
    std::filesystem::create_symlink(vanishing, folder.path("link"));
    KernelFile file(folder.path("link"));
    EXPECT_TRUE(file.read().has_value());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_EQ(file.read(), std::nullopt);
    folder.remove("link");
    folder.write("link", "back\n");
    EXPECT_EQ(file.read(), "back\n");
}

TEST(KernelFile, ReadsRecordsBeyondTheFirstPage) {
    KernelFile file("/proc/self/smaps", KernelFile::Kind::records);
    const auto text = file.read();
    ASSERT_TRUE(text);
    EXPECT_GT(text->size(), 8192u);
    EXPECT_NE(text->rfind("[v"), std::string_view::npos); // the last mapping
}

TEST(KernelFile, LeavesDescriptorsToTheRestOfTheProgram) {
    const TemporaryFolder folder;
    folder.write("value", "1\n");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{64, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    std::vector<KernelFile> files;
    for (int i = 0; i < 100; ++i)
        files.emplace_back(folder.path("value"));
    for (int pass = 0; pass < 2; ++pass)
        for (KernelFile& file : files)
            EXPECT_EQ(file.read(), "1\n");
    const FileDescriptor another(open("/dev/null", O_RDONLY));
    EXPECT_LE(another.get(), 32);
    EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
}

TEST(KernelFile, RefusesWhatIsNoKernelFile) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(KernelFile(folder.path("pipe")).read(), std::nullopt);
    EXPECT_EQ(KernelFile(folder.path("")).read(), std::nullopt);
    EXPECT_EQ(KernelFile("/dev/null").read(), std::nullopt);
    folder.write("endless", std::string(5 << 20, '\n'));
    KernelFile endless(folder.path("endless"));
    const auto memory = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; }; // sanitizers do not tell
    const auto before = memory();
    EXPECT_FALSE(endless.read().has_value());
    EXPECT_LT(memory(), before + (1 << 20));
}

} // namespace
} // namespace vantrix
