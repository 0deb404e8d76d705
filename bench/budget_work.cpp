// Work of one kind, done COUNT times: what is counted from outside. What COUNT does not change falls out of the
// difference of two runs. Usage: budget_work KIND COUNT

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <QApplication>

#include "app/printed_line.h"
#include "fakes/fixture_machine.h"
#include "menubar/menu_bar_renderer.h"
#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "monitor/samplers.h"
#include "platform/widget_center.h"
#include "support/user_defaults.h"
#include "widget/widget_bridge.h"

namespace vantrix {
namespace {

using namespace std::chrono_literals;

class EmptyStore : public DefaultsStore {
  public:
    QVariant value(const QString&) const override { return {}; }
    void setValue(const QString&, const QVariant&) override {}
};

struct RegisteredDefaults : UserDefaults {
    RegisteredDefaults() : UserDefaults(std::make_unique<EmptyStore>()) { registerPreferences(*this); }
};

void pass(Samplers& samplers) {
    const PassScope scope = samplers.beginPass();
    samplers.cpu.sample();
    samplers.memory.sample();
    samplers.network.sample();
    samplers.networkInfo->sample(true, LocationAccess::authorizedAlways);
    samplers.disk.sample();
    samplers.gpu->sample();
    samplers.sensors.sample();
    samplers.battery->sample();
}

void passes(const char* machine, int count) {
    const fakes::FixtureMachine files(machine);
    Samplers samplers(makeSamplingSources(files.roots()));
    for (; count > 0; --count) {
        pass(samplers);
        std::this_thread::sleep_for(20ms); // sensors are read aside, in the time that there is between passes
    }
}

/// Made beforehand, so that making them falls out, too. Every number differs from that of the frame before.
class Frames {
  public:
    Frames() {
        Readings readings = demoReadings();
        for (int i = 0; i < count; ++i) {
            readings.cpu.total = *readings.gpu = i / 100.0;
            readings.network = {1e6 * i, 1e4 * i};
            readings.sensors.cpu = i;
            append(readings.cpuHistory, readings.cpu.total);
            frames_.push_back(readings);
        }
    }
    const Readings& operator[](int frame) const { return frames_[static_cast<std::size_t>(frame % count)]; }

  private:
    static constexpr int count = 90;
    std::vector<Readings> frames_;
};

void pictures(MenuBarStyle style, int count) {
    const RegisteredDefaults defaults;
    const Frames frames;
    QImage image;
    for (int frame = 0; frame < count; ++frame) {
        const auto items = menuBarItems(moduleOrder(defaults), frames[frame], defaults);
        MenuBarRenderer::render(image, items, style, true, MenuBarPalette::onDark(), 2.0);
    }
}

/// What a pass costs that changes nothing in the row.
void comparisons(int count) {
    const RegisteredDefaults defaults;
    const Frames frames;
    const auto shown = menuBarItems(moduleOrder(defaults), frames[0], defaults);
    for (; count > 0; --count)
        if (!samePicture(shown, menuBarItems(moduleOrder(defaults), frames[0], defaults), MenuBarStyle::inlined))
            std::abort();
}

/// What widgets read after each pass.
void snapshots(int count) {
    const RegisteredDefaults defaults;
    const Frames frames;
    const auto center = makeWidgetCenter();
    WidgetBridge bridge(center.get(), defaults, [] { return 785403893.25; });
    for (int frame = 0; frame < count; ++frame)
        bridge.update(frames[frame]);
}

void lines(int count) {
    const Frames frames;
    for (int frame = 0; frame < count; ++frame)
        std::puts(jsonLine(frames[frame], {}).c_str());
}

const std::map<std::string, std::function<void(int)>> kinds = {
    {"desktop-pass", [](int count) { passes("ordinary-desktop", count); }},
    {"laptop-pass", [](int count) { passes("laptop-with-everything", count); }},
    {"unchanged-row", comparisons},
    {"inlined-row", [](int count) { pictures(MenuBarStyle::inlined, count); }},
    {"stacked-row", [](int count) { pictures(MenuBarStyle::stacked, count); }},
    {"graph-row", [](int count) { pictures(MenuBarStyle::graph, count); }},
    {"snapshot", snapshots},
    {"json-line", lines},
};

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    const auto kind = argc > 2 ? vantrix::kinds.find(argv[1]) : vantrix::kinds.end();
    if (kind == vantrix::kinds.end()) {
        std::fputs("usage: budget_work KIND COUNT\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    kind->second(std::atoi(argv[2]));
    return 0;
}
