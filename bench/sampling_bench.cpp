#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include <benchmark/benchmark.h>

#include "bare_reading.h"
#include "fakes/fixture_machine.h"
#include "library_readings.h"
#include "monitor/samplers.h"

namespace {

using namespace vantrix;

struct Pass : Samplers {
    explicit Pass(const KernelRoots& roots = {}) : Samplers(makeSamplingSources(roots)) {}

    void run() {
        benchmark::DoNotOptimize(cpu.sample());
        benchmark::DoNotOptimize(memory.sample());
        benchmark::DoNotOptimize(network.sample());
        benchmark::DoNotOptimize(networkInfo->sample(true, LocationAccess::authorizedAlways));
        benchmark::DoNotOptimize(disk.sample());
        benchmark::DoNotOptimize(gpu->sample());
        benchmark::DoNotOptimize(sensors.sample());
        benchmark::DoNotOptimize(battery->sample());
    }
};

void samplingPass(benchmark::State& state) {
    Pass pass;
    for (auto _ : state)
        pass.run();
}

void processorSource(benchmark::State& state) {
    const auto sources = makeSamplingSources({});
    std::vector<CPUSampler::Ticks> cores;
    for (auto _ : state)
        benchmark::DoNotOptimize(sources.cpu->read(cores));
}

void memorySource(benchmark::State& state) {
    const auto sources = makeSamplingSources({});
    for (auto _ : state)
        benchmark::DoNotOptimize(sources.memory->read());
}

void networkSource(benchmark::State& state) {
    const auto sources = makeSamplingSources({});
    std::vector<NetworkSampler::Link> links;
    for (auto _ : state)
        benchmark::DoNotOptimize(sources.network->read(links));
}

void diskSource(benchmark::State& state) {
    const auto sources = makeSamplingSources({});
    std::vector<DiskSampler::Counters> disks;
    for (auto _ : state)
        benchmark::DoNotOptimize(sources.disks->read(disks));
}

void volumeSource(benchmark::State& state) {
    const auto sources = makeSamplingSources({});
    for (auto _ : state)
        benchmark::DoNotOptimize(sources.volume->read());
}

template<typename Reading>
void otherReading(benchmark::State& state) {
    Reading reading;
    for (auto _ : state)
        reading.pass();
}

BENCHMARK(samplingPass);
BENCHMARK(processorSource);
BENCHMARK(memorySource);
BENCHMARK(networkSource);
BENCHMARK(diskSource);
BENCHMARK(volumeSource);
BENCHMARK(otherReading<bench::BareReading>)->Name("floor");
BENCHMARK(otherReading<bench::Proc2Reading>)->Name("libproc2");
BENCHMARK(otherReading<bench::GTopReading>)->Name("libgtop");

double processSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template<typename Work>
double microseconds(Work work) {
    constexpr int repetitions = 20;
    const double begin = processSeconds();
    for (int i = 0; i < repetitions; ++i)
        work();
    return (processSeconds() - begin) * 1e6 / repetitions;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Both in turn, so that whatever else the machine does weighs on both alike.
template<typename Floor>
void printRatio(const char* machine, Pass& pass, Floor& floor) {
    std::vector<double> passTimes;
    std::vector<double> floorTimes;
    for (int i = 0; i < 1000; ++i) {
        passTimes.push_back(microseconds([&] { pass.run(); }));
        floorTimes.push_back(microseconds([&] { floor.pass(); }));
    }
    const double passTime = median(passTimes);
    const double floorTime = median(floorTimes);
    std::printf("%s: sampling pass %.1f us, floor %.1f us, pass/floor %.2f\n", machine, passTime, floorTime,
                passTime / floorTime);
}

void compareOnThisMachine() {
    Pass pass;
    bench::BareReading floor;
    printRatio("this machine", pass, floor);
}

/// A laptop with every kind of device, from files. What a pass keeps open is what its floor reads.
void compareOnBusyLaptop() {
    const fakes::FixtureMachine laptop("laptop-with-everything");
    Pass pass(laptop.roots());
    for (int i = 0; i < 3; ++i)
        pass.run();
    bench::BareFiles floor(laptop.path(""));
    std::printf("busy laptop: %zu files read in a pass\n", floor.count());
    printRatio("busy laptop", pass, floor);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    compareOnThisMachine();
    compareOnBusyLaptop();
}
