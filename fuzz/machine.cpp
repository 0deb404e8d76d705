#include <cctype>

#include <QJsonDocument>

#include "app/printed_line.h"
#include "app/status_details.h"
#include "doctor/examination.h"
#include "fakes/fake_appearance.h"
#include "fakes/fake_bluetooth.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "fakes/fixture_machine.h"
#include "fakes/plausible_pass.h"
#include "fuzz/targets.h"
#include "linux/read_in_place.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/system_monitor.h"
#include "popover/popover_view.h"
#include "samplers/processor_description.h"
#include "support/utf8.h"
#include "views/drawn.h"
#include "views/theme.h"

namespace vantrix::fuzz {
namespace {

/// Writes what changes before a pass.
void change(const TemporaryFolder& machine, std::string_view input, int pass) {
    static std::ifstream list(FUZZ "/machine_files"); // stays as it is, or the inputs kept would mean something else
    static const std::vector<std::string> files(std::istream_iterator<std::string>(list), {});
    for (Input parts(input); !parts.isEmpty();) {
        const std::string& file = parts.oneOf(files);
        const bool isNow = parts.byte() % 3 == pass;
        const std::string text(parts.text());
        if (isNow)
            machine.write(file, text);
    }
}

/// A number becomes null that is not finite.
bool hasNullField(const std::string& json) {
    constexpr std::string_view null = "\":null";
    for (auto at = json.find(null); at != json.npos; at = json.find(null, at + 1))
        if (at > 0 && std::isalpha(static_cast<unsigned char>(json[at - 1])) != 0)
            return true; // no text that happens to hold it, whose quotation mark is escaped
    return false;
}

void expectForScripts(const std::string& json) {
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(json)).isObject()) << json;
    EXPECT_FALSE(hasNullField(json)) << json;
}

void show(const Readings& readings, const UserDefaults& defaults) {
    fakes::expectPlausible(readings);
    expectForScripts(jsonLine(readings, std::nullopt));
    const auto items = menuBarItems(moduleOrder(defaults), readings, defaults);
    for (const MenuBarItem& item : items)
        EXPECT_TRUE(fakes::isFraction(item.fraction) && !valueText(item).empty()) << itemText(item);
    expectForScripts(waybarLine(items));
    const std::string text = textLine(items) + statusDetails(readings, {}, {}).toStdString();
    EXPECT_EQ(repairedUTF8(text), text);
    QImage row;
    for (const auto style : {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph})
        MenuBarRenderer::render(row, items, style, true, MenuBarPalette::onDark(), 1.0);
}

} // namespace

/// A laptop whose files change: one byte says which, one before which of three passes, a text what is in it from there.
void machine(std::string_view input) {
    const ReadInPlace inPlace;
    const fakes::FixtureMachine laptop("laptop-with-two-packs");
    static const fakes::FakeDefaults defaults;
    static const fakes::FakeAppearance appearance;
    static const Theme theme(appearance);
    change(laptop, input, 0);
    SamplingSources sources = makeSamplingSources(laptop.roots());
    const ProcessorDescription processor(*sources.information);
    auto* clock = new fakes::FakeClock;
    sources.clock.reset(clock);
    SystemMonitor monitor(std::move(sources), defaults, std::make_unique<fakes::FakeTimer>(),
                          std::make_unique<fakes::ImmediateRunner>());
    Samplers samplers(makeSamplingSources(laptop.roots()));
    Findings findings;
    PopoverView popover(monitor, {theme, defaults, processor}, [] { return std::vector<StatusMenuEntry>(); });
    for (int pass = 0; pass < 3; ++pass, clock->now += 2.0) {
        change(laptop, pass > 0 ? input : std::string_view(), pass);
        monitor.sample();
        show(monitor.readings(), defaults);
        popover.show();
        QCoreApplication::processEvents();
        for (const Probe& probe : probes())
            for (std::size_t i = 0; const Finding& found : probe.read(samplers))
                findings[probe.readings[i++]] = found;
    }
    drawn(popover, popover.sizeHint(), Qt::black);
    const DoctorReport report{.readings = joined(diagnoseSources(laptop.roots()), findings)};
    expectForScripts(jsonReport(report));
    EXPECT_EQ(repairedUTF8(textReport(report, 80)), textReport(report, 80));
}

} // namespace vantrix::fuzz
