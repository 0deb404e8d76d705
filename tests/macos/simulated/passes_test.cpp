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

/// Calls of which each costs the same readings, and no others, if it never works.
struct Loss {
    Names readings;
    Names calls;
};

const Names sensors{"temperatures", "sensors"};
const Names dictionaries{"rates", "gpu",          "battery", "registers", "interface",  "address",
                         "kind",  "display name", "wifi",    "space",     "components", "accessories"};
const Loss losses[] = {
    {{"cpu"}, {"host_processor_info"}},
    {{"memory", "installed"}, {"host_statistics64"}},
    {{"installed", "processor"}, {"sysctlbyname"}},
    {{"network", "address"}, {"getifaddrs"}},
    {{"address"}, {"getnameinfo"}},
    {{"rates", "gpu", "fans", "power", "registers", "accessories"}, {"IOServiceMatching"}},
    {{"rates", "gpu", "accessories"}, {"IOServiceGetMatchingServices", "IOIteratorNext"}},
    {{"fans", "power", "registers"}, {"IOServiceGetMatchingService"}},
    {{"rates", "gpu"}, {"IORegistryEntryCreateCFProperty"}},
    {{"registers", "accessories"}, {"IORegistryEntryCreateCFProperties"}},
    {{"fans", "power"}, {"IOServiceOpen", "IOConnectCallStructMethod"}},
    {{"battery", "registers"},
     {"IOPSCopyPowerSourcesInfo", "IOPSCopyPowerSourcesList", "IOPSGetPowerSourceDescription"}},
    {{"interface", "address", "kind", "display name", "wifi"}, {"SCDynamicStoreCreate", "SCDynamicStoreCopyValue"}},
    {{"kind", "display name", "wifi"}, {"SCNetworkInterfaceCopyAll", "SCNetworkInterfaceGetBSDName"}},
    {{"kind", "wifi"}, {"SCNetworkInterfaceGetInterfaceType"}},
    {{"display name"}, {"SCNetworkInterfaceGetLocalizedDisplayName"}},
    {{"wifi"}, {"makeWiFiClient", "readWiFi"}},
    {{"space"}, {"CFURLCreateFromFileSystemRepresentation", "CFURLCopyResourcePropertiesForKeys", "CFArrayCreate"}},
    {{"temperatures", "sensors", "components"}, {"dlopen"}},
    {sensors,
     {"IOHIDEventSystemClientCreate", "IOHIDEventSystemClientCopyServices", "IOHIDServiceClientCopyProperty",
      "IOHIDServiceClientCopyEvent", "CFNumberCreate", "CFDictionaryCreate"}},
    {{"components"},
     {"IOReportCopyChannelsInGroup", "IOReportCreateSubscription", "IOReportCreateSamples",
      "IOReportCreateSamplesDelta", "IOReportChannelGetGroup", "IOReportChannelGetChannelName",
      "IOReportChannelGetUnitLabel"}},
    {{"rates", "gpu", "battery", "registers", "accessories"}, {"CFStringCreateWithCString"}},
    {dictionaries, {"CFDictionaryGetValue"}},
    {{"kind", "display name", "wifi", "temperatures", "sensors", "components", "battery", "registers"},
     {"CFArrayGetValueAtIndex"}},
    {{"space", "rates", "gpu", "battery", "registers", "accessories"}, {"CFNumberGetValue"}},
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
    Names tried{"makeLocationManager", "objc_autoreleasePoolPush"}; // these cannot fail
    const auto expectLoss = [&](const std::string& call, const Names& readings) {
        tried.insert(call);
        EXPECT_EQ(lostWithout(call, Outcome::fails), readings) << call;
        EXPECT_EQ(lostWithout(call, Outcome::wrongType), readings) << call;
    };
    for (const auto& [readings, calls] : losses) {
        for (const std::string& call : calls)
            expectLoss(call, readings);
    }
    for (const auto& [function, address] : hidFunctions())
        expectLoss("dlsym " + function, sensors);
    for (const auto& [function, address] : energyFunctions())
        expectLoss("dlsym " + function, {"components"});

    Machine machine;
    readUnder(machine, nullptr);
    for (const auto& [call, count] : machine.calls)
        EXPECT_TRUE(tried.contains(call)) << call;
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
