// Weeks of passes in seconds: nothing may grow.

#include <QImage>

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "linux/program/soak.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/system_monitor.h"

namespace vantrix {
namespace {

constexpr int passes = 100'000;
constexpr int warmUp = 2'000;
constexpr int drawingPeriod = 50; // passes; drawing is slower than sampling by far

TEST(Soak, ADayOfPassesOverTheRealKernelGrowsNothing) {
    fakes::FakeDefaults defaults;
    auto sources = makeSamplingSources({});
    auto fakeClock = std::make_unique<fakes::FakeClock>();
    fakes::FakeClock& clock = *fakeClock;
    sources.clock = std::move(fakeClock);
    SystemMonitor monitor(std::move(sources), defaults, std::make_unique<soak::NoTimer>(),
                          std::make_unique<soak::ImmediateRunner>());
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
            bytes = soak::allocatedBytes();
            files = soak::openFiles();
        }
        clock.now += 2.0;
        monitor.sample();
    }
    EXPECT_EQ(updates, passes);
    EXPECT_EQ(soak::openFiles(), files);
    EXPECT_LT(soak::allocatedBytes(), bytes + 128 * 1024); // the cache of shaped texts is bounded, but may still fill
    EXPECT_EQ(monitor.readings().memoryHistory.size(), historyLength);
}

} // namespace
} // namespace vantrix
