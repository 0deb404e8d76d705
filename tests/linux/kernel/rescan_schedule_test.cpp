#include "linux/kernel/rescan_schedule.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

struct RescanScheduleTest : ::testing::Test {
    TemporaryFolder folder;
    RescanSchedule schedule{{folder.path("hwmon"), folder.path("thermal")}};

    RescanScheduleTest() { schedule.isDue(); }

    /// The pass that searches, of the next `limit`; 0 for none.
    int searchWithin(int limit) {
        for (int i = 1; i <= limit; ++i) {
            if (schedule.isDue())
                return i;
        }
        return 0;
    }
};

TEST_F(RescanScheduleTest, SearchesOnTheFirstPass) {
    EXPECT_TRUE(RescanSchedule({}).isDue());
}

TEST_F(RescanScheduleTest, UnchangedFoldersAreSearchedRarely) {
    folder.write("hwmon/hwmon0", "");
    EXPECT_EQ(searchWithin(60), 60);
    EXPECT_EQ(searchWithin(1000), 600);
    EXPECT_EQ(searchWithin(1000), 600);
}

TEST_F(RescanScheduleTest, DevicesThatComeGoAndAreRenumberedAreNoticed) {
    folder.write("hwmon/hwmon0", "");
    folder.write("hwmon/hwmon1", "");
    EXPECT_EQ(searchWithin(60), 60);
    folder.remove("hwmon/hwmon1");
    EXPECT_EQ(searchWithin(60), 60);
    folder.remove("hwmon/hwmon0");
    folder.write("hwmon/hwmon2", "");
    EXPECT_EQ(searchWithin(60), 60);
    folder.write("thermal/thermal_zone0", "");
    EXPECT_EQ(searchWithin(60), 60);
}

TEST_F(RescanScheduleTest, AFailureIsLookedIntoSoonButNotOnEveryPass) {
    EXPECT_EQ(searchWithin(10), 0);
    schedule.noteFailure();
    EXPECT_EQ(searchWithin(60), 1);
    schedule.noteFailure();
    EXPECT_EQ(searchWithin(60), 5);
    EXPECT_EQ(searchWithin(590), 0);
}

} // namespace
} // namespace vantrix
