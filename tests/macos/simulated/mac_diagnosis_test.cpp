#include "platform/diagnosis.h"

#include <set>

#include <gtest/gtest.h>

#include "macos/simulated/machine.h"

namespace vantrix::simulated {
namespace {

namespace name = reading_name;

TEST(Diagnosis, TellsWhatIsMissingAndWhatIsRefused) {
    struct Case {
        void (*change)(Machine& mac);
        std::set<std::string_view> missing;
        SourceState state = SourceState::absent;
    };
    const Case cases[] = {
        {[](Machine&) {}, {}},
        {[](Machine& mac) { mac.ticks.reset(); }, {name::processor}, SourceState::denied},
        {[](Machine& mac) { mac.systemValues.clear(); }, {name::pressure}},
        {[](Machine& mac) { mac.store.clear(); }, {name::connection}, SourceState::silent},
        {[](Machine& mac) { mac.interfaces.pop_back(); }, {name::wifi}},
        {[](Machine& mac) { mac.volume.reset(); }, {name::diskSpace}, SourceState::silent},
        {[](Machine& mac) { mac.services.clear(); }, {name::diskRates, name::gpu, name::fans, name::systemPower}},
        {[](Machine& mac) {
             mac.judge = [](const std::string& call) {
                 return call == "IOServiceOpen" ? Outcome::fails : Outcome::works;
             };
         },
         {name::fans, name::systemPower},
         SourceState::denied},
        {[](Machine& mac) { mac.controllerKeys["FNum"].bytes = {0}; }, {name::fans}},
        {[](Machine& mac) { mac.sensors.reset(); }, {name::temperatures}},
        {[](Machine& mac) { mac.energy.reset(); }, {name::chipPower}},
        {[](Machine& mac) { mac.powerSources.reset(); }, {name::battery}},
    };
    for (const auto& [change, missing, state] : cases) {
        Machine machine;
        furnish(machine);
        change(machine);
        std::set<std::string_view> found;
        const auto rows = diagnoseSources({});
        for (const SourceDiagnosis& row : rows) {
            EXPECT_EQ(row.reason.empty(), row.state == SourceState::ok) << row.name;
            // No system is simulated so far that it has the profiler's program.
            if (row.state == SourceState::ok || row.name == name::accessories)
                continue;
            EXPECT_EQ(row.state, state) << row.name;
            found.insert(row.name);
        }
        EXPECT_EQ(found, missing);
        EXPECT_FALSE(machine.calls.contains("makeLocationManager")); // one belongs to the main thread
        EXPECT_EQ(machine.outstanding(), "");
    }
}

} // namespace
} // namespace vantrix::simulated
