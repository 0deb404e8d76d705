#include "linux/kernel/rescan_schedule.h"

#include <functional>

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(RescanSchedule, SearchesAfterChangesAndFailuresAndNowAndThen) {
    TemporaryFolder folder;
    RescanSchedule schedule({folder.path("hwmon"), folder.path("thermal")}, {60, 10});
    struct Step {
        const char* name;
        std::function<void()> change;
        int pass; ///< of the next 1000, the one that searches
    };
    const Step steps[] = {
        {"the first pass", [] {}, 1},
        {"a folder comes", [&] { folder.write("hwmon/hwmon0", ""); }, 60},
        {"nothing new", [] {}, 600},
        {"a device of another folder", [&] { folder.write("thermal/thermal_zone0", ""); }, 60},
        {"one is given another number",
         [&] { std::filesystem::rename(folder.path("hwmon/hwmon0"), folder.path("hwmon/hwmon2")); }, 60},
        {"a failure soon after a search", [&] { schedule.noteFailure(); }, 5},
    };
    for (const Step& step : steps) {
        step.change();
        int pass = 1;
        while (!schedule.isDue() && pass < 1000)
            ++pass;
        EXPECT_EQ(pass, step.pass) << step.name;
    }
}

} // namespace
} // namespace vantrix
