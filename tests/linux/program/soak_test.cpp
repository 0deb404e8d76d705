// Weeks of passes in seconds: nothing may grow.

#include <filesystem>
#include <set>

#include <malloc.h>

#include <QImage>

#include "fakes/fake_bluetooth.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/system_monitor.h"

// Present only in sanitized builds, whose allocator the C library's own statistics do not see.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace vantrix {
namespace {

std::size_t allocatedBytes() {
    if (&__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

struct Soak : testing::Test {
    void start(SamplingSources sources) {
        auto ownClock = std::make_unique<fakes::FakeClock>();
        clock = ownClock.get();
        sources.clock = std::move(ownClock);
        monitor.emplace(std::move(sources), defaults, std::make_unique<fakes::FakeTimer>(),
                        std::make_unique<fakes::ImmediateRunner>());
    }

    void pass() {
        clock->now += 2.0;
        monitor->sample();
    }

    /// From here on nothing may grow.
    void mark() {
        bytes = allocatedBytes();
        files = openFiles();
    }

    /// What the process has open, by name, so that a leak names itself.
    static std::multiset<std::string> openFiles() {
        std::multiset<std::string> names;
        std::error_code gone; // the folder's own descriptor closes while it is listed
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
            names.insert(std::filesystem::read_symlink(entry.path(), gone).string());
        return names;
    }

    fakes::FakeDefaults defaults;
    fakes::FakeClock* clock = nullptr;
    std::optional<SystemMonitor> monitor;
    std::size_t bytes = 0;
    std::multiset<std::string> files;
};

TEST_F(Soak, ADayOfPassesOverTheRealKernelGrowsNothing) {
    constexpr int passes = 100'000;
    constexpr int warmUp = 2'000;
    constexpr int drawingPeriod = 50; // passes; drawing is slower than sampling by far
    start(makeSamplingSources({}));
    QImage image;
    const auto modules = moduleOrder(defaults);
    int updates = 0;
    monitor->onUpdate = [&] {
        const auto items = menuBarItems(modules, monitor->readings(), defaults);
        if (++updates % drawingPeriod == 0)
            MenuBarRenderer::render(image, items, MenuBarStyle::graph, true, MenuBarPalette::onDark(), 2.0);
    };
    for (int count = 0; count < passes; ++count) {
        if (count == warmUp)
            mark();
        pass();
    }
    EXPECT_EQ(updates, passes);
    EXPECT_EQ(openFiles(), files);
    EXPECT_LT(allocatedBytes(), bytes + 128 * 1024); // the cache of shaped texts is bounded, but may still fill
}

} // namespace
} // namespace vantrix
