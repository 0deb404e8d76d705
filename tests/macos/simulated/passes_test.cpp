#include <random>
#include <set>

#include <gmock/gmock.h>
#include <malloc.h>
#include <unistd.h>

#include "macos/simulated/instruments.h"
#include "macos/simulated/laptop.h"

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
            {"wifi", "Home -52 -92 866 0 -"},
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
    EXPECT_LT(mallinfo2().uordblks, memory + 8192); // a text more in each pass would be twice that
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

/// A call that never works, and the readings that go with it. Whatever is not named stays as it is.
struct Failure {
    const char* call;
    Names loses;
    Outcome outcome = Outcome::fails;
};

std::ostream& operator<<(std::ostream& out, const Failure& failure) {
    return out << failure.call << (failure.outcome == Outcome::fails ? "" : "_of_another_type");
}

class FailureTest : public testing::TestWithParam<Failure> {};

TEST_P(FailureTest, CostsOnlyWhatItTells) {
    const Failure& failure = GetParam();
    Machine machine;
    const auto readings = readUnder(
        machine, [&](const std::string& call) { return call == failure.call ? failure.outcome : Outcome::works; });
    EXPECT_TRUE(machine.calls.contains(failure.call));
    EXPECT_EQ(lost(readings), failure.loses);
    EXPECT_EQ(machine.outstanding(), "");
}

const Names lostWithoutRegistry{"rates", "gpu", "fans", "power", "registers", "accessories"};
const Names lostWithoutStore{"interface", "address", "kind", "display name", "wifi"};

INSTANTIATE_TEST_SUITE_P(Kernel, FailureTest,
                         testing::Values(Failure{"host_processor_info", {"cpu"}},
                                         Failure{"host_processor_info", {"cpu"}, Outcome::wrongType},
                                         Failure{"host_statistics64", {"memory", "installed"}},
                                         Failure{"sysctlbyname", {"installed", "processor"}},
                                         Failure{"getifaddrs", {"network", "address"}},
                                         Failure{"getnameinfo", {"address"}}),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(
    Registry, FailureTest,
    testing::Values(Failure{"IOServiceMatching", lostWithoutRegistry},
                    Failure{"IOServiceGetMatchingServices", {"rates", "gpu", "accessories"}},
                    Failure{"IOServiceGetMatchingServices", {"rates", "gpu", "accessories"}, Outcome::wrongType},
                    Failure{"IOServiceGetMatchingService", {"fans", "power", "registers"}},
                    Failure{"IOIteratorNext", {"rates", "gpu", "accessories"}},
                    Failure{"IORegistryEntryCreateCFProperty", {"rates", "gpu"}},
                    Failure{"IORegistryEntryCreateCFProperty", {"rates", "gpu"}, Outcome::wrongType},
                    Failure{"IORegistryEntryCreateCFProperties", {"registers", "accessories"}},
                    Failure{"IORegistryEntryCreateCFProperties", {"registers", "accessories"}, Outcome::wrongType},
                    Failure{"IOServiceOpen", {"fans", "power"}},
                    Failure{"IOConnectCallStructMethod", {"fans", "power"}},
                    Failure{"IOConnectCallStructMethod", {"fans", "power"}, Outcome::wrongType}),
    testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(
    Services, FailureTest,
    testing::Values(Failure{"IOPSCopyPowerSourcesInfo", {"battery", "registers"}},
                    Failure{"IOPSCopyPowerSourcesList", {"battery", "registers"}},
                    Failure{"IOPSCopyPowerSourcesList", {"battery", "registers"}, Outcome::wrongType},
                    Failure{"IOPSGetPowerSourceDescription", {"battery", "registers"}},
                    Failure{"IOPSGetPowerSourceDescription", {"battery", "registers"}, Outcome::wrongType},
                    Failure{"SCDynamicStoreCreate", lostWithoutStore},
                    Failure{"SCDynamicStoreCopyValue", lostWithoutStore},
                    Failure{"SCDynamicStoreCopyValue", lostWithoutStore, Outcome::wrongType},
                    Failure{"SCNetworkInterfaceCopyAll", {"kind", "display name", "wifi"}},
                    Failure{"SCNetworkInterfaceGetBSDName", {"kind", "display name", "wifi"}},
                    Failure{"SCNetworkInterfaceGetInterfaceType", {"kind", "wifi"}},
                    Failure{"SCNetworkInterfaceGetLocalizedDisplayName", {"display name"}},
                    Failure{"makeWiFiClient", {"wifi"}}, Failure{"readWiFi", {"wifi"}},
                    Failure{"CFURLCreateFromFileSystemRepresentation", {"space"}},
                    Failure{"CFURLCopyResourcePropertiesForKeys", {"space"}}, Failure{"CFArrayCreate", {"space"}}),
    testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(
    Libraries, FailureTest,
    testing::Values(Failure{"dlopen", {"temperatures", "sensors", "components"}},
                    Failure{"IOHIDEventSystemClientCreate", {"temperatures", "sensors"}},
                    Failure{"IOHIDEventSystemClientCopyServices", {"temperatures", "sensors"}},
                    Failure{"IOHIDEventSystemClientCopyServices", {"temperatures", "sensors"}, Outcome::wrongType},
                    Failure{"IOHIDServiceClientCopyEvent", {"temperatures", "sensors"}},
                    Failure{"CFNumberCreate", {"temperatures", "sensors"}},
                    Failure{"CFDictionaryCreate", {"temperatures", "sensors"}},
                    Failure{"IOReportCopyChannelsInGroup", {"components"}},
                    Failure{"IOReportCreateSubscription", {"components"}},
                    Failure{"IOReportCreateSubscription", {"components"}, Outcome::wrongType},
                    Failure{"IOReportCreateSamples", {"components"}},
                    Failure{"IOReportCreateSamplesDelta", {"components"}},
                    Failure{"IOReportChannelGetGroup", {"components"}},
                    Failure{"IOReportChannelGetGroup", {"components"}, Outcome::wrongType},
                    Failure{"IOReportChannelGetChannelName", {"components"}},
                    Failure{"IOReportChannelGetChannelName", {"components"}, Outcome::wrongType},
                    Failure{"IOReportChannelGetUnitLabel", {"components"}},
                    Failure{"IOReportChannelGetUnitLabel", {"components"}, Outcome::wrongType}),
    testing::PrintToStringParamName());

const Names lostWithoutKeys{"rates", "gpu", "battery", "registers", "accessories"};
const Names lostWithoutDictionaries{"rates", "gpu",          "battery", "registers", "interface",  "address",
                                    "kind",  "display name", "wifi",    "space",     "components", "accessories"};

INSTANTIATE_TEST_SUITE_P(Values, FailureTest,
                         testing::Values(Failure{"CFStringCreateWithCString", lostWithoutKeys},
                                         Failure{"CFDictionaryGetValue", lostWithoutDictionaries},
                                         Failure{"CFDictionaryGetValue", lostWithoutDictionaries, Outcome::wrongType},
                                         Failure{"CFArrayGetValueAtIndex",
                                                 {"kind", "display name", "wifi", "temperatures", "sensors",
                                                  "components", "battery", "registers"}},
                                         Failure{"CFNumberGetValue",
                                                 {"space", "rates", "gpu", "battery", "registers", "accessories"}}),
                         testing::PrintToStringParamName());

TEST(SimulatedMac, KeepsTheValuesOfSensorsWithoutNames) {
    for (const Outcome outcome : {Outcome::fails, Outcome::wrongType}) {
        Machine machine;
        const auto readings = readUnder(machine, [&](const std::string& call) {
            return call == "IOHIDServiceClientCopyProperty" ? outcome : Outcome::works;
        });
        EXPECT_EQ(readings.at("sensors"), "Sensor 0 50.5; Sensor 1 40; Sensor 2 30; ");
        EXPECT_EQ(lost(readings), Names({"temperatures", "sensors"}));
        EXPECT_EQ(machine.outstanding(), "");
    }
}

TEST(SimulatedMac, LacksWhatAFunctionIsMissingFor) {
    const auto lostWithout = [](const std::string& function) {
        Machine machine;
        return lost(readUnder(machine, [&](const std::string& call) {
            return call == "dlsym " + function ? Outcome::fails : Outcome::works;
        }));
    };
    for (const auto& [function, address] : hidFunctions())
        EXPECT_EQ(lostWithout(function), Names({"temperatures", "sensors"})) << function;
    for (const auto& [function, address] : energyFunctions())
        EXPECT_EQ(lostWithout(function), Names({"components"})) << function;
}

/// What is opened once, at the start.
const auto isOpenedOnce = testing::AnyOf("fans", "power", "temperatures", "sensors", "components");

TEST(SimulatedMac, RecoversFromEachCallFailingOnce) {
    // The list of interfaces is kept for some passes.
    const auto isLate = testing::AnyOf(isOpenedOnce, "kind", "display name", "wifi");
    for (const Outcome outcome : {Outcome::fails, Outcome::wrongType}) {
        long calls = 1;
        for (long failing = 0; failing < calls; ++failing) {
            Machine machine;
            furnish(machine);
            calls = 0;
            std::string failed;
            machine.judge = [&](const std::string& call) {
                if (calls++ != failing)
                    return Outcome::works;
                failed = call;
                return outcome;
            };
            {
                Instruments instruments;
                for (int pass = 0; pass < 3; ++pass) {
                    if (pass == 2)
                        machine.judge = nullptr; // what is a difference of two passes is whole after the next one
                    instruments.pass();
                    advance(machine);
                }
                ASSERT_THAT(lost(instruments.pass()), testing::Each(isLate)) << failed;
            }
            ASSERT_EQ(machine.outstanding(), "") << failed;
        }
        EXPECT_GT(calls, 300);
    }
}

TEST(SimulatedMac, SurvivesRandomFailuresForTenThousandPasses) {
    std::mt19937 random(20260101);
    std::uniform_real_distribution<> chance(0.0, 1.0);
    for (int machines = 0; machines < 500; ++machines) {
        const double risk = machines % 2 == 0 ? 0.01 : 0.15;
        bool isDamaged = true;
        Machine machine;
        furnish(machine);
        machine.judge = [&](const std::string&) {
            const double drawn = isDamaged ? chance(random) : 1.0;
            return drawn > risk ? Outcome::works : drawn > risk / 3 ? Outcome::fails : Outcome::wrongType;
        };
        {
            Instruments instruments;
            for (int pass = 0; pass < 20; ++pass) {
                advance(machine);
                instruments.pass();
            }
            isDamaged = false;
            for (int pass = 0; pass < 5; ++pass) { // as long as an unfinished list of interfaces is kept
                advance(machine);
                instruments.pass();
            }
            advance(machine);
            ASSERT_THAT(lost(instruments.pass()), testing::Each(isOpenedOnce));
        }
        ASSERT_EQ(machine.outstanding(), "");
    }
}

} // namespace vantrix::simulated
