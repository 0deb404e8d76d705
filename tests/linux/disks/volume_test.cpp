#include "linux/disks/volume.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(VolumeStatistics, TellsBytes) {
    const TemporaryFolder folder;
    const auto space = std::filesystem::space(folder.path(""));
    const auto volume = VolumeStatistics(folder.path("")).read();
    ASSERT_TRUE(volume);
    EXPECT_EQ(volume->total, static_cast<std::int64_t>(space.capacity));
    EXPECT_LE(volume->available.value(), volume->total.value());
    EXPECT_FALSE(VolumeStatistics(folder.path("missing")).read());
}

TEST(RootVolume, IsThatOfTheWatchedMachine) {
    const TemporaryFolder folder;
    EXPECT_EQ(rootVolume("/proc"), "/");
    EXPECT_EQ(rootVolume(folder.path("proc")), "/");
    folder.write("proc/1/root/etc/hostname", "other\n");
    EXPECT_EQ(rootVolume(folder.path("proc")), folder.path("proc/1/root"));
}

} // namespace
} // namespace vantrix
