#include "linux/disks/volume.h"

#include <gmock/gmock.h>

#include "fakes/fake_volumes.h"
#include "fakes/fixture_machine.h"

namespace vantrix {
namespace {

TEST(VolumeStatistics, AreThoseOfTheVolumeThatPeopleWriteTo) {
    const std::pair<std::string, std::int64_t> rows[] = {
        {"/ rw 10 1 /var rw 20 2", 1},
        {fakes::FixtureMachine("immutable-system").read("statvfs"), 400},
        {"/ ro 10 0 /var ro 20 2 /home rw 30 3", 3},
        {"/ ro 10 0 /home rw 30 3", 3},
        {"/ ro 10 1 /var ro 20 2 /home ro 30 3", 1},
        {"/ ro 10 1", 1},
    };
    for (const auto& [volumes, available] : rows)
        EXPECT_EQ(VolumeStatistics({"/", "/var", "/home"}, fakes::volumesOf(volumes)).read()->available,
                  available * 4096)
            << volumes;
}

TEST(VolumeStatistics, AreChosenNowAndThen) {
    auto answers = fakes::volumesOf("/ rw 10 1 /var rw 20 2");
    VolumeStatistics volume({"/", "/var"}, [&](const auto& folder, auto& answer) { return answers(folder, answer); });
    EXPECT_EQ(volume.read()->available, 4096);
    volume.choose("/no such volume");
    EXPECT_EQ(volume.read(), std::nullopt) << "and not what is at /";
    volume.choose("");
    answers = fakes::volumesOf("/ ro 10 0 /var rw 20 2");
    for (int pass = 1; pass < 60; ++pass)
        EXPECT_EQ(volume.read()->available, 0);
    EXPECT_EQ(volume.read()->available, 2 * 4096);
    answers = fakes::volumesOf("/ rw 10 1");
    for (int pass = 1; pass < 6; ++pass)
        EXPECT_EQ(volume.read().has_value(), pass == 5); // sooner after a failure
}

TEST(VolumeFolders, AreThoseOfTheWatchedMachine) {
    const TemporaryFolder folder;
    using ::testing::ElementsAre;
    EXPECT_THAT(volumeFolders("/proc"), ElementsAre("/", "/var", ::testing::StartsWith("/")));
    EXPECT_EQ(volumeFolders(folder.path("proc")), volumeFolders("/proc"));
    folder.write("proc/1/root/etc/hostname", "other\n");
    const std::string root = folder.path("proc/1/root");
    EXPECT_THAT(volumeFolders(folder.path("proc")), ElementsAre(root, root + "/var", root + "/home"));
}

} // namespace
} // namespace vantrix
