// What drawing the status row costs, at the scale of a sharp screen.

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include "menubar/menu_bar_renderer.h"
#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

class EmptyStore : public DefaultsStore {
  public:
    QVariant value(const QString&) const override { return {}; }
    void setValue(const QString&, const QVariant&) override {}
};

std::vector<MenuBarItem> sevenItems(const Readings& readings) {
    UserDefaults defaults(std::make_unique<EmptyStore>());
    registerPreferences(defaults);
    return menuBarItems(moduleOrder(defaults), readings, defaults);
}

/// Every number changes from frame to frame, as it may on a busy machine.
void renderRow(benchmark::State& state) {
    const auto style = static_cast<MenuBarStyle>(state.range(0));
    Readings readings = demoReadings();
    std::vector<std::vector<MenuBarItem>> frames;
    for (int i = 0; i < 90; ++i) {
        readings.cpu.total = *readings.gpu = i / 100.0;
        readings.network = {1e6 * i, 1e4 * i};
        readings.sensors.cpu = i;
        append(readings.cpuHistory, readings.cpu.total);
        frames.push_back(sevenItems(readings));
    }
    QImage image;
    std::size_t next = 0;
    for (auto _ : state) {
        MenuBarRenderer::render(image, frames[next++ % frames.size()], style, true, MenuBarPalette::onDark(), 2.0);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetLabel(std::string(choiceOf(menuBarStyles, style).rawValue));
}

void comparePictures(benchmark::State& state) {
    const auto items = sevenItems(demoReadings());
    for (auto _ : state)
        benchmark::DoNotOptimize(samePicture(items, items, MenuBarStyle::graph));
}

BENCHMARK(renderRow)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(comparePictures)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
