// Weeks of passes in seconds: nothing may grow.

#include <cstddef>
#include <filesystem>
#include <malloc.h>
#include <set>
#include <string>

#include <QImage>

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/system_monitor.h"

// Present only in sanitized builds, whose allocator the C library's own statistics do not see.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace vantrix {
namespace {

constexpr int passes = 100'000;
constexpr int warmUp = 2'000;
constexpr int drawingPeriod = 50; // passes; drawing is slower than sampling by far

std::size_t allocatedBytes() {
    if (&__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

/// What the process has open, by name, so that a leak names itself.
std::multiset<std::string> openFiles() {
    std::multiset<std::string> names;
    std::error_code gone; // the folder's own descriptor closes while it is listed
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        names.insert(std::filesystem::read_symlink(entry.path(), gone).string());
    return names;
}

class NoTimer : public RepeatingTimer {
  public:
    void schedule(double, double, std::function<void()>) override {}
};

class ImmediateRunner : public TaskRunner {
  public:
    void run(std::function<void()> work, std::function<void()> done) override {
        work();
        done();
    }
};

TEST(Soak, ADayOfPassesOverTheRealKernelGrowsNothing) {
    fakes::FakeDefaults defaults;
    auto sources = makeSamplingSources({});
    auto fakeClock = std::make_unique<fakes::FakeClock>();
    fakes::FakeClock& clock = *fakeClock;
    sources.clock = std::move(fakeClock);
    SystemMonitor monitor(std::move(sources), defaults, std::make_unique<NoTimer>(),
                          std::make_unique<ImmediateRunner>());
    QImage image;
    const auto modules = moduleOrder(defaults);
    int updates = 0;
    monitor.onUpdate = [&] {
        const auto items = menuBarItems(modules, monitor.readings(), defaults);
        if (++updates % drawingPeriod == 0)
            MenuBarRenderer::render(image, items, MenuBarStyle::graph, true, MenuBarPalette::onDark(), 2.0);
    };
    std::size_t bytes = 0;
    std::multiset<std::string> files;
    for (int pass = 0; pass < passes; ++pass) {
        if (pass == warmUp) {
            bytes = allocatedBytes();
            files = openFiles();
        }
        clock.now += 2.0;
        monitor.sample();
    }
    EXPECT_EQ(updates, passes);
    EXPECT_EQ(openFiles(), files);
    EXPECT_LT(allocatedBytes(), bytes + 128 * 1024); // the cache of shaped texts is bounded, but may still fill
    EXPECT_EQ(monitor.readings().memoryHistory.size(), historyLength);
}

} // namespace
} // namespace vantrix
