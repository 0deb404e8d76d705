// What the popover costs at the scale of a sharp screen: opening it for the first time, opening it again, when its
// window is kept and every reading has changed meanwhile, opening another one, one pass while it is open, one pass
// while it is closed, and one frame of its moving ring.

#include <QApplication>

#include <benchmark/benchmark.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "monitor/system_monitor.h"
#include "popover/charts/ring_gauge.h"
#include "popover/popover_frame.h"
#include "popover/popover_view.h"
#include "samplers/processor_description.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int height = 1400; // room for every card: none escapes the measurement by being scrolled away
constexpr std::size_t cores = 16;

/// A machine on which every reading changes from pass to pass.
class BusyMachine {
  public:
    BusyMachine()
        : monitor(machine_.makeSources(), defaults, std::make_unique<QtRepeatingTimer>(),
                  std::make_unique<ThreadTaskRunner>()) {
        machine_.cpu->cores = std::vector<CPUSampler::Ticks>(cores);
        monitor.loadDemo(); // the readings that have no source here, and full histories
    }

    void pass() {
        ++passes_;
        for (std::size_t core = 0; core < cores; ++core) {
            const auto busy = static_cast<std::uint32_t>((passes_ * 37 + core * 11) % 100);
            (*machine_.cpu->cores)[core].user += busy;
            (*machine_.cpu->cores)[core].idle += 100 - busy;
        }
        machine_.clock->now += 2.0;
        machine_.memory->statistics->internalPageCount = 30 + passes_ % 20;
        auto& link = *machine_.network->links->front().counters;
        link.received += static_cast<std::uint32_t>(passes_ * 12'345'671);
        link.sent += static_cast<std::uint32_t>(passes_ * 7'654'321);
        machine_.disks->disks = {{passes_ * 31'000'000, passes_ * 9'000'000}};
        machine_.volume->volume->available = static_cast<std::int64_t>(400 + passes_ % 100);
        monitor.sample();
    }

    fakes::FakeDefaults defaults;

  private:
    fakes::FakeMachine machine_;
    std::uint64_t passes_ = 0;

  public:
    SystemMonitor monitor;
};

struct Stage {
    std::unique_ptr<PopoverView> makeView() {
        auto view = std::make_unique<PopoverView>(machine.monitor, CardContext{theme, machine.defaults, processor},
                                                  [] { return std::vector<StatusMenuEntry>(); });
        view->resize(PopoverView::contentWidth, height);
        return view;
    }

    std::unique_ptr<PopoverFrame> makeFrame() {
        auto frame = std::make_unique<PopoverFrame>(theme, makeView());
        frame->resize(PopoverView::contentWidth, height);
        return frame;
    }

    /// With layout and painting, as the event loop would do them.
    [[gnu::noinline]] static void open(QWidget& window) {
        window.show();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    fakes::FakeAppearance appearance{{true, std::nullopt, true}};
    Theme theme{appearance};
    BusyMachine machine;
    fakes::FakeInformation information;
    ProcessorDescription processor{information};
};

void openPopover(benchmark::State& state) {
    Stage stage;
    for (auto _ : state)
        Stage::open(*stage.makeFrame());
}

void openPopoverAgain(benchmark::State& state) {
    Stage stage;
    const auto frame = stage.makeFrame();
    Stage::open(*frame);
    for (auto _ : state) {
        state.PauseTiming();
        frame->hide();
        QCoreApplication::processEvents();
        stage.machine.pass();
        state.ResumeTiming();
        Stage::open(*frame);
    }
}

void passWhileOpen(benchmark::State& state) {
    Stage stage;
    const auto view = stage.makeView();
    view->show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        stage.machine.pass();
        QCoreApplication::processEvents();
    }
}

void passWhileClosed(benchmark::State& state) {
    Stage stage;
    const auto view = stage.makeView();
    view->show();
    QCoreApplication::processEvents();
    view->hide();
    for (auto _ : state) {
        stage.machine.pass();
        QCoreApplication::processEvents();
    }
}

void passWithoutPopover(benchmark::State& state) {
    Stage stage;
    for (auto _ : state) {
        stage.machine.pass();
        QCoreApplication::processEvents();
    }
}

void ringFrame(benchmark::State& state) {
    Stage stage;
    RingGauge ring(stage.theme, stage.machine.defaults, {}, 8.0);
    ring.setFixedSize(76, 76);
    ring.show();
    QCoreApplication::processEvents();
    double fraction = 0.0;
    for (auto _ : state) {
        ring.setFraction(fraction = fraction > 0.99 ? 0.0 : fraction + 0.01);
        ring.repaint();
    }
}

// The first one pays for fonts and symbols.
BENCHMARK(openPopover)->Name("openPopover/first")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(openPopoverAgain)->Name("openPopover/again")->Unit(benchmark::kMillisecond);
BENCHMARK(openPopover)->Name("openPopover/another")->Unit(benchmark::kMillisecond);
BENCHMARK(passWhileOpen)->Unit(benchmark::kMicrosecond);
BENCHMARK(passWhileClosed)->Unit(benchmark::kMicrosecond);
BENCHMARK(passWithoutPopover)->Unit(benchmark::kMicrosecond);
BENCHMARK(ringFrame)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
