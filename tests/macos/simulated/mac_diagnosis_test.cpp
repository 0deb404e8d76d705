#include "platform/diagnosis.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "macos/simulated/laptop.h"

namespace vantrix::simulated {
namespace {

/// What a laptop is changed to, and what becomes of one row.
struct Case {
    const char* name;
    void (*change)(Machine& machine);
    std::string_view row;
    SourceState state;
    const char* source = nullptr; ///< null: whatever it is
};

std::ostream& operator<<(std::ostream& out, const Case& row) {
    return out << row.name;
}

void removeServices(Machine& machine) {
    machine.services.clear();
}

void removeSensors(Machine& machine) {
    machine.sensors.reset();
}

void refuseConnections(Machine& machine) {
    for (Service& service : machine.services)
        service.opens = false;
}

class DiagnosisTest : public testing::TestWithParam<Case> {};

TEST_P(DiagnosisTest, TellsWhatIsMissing) {
    const Case& expected = GetParam();
    Machine machine;
    furnish(machine);
    expected.change(machine);
    const auto rows = diagnoseSources({});
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& one) { return one.name == expected.row; });
    ASSERT_NE(row, rows.end());
    EXPECT_EQ(row->state, expected.state);
    EXPECT_EQ(row->reason.empty(), expected.state == SourceState::ok);
    EXPECT_EQ(row->source, expected.source ? expected.source : row->source);
    EXPECT_EQ(machine.outstanding(), "");
}

namespace name = reading_name;

INSTANTIATE_TEST_SUITE_P(
    Machines, DiagnosisTest,
    testing::Values(Case{"ticks", [](Machine& mac) { mac.ticks.reset(); }, name::processor, SourceState::denied},
                    Case{"pages", [](Machine& mac) { mac.pages.reset(); }, name::memory, SourceState::denied},
                    Case{"pressure", [](Machine& mac) { mac.systemValues.clear(); }, name::pressure,
                         SourceState::absent},
                    Case{"links", [](Machine& mac) { mac.links.clear(); }, name::network, SourceState::absent},
                    Case{"store", [](Machine& mac) { mac.store.clear(); }, name::connection, SourceState::silent},
                    Case{"wired", [](Machine& mac) { mac.interfaces.pop_back(); }, name::wifi, SourceState::absent},
                    Case{"volume", [](Machine& mac) { mac.volume.reset(); }, name::diskSpace, SourceState::silent},
                    Case{"drivers", removeServices, name::diskRates, SourceState::absent},
                    Case{"accelerators", removeServices, name::gpu, SourceState::absent},
                    Case{"sensors", removeServices, name::temperatures, SourceState::ok, "HID event system"},
                    Case{"warm_keys",
                         [](Machine& mac) {
                             removeSensors(mac);
                             mac.controllerKeys["TC0P"] = {"ui8 ", {50}};
                         },
                         name::temperatures, SourceState::ok, "AppleSMC"},
                    Case{"no_warm_keys", removeSensors, name::temperatures, SourceState::absent},
                    Case{"no_fans",
                         [](Machine& mac) {
                             mac.controllerKeys["FNum"] = {"ui8 ", {0}};
                         },
                         name::fans, SourceState::absent},
                    Case{"refused_fans", refuseConnections, name::fans, SourceState::denied},
                    Case{"missing_fans", removeServices, name::fans, SourceState::absent},
                    Case{"refused_power", refuseConnections, name::systemPower, SourceState::denied},
                    Case{"missing_power", removeServices, name::systemPower, SourceState::absent},
                    Case{"energy", [](Machine& mac) { mac.energy.reset(); }, name::chipPower, SourceState::absent},
                    Case{"desktop",
                         [](Machine& mac) {
                             mac.powerSources = List{Dictionary{{"Type", "UPS"}}};
                         },
                         name::battery, SourceState::absent}),
    testing::PrintToStringParamName());

} // namespace

TEST(Diagnosis, FindsEverythingOnALaptop) {
    Machine machine;
    furnish(machine);
    for (const SourceDiagnosis& row : diagnoseSources({})) {
        // No system is simulated so far that it has the profiler's program.
        EXPECT_EQ(row.state, row.name == name::accessories ? SourceState::absent : SourceState::ok) << row.name;
    }
    EXPECT_FALSE(machine.calls.contains("makeLocationManager")); // one belongs to the main thread
    EXPECT_EQ(machine.outstanding(), "");
}

} // namespace vantrix::simulated
