#include <set>

#include <gmock/gmock.h>
#include <malloc.h>
#include <sys/mount.h>
#include <unistd.h>

#include "macos/disks/volume_capacity.h"
#include "macos/simulated/instruments.h"
#include "macos/simulated/machine.h"

namespace vantrix::simulated {
namespace {

using Names = std::set<std::string>;

/// What `furnish` and `advance` come to.
ReadingTexts everything() {
    const auto bytes = [](std::uint64_t pages) { return std::to_string(pages * static_cast<unsigned>(getpagesize())); };
    return {{"cpu", "0.3 0.2 0.1 0.5 0.1"},
            {"memory", bytes(2000) + ' ' + bytes(1000) + ' ' + bytes(300)},
            {"installed", "17179869184 5242880 1"},
            {"network", "2000 1000"},
            {"interface", "en0"},
            {"address", "192.168.1.24"},
            {"kind", "0"},
            {"display name", "Wi-Fi"},
            {"wifi", "Home -52 -92 866"},
            {"space", "500000000000 120000000000"},
            {"rates", "2e+06 500000"},
            {"gpu", "0.705"},
            {"temperatures", "50.5 40"},
            {"sensors", "pACC sensor 1 50.5; GPU sensor 40; Sensor 2 30; "},
            {"fans", "0 2000 1200 6000"},
            {"power", "16"},
            {"components", "1.5 1.5"},
            {"battery", "82 1 1 55"},
            {"registers", "142 92 30.5 18"},
            {"processor", "Fast\xef\xbf\xbd Chip, 10 cores (8P + 2E)"},
            {"accessories", "Keyboard 90 aa-bb-cc-dd-ee-01"}};
}

/// The names of the readings that differ from what everything comes to.
Names lost(const ReadingTexts& readings) {
    Names names;
    for (const auto& [name, text] : everything()) {
        if (readings.at(name) != text)
            names.insert(name);
    }
    return names;
}

/// The readings of the second pass, where `judge` is in force from the start.
ReadingTexts readUnder(Machine& machine, std::function<Outcome(const std::string&)> judge) {
    furnish(machine);
    machine.judge = std::move(judge);
    Instruments instruments;
    instruments.pass();
    advance(machine);
    return instruments.pass();
}

} // namespace

TEST(SimulatedMac, TellsEverythingItHasAndGetsEverythingBack) {
    Machine machine;
    EXPECT_EQ(readUnder(machine, nullptr), everything());
    EXPECT_EQ(machine.outstanding(), "");
}

TEST(SimulatedMac, TakesNothingMoreFromPassToPass) {
    Machine machine;
    furnish(machine);
    Instruments instruments;
    for (int pass = 0; pass < 2; ++pass)
        instruments.pass(); // the second snapshot of energy stays until the third
    const std::string held = machine.outstanding();
    const auto pass = [&] {
        advance(machine);
        EXPECT_EQ(lost(instruments.pass()), Names());
        EXPECT_EQ(machine.outstanding(), held);
    };
    for (int warmUp = 0; warmUp < 100; ++warmUp)
        pass();
    const std::size_t memory = mallinfo2().uordblks; // always the same under a sanitizer
    for (int measured = 0; measured < 400; ++measured)
        pass();
    EXPECT_EQ(machine.calls["SCNetworkInterfaceCopyAll"], 17); // in one of thirty passes: it is slow
    EXPECT_LT(mallinfo2().uordblks, memory + 8192);            // a text more in each pass would be twice that
}

TEST(SimulatedMac, KnowsItsVolumesAndReadsTheChosenOneWhileItIsMounted) {
    Machine machine;
    furnish(machine);
    machine.mounts = {{"/", "/dev/disk3s1", MNT_LOCAL},
                      {"/System/Volumes/VM", "/dev/disk3s6", MNT_LOCAL | MNT_DONTBROWSE},
                      {"/Volumes/Stick", "/dev/disk4s1", MNT_LOCAL},
                      {"/dev", "devfs", MNT_LOCAL},
                      {"/Volumes/Share", "//ann@server/share", 0}};
    machine.volumePoint = "/Volumes/Stick";
    VolumeCapacity volume;
    EXPECT_THAT(volume.mounted(), ::testing::ElementsAre("/", "/Volumes/Stick"));
    EXPECT_EQ(volume.read(), std::nullopt) << "the simulated one is not at the root";
    volume.choose("/Volumes/Stick");
    EXPECT_EQ(volume.read()->total, 500'000'000'000);
    machine.mounts.clear();
    EXPECT_EQ(volume.read(), std::nullopt);
    EXPECT_EQ(machine.outstanding(), "");
}

TEST(SimulatedMac, FollowsTheConnectionInUse) {
    Machine machine;
    furnish(machine);
    Instruments instruments;
    EXPECT_EQ(instruments.pass().at("display name"), "Wi-Fi");
    machine.store.erase("State:/Network/Global/IPv4");
    EXPECT_EQ(instruments.pass().at("display name"), "Ethernet Adapter"); // of IPv6
    machine.store["State:/Network/Global/IPv6"] = Dictionary{{"PrimaryInterface", 7}};
    EXPECT_EQ(instruments.pass().at("display name"), "-");
    EXPECT_EQ(machine.calls["SCDynamicStoreCreate"], 1);
}

TEST(SimulatedMac, WithNothingHasNoReadings) {
    Machine machine;
    {
        Instruments instruments;
        instruments.pass();
        for (const auto& [name, text] : instruments.pass())
            EXPECT_EQ(text, name == "processor" ? "CPU, 1 cores" : name == "kind" ? "3" : "-") << name;
    }
    EXPECT_EQ(machine.outstanding(), "");
}

/// What of the readings is worth a call: everything but them stays as it is without it.
const std::pair<std::string, Names> losses[] = {
    {"host_processor_info", {"cpu"}},
    {"sysctlbyname", {"installed", "processor"}},
    {"getnameinfo", {"address"}},
    {"IOServiceGetMatchingService", {"fans", "power", "registers"}},
    {"IOPSCopyPowerSourcesList", {"battery", "registers"}},
    {"SCNetworkInterfaceGetInterfaceType", {"kind", "wifi"}},
    {"CFURLCopyResourcePropertiesForKeys", {"space"}},
    {"IOHIDServiceClientCopyEvent", {"temperatures", "sensors"}},
    {"IOReportCreateSamplesDelta", {"components"}},
};

/// What is lost where a call never works.
Names lostWithout(const std::string& failing, Outcome outcome) {
    Machine machine;
    const auto readings =
        readUnder(machine, [&](const std::string& call) { return call == failing ? outcome : Outcome::works; });
    EXPECT_EQ(machine.outstanding(), "") << failing;
    return lost(readings);
}

TEST(SimulatedMac, LosesOnlyWhatAFailingCallTells) {
    for (const auto& [call, readings] : losses)
        EXPECT_EQ(lostWithout(call, Outcome::fails), readings) << call;
    std::map<std::string, long> calls;
    {
        Machine machine;
        readUnder(machine, nullptr);
        calls = machine.calls;
    }
    for (const char* cannotFail : {"makeLocationManager", "objc_autoreleasePoolPush"})
        calls.erase(cannotFail);
    for (const auto& [call, count] : calls) {
        const Names withoutIt = lostWithout(call, Outcome::fails);
        EXPECT_FALSE(withoutIt.empty()) << call << " is not asked what came of it";
        EXPECT_LE(withoutIt.size(), 12u) << call;
        EXPECT_EQ(lostWithout(call, Outcome::wrongType), withoutIt) << call;
    }
}

/// Takes two passes under the judge, then a sound one: the next has every reading but those that may be late.
void expectRecovery(std::function<Outcome(const std::string&)> judge) {
    // What is opened once, at the start, and the list of interfaces, which is kept for some passes.
    const Names late{"fans", "power", "temperatures", "sensors", "components", "kind", "display name", "wifi"};
    Machine machine;
    furnish(machine);
    machine.judge = std::move(judge);
    {
        Instruments instruments;
        for (int pass = 0; pass < 3; ++pass) {
            if (pass == 2)
                machine.judge = nullptr;
            instruments.pass();
            advance(machine);
        }
        ASSERT_THAT(lost(instruments.pass()), testing::Each(testing::AnyOfArray(late)));
    }
    ASSERT_EQ(machine.outstanding(), "");
}

TEST(SimulatedMac, RecoversFromEachCallFailingOnce) {
    for (const Outcome outcome : {Outcome::fails, Outcome::wrongType}) {
        long calls = 1;
        for (long failing = 0; failing < calls; ++failing) {
            calls = 0;
            std::string failed;
            const auto judge = [&](const std::string& call) {
                if (calls++ != failing)
                    return Outcome::works;
                failed = call;
                return outcome;
            };
            ASSERT_NO_FATAL_FAILURE(expectRecovery(judge)) << failed;
        }
        EXPECT_GT(calls, 300);
    }
}

} // namespace vantrix::simulated
