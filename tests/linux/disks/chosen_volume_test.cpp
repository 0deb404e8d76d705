#include "linux/disks/chosen_volume.h"

#include <atomic>
#include <thread>

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "linux/disks/mounted_volumes.h"

namespace vantrix {
namespace {

TEST(MountedVolumes, AreThoseOfRealDevicesOnceEach) {
    const fakes::FixtureMachine machine("ordinary-desktop");
    EXPECT_THAT(mountedVolumes(machine.path("proc")),
                ::testing::ElementsAre("/", "/home", "/media/ann/Old disk", "/tank"));
    EXPECT_THAT(volumesIn("- - -\n\n22 1 8:2 / /\n"), ::testing::IsEmpty());
    EXPECT_THAT(mountedVolumes(machine.path("none")), ::testing::IsEmpty());
}

TEST(ChosenVolume, IsNothingWhereNothingIsMounted) {
    const TemporaryFolder folder;
    EXPECT_TRUE(volumeAt("/").has_value());
    EXPECT_EQ(volumeAt(folder.path("")), std::nullopt) << "a folder of another volume";
    EXPECT_EQ(volumeAt(folder.path("gone")), std::nullopt);
}

TEST(ChosenVolume, NobodyWaitsForOneThatHangs) {
    struct Server {
        std::atomic<bool> hangs = false;
        std::atomic<int> questions = 0;
    };
    const auto server = std::make_shared<Server>();
    ChosenVolume volume("/mnt", [server](const std::string&) {
        for (++server->questions; server->hangs;)
            std::this_thread::yield();
        return DiskSampler::Volume{100, 40};
    });
    const auto readUntilAnswered = [&volume] {
        while (!volume.read()) // the first answer may come too late
            std::this_thread::yield();
    };
    readUntilAnswered();
    server->hangs = true;
    for (const int before = server->questions; server->questions == before;) // until one is stuck
        volume.read();
    int answers = 0;
    for (; volume.read(); ++answers)
        ASSERT_LT(answers, ChosenVolume::questionsUntilStale);
    server->hangs = false;
    readUntilAnswered();
}

} // namespace
} // namespace vantrix
