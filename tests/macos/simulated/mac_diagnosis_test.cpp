#include "platform/diagnosis.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

#include "macos/simulated/laptop.h"

namespace vantrix::simulated {
namespace {

namespace name = reading_name;
using Change = void (*)(Machine& machine);

/// The rows of a laptop that was changed, by name.
std::map<std::string, SourceDiagnosis> diagnose(Change change) {
    Machine machine;
    furnish(machine);
    change(machine);
    std::map<std::string, SourceDiagnosis> rows;
    for (const SourceDiagnosis& row : diagnoseSources({})) {
        EXPECT_EQ(row.reason.empty(), row.state == SourceState::ok) << row.name;
        rows[row.name] = row;
    }
    EXPECT_FALSE(machine.calls.contains("makeLocationManager")); // one belongs to the main thread
    EXPECT_EQ(machine.outstanding(), "");
    return rows;
}

void removeServices(Machine& machine) {
    machine.services.clear();
}

void refuseConnections(Machine& machine) {
    machine.judge = [](const std::string& call) { return call == "IOServiceOpen" ? Outcome::fails : Outcome::works; };
}

TEST(Diagnosis, TellsWhatIsMissing) {
    const std::pair<Change, std::set<std::string_view>> cases[] = {
        {[](Machine&) {}, {}},
        {[](Machine& mac) { mac.ticks.reset(); }, {name::processor}},
        {[](Machine& mac) { mac.pages.reset(); }, {name::memory, name::pressure}},
        {[](Machine& mac) { mac.systemValues.clear(); }, {name::pressure}},
        {[](Machine& mac) { mac.links.clear(); }, {name::network}},
        {[](Machine& mac) { mac.store.clear(); }, {name::connection}},
        {[](Machine& mac) { mac.interfaces.pop_back(); }, {name::wifi}},
        {[](Machine& mac) { mac.volume.reset(); }, {name::diskSpace}},
        {[](Machine& mac) { mac.services.resize(3); }, {name::gpu, name::fans, name::systemPower}}, // disks stay
        {removeServices, {name::diskRates, name::gpu, name::fans, name::systemPower}},
        {refuseConnections, {name::fans, name::systemPower}},
        {[](Machine& mac) { mac.controllerKeys["FNum"].bytes = {0}; }, {name::fans}},
        {[](Machine& mac) { mac.sensors.reset(); }, {name::temperatures}},
        {[](Machine& mac) { mac.energy.reset(); }, {name::chipPower}},
        {[](Machine& mac) {
             mac.powerSources = List{Dictionary{{"Type", "UPS"}}};
         },
         {name::battery}},
    };
    for (const auto& [change, missing] : cases) {
        std::set<std::string_view> found;
        const auto rows = diagnose(change);
        for (const auto& [reading, row] : rows) {
            // No system is simulated so far that it has the profiler's program.
            if (row.state != SourceState::ok && reading != name::accessories)
                found.insert(reading);
        }
        EXPECT_EQ(found, missing);
    }
}

TEST(Diagnosis, TellsARefusalFromAnAbsence) {
    EXPECT_EQ(diagnose(refuseConnections)["Fans"].state, SourceState::denied);
    EXPECT_EQ(diagnose(removeServices)["Fans"].state, SourceState::absent);
}

TEST(Diagnosis, NamesWhatTellsOfTemperatures) {
    EXPECT_EQ(diagnose(removeServices)["Temperatures"].source, "HID event system");
    const auto rows = diagnose([](Machine& mac) {
        mac.sensors.reset();
        mac.controllerKeys["TC0P"] = {"ui8 ", {50}};
    });
    EXPECT_EQ(rows.at("Temperatures").source, "AppleSMC");
    EXPECT_EQ(rows.at("Temperatures").state, SourceState::ok);
}

} // namespace
} // namespace vantrix::simulated
