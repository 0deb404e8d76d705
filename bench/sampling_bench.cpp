#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>
#include <vector>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

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
        const PassScope pass = beginPass();
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

double seconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

template<typename Work>
double microseconds(Work work) {
    constexpr int repetitions = 20;
    const double begin = seconds(CLOCK_PROCESS_CPUTIME_ID);
    for (int i = 0; i < repetitions; ++i)
        work();
    return (seconds(CLOCK_PROCESS_CPUTIME_ID) - begin) * 1e6 / repetitions;
}

/// Of one call, with what other threads do until they rest: a pass that comes before all sensors have answered would
/// read less.
template<typename Work>
double wholeMicroseconds(Work work) {
    const double begin = seconds(CLOCK_PROCESS_CPUTIME_ID);
    const double ownBegin = seconds(CLOCK_THREAD_CPUTIME_ID);
    work();
    const double ownWork = seconds(CLOCK_THREAD_CPUTIME_ID) - ownBegin;
    std::this_thread::sleep_for(std::chrono::microseconds(300));
    const double own = seconds(CLOCK_THREAD_CPUTIME_ID) - ownBegin;
    return (ownWork + seconds(CLOCK_PROCESS_CPUTIME_ID) - begin - own) * 1e6;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Both in turn, so that whatever else the machine does weighs on both alike.
template<typename Floor, typename Measure>
void printRatio(const char* machine, Pass& pass, Floor& floor, Measure measure) {
    std::vector<double> passTimes;
    std::vector<double> floorTimes;
    for (int i = 0; i < 1000; ++i) {
        passTimes.push_back(measure([&] { pass.run(); }));
        floorTimes.push_back(measure([&] { floor.pass(); }));
    }
    const double passTime = median(passTimes);
    const double floorTime = median(floorTimes);
    std::printf("%s: sampling pass %.1f us, floor %.1f us, pass/floor %.2f\n", machine, passTime, floorTime,
                passTime / floorTime);
}

void compareOnThisMachine() {
    Pass pass;
    bench::BareReading floor;
    printRatio("this machine", pass, floor, [](auto work) { return microseconds(work); });
}

/// A laptop with every kind of device, from files. What a pass keeps open is what its floor reads.
void compareOnBusyLaptop() {
    const fakes::FixtureMachine laptop("laptop-with-everything");
    Pass pass(laptop.roots());
    for (int i = 0; i < 3; ++i)
        pass.run();
    bench::BareFiles floor(laptop.path(""));
    std::printf("busy laptop: %zu files read in a pass\n", floor.count());
    printRatio("busy laptop", pass, floor, [](auto work) { return wholeMicroseconds(work); });
}

/// Idle processes beside those of this machine, so that there are 500 in all.
class Crowd {
  public:
    explicit Crowd(int count) {
        for (; count > 0; --count) {
            const pid_t process = fork();
            if (process > 0) {
                processes_.push_back(process);
            } else if (process == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                pause();
                _exit(0);
            }
        }
    }
    ~Crowd() {
        for (const pid_t process : processes_) {
            kill(process, SIGKILL);
            waitpid(process, nullptr, 0);
        }
    }
    Crowd(const Crowd&) = delete;
    Crowd& operator=(const Crowd&) = delete;

  private:
    std::vector<pid_t> processes_;
};

/// The lists of programs, which cost nothing while nobody looks at them.
void compareProcesses() {
    bench::Proc2Processes library;
    const Crowd crowd(500 - library.pass());
    const auto sources = makeSamplingSources({});
    ProcessSampler sampler(*sources.processes, *sources.clock);
    std::vector<double> times;
    std::vector<double> libraryTimes;
    for (int i = 0; i < 40; ++i) {
        times.push_back(microseconds([&] { sampler.sample(); }));
        libraryTimes.push_back(microseconds([&] { library.pass(); }));
    }
    const double time = median(times);
    const double libraryTime = median(libraryTimes);
    std::printf("%zu processes: %.0f us, libproc2 %.0f us, ratio %.2f\n", sampler.count(), time, libraryTime,
                time / libraryTime);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    compareOnThisMachine();
    compareOnBusyLaptop();
    compareProcesses();
}
