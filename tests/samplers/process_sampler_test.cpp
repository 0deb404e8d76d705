#include <gmock/gmock.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Process = ProcessSampler::Process;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

constexpr std::uint64_t second = 1'000'000'000;

auto share(const std::string& name, double cpu) {
    return AllOf(Field(&ProgramShare::name, name), Field(&ProgramShare::cpu, testing::DoubleNear(cpu, 1e-9)));
}

class ProcessSamplerTest : public testing::Test {
  protected:
    const ProcessSample& lookAfter(double seconds, std::vector<Process> processes) {
        clock.now += seconds;
        source.processes = std::move(processes);
        return *sampler.sample();
    }

    fakes::FakeProcesses source;
    FakeClock clock;
    ProcessSampler sampler{source, clock};
};

TEST_F(ProcessSamplerTest, SumsTheProcessesOfAnApplication) {
    lookAfter(1, {{1, 1, 0, 10, 0}, {2, 1, 0, 20, 1}, {3, 1, 0, 5, 0}});
    const auto& sample = lookAfter(2, {{1, 1, second, 10, 0}, {2, 1, 3 * second, 20, 1}, {3, 1, 4 * second, 5, 0}});
    EXPECT_THAT(sample.busiest, ElementsAre(share("A", 0.625), share("B", 0.375)));
    EXPECT_THAT(sample.largest, ElementsAre(share("B", 0.375), share("A", 0.625)));
    EXPECT_EQ(sample.busiest[0].processes, 2);
    EXPECT_EQ(sample.busiest[0].memory, 15U);
}

TEST_F(ProcessSamplerTest, TheFirstLookIsABaseline) {
    const auto& sample = lookAfter(1, {{1, 1, 90 * second, 10, 0}});
    EXPECT_THAT(sample.busiest, IsEmpty());
    EXPECT_THAT(sample.largest, ElementsAre(share("A", 0.0)));
    EXPECT_THAT(lookAfter(0, {}).busiest, IsEmpty()); // no time has passed
}

/// Of a later start under the same identifier: its own time counts, not the difference to the other's.
TEST_F(ProcessSamplerTest, AProcessThatBeganAgainIsAnother) {
    lookAfter(1, {{1, 100, 7 * second, 10, 0}, {2, 200, 0, 10, 1}});
    EXPECT_THAT(lookAfter(2, {{1, 300, 8 * second, 10, 0}, {2, 200, second, 10, 1}}).busiest,
                ElementsAre(share("A", 1.0), share("B", 0.125)));
    // One that could not be seen for a while did not do everything since.
    lookAfter(2, {{2, 200, second, 10, 1}});
    EXPECT_THAT(lookAfter(2, {{1, 290, 9 * second, 10, 0}, {2, 200, second, 10, 1}}).busiest, IsEmpty());
}

TEST_F(ProcessSamplerTest, AVanishedProcessTakesNothingWithIt) {
    lookAfter(1, {{1, 1, 50 * second, 10, 0}, {2, 1, 3 * second, 10, 0}});
    EXPECT_THAT(lookAfter(2, {{2, 1, 5 * second, 10, 0}}).busiest, ElementsAre(share("A", 0.25)));
    source.processes.clear();
    clock.now += 2;
    EXPECT_EQ(sampler.sample(), nullptr);
    EXPECT_THAT(lookAfter(2, {{2, 1, 7 * second, 10, 0}}).busiest, ElementsAre(share("A", 0.125))); // of 4 s
}

TEST_F(ProcessSamplerTest, ListsFiveAtMost) {
    std::vector<Process> processes;
    for (std::uint32_t i = 0; i < 6; ++i)
        processes.push_back({static_cast<int>(i + 1), 1, 0, i + 1, i});
    EXPECT_EQ(lookAfter(1, processes).largest.size(), 5U);
    EXPECT_EQ(lookAfter(1, processes).largest.front().name, "F");
}

} // namespace
} // namespace vantrix
