#include "popover/cards/memory_card.h"

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "popover/cards/program_list.h"
#include "popover/cards/row_column.h"
#include "popover/charts/segmented_bar.h"
#include "popover/charts/stat_row.h"
#include "popover/headline.h"
#include "popover/reading_text.h"
#include "support/checked.h"
#include "support/localization.h"
#include "views/text_label.h"

namespace vantrix {
namespace {

QString pressureLine(MemorySample::Pressure pressure) {
    switch (pressure) {
    case MemorySample::Pressure::critical:
        return localizedText("Pressure: critical");
    case MemorySample::Pressure::warning:
        return localizedText("Pressure: warning");
    case MemorySample::Pressure::normal:
        break;
    }
    return localizedText("Pressure: normal");
}

ColorRole colorOf(MemorySample::Pressure pressure) {
    if (pressure == MemorySample::Pressure::normal)
        return nullptr;
    return pressure == MemorySample::Pressure::critical ? &ThemeColors::red : &ThemeColors::orange;
}

double bytesOf(const ProgramShare& program) {
    return static_cast<double>(program.memory);
}

QString textOf(const ProgramShare& program, const Units& units) {
    return memoryText(program.memory, units.memory);
}

const ProgramList::Kind largestPrograms{PopoverCard::memory, localizedLater("Programs by memory use"),
                                        &ProcessSample::largest, bytesOf, textOf};

} // namespace

MemoryCard::MemoryCard(const CardContext& context)
    : Card(context.theme, localizedText("Memory"), "memorychip"), defaults_(context.defaults),
      used_(new Headline(context.theme)), shares_(new SegmentedBar(context.theme, localizedText("Memory in use"))),
      app_(new StatRow(context.theme, localizedText("App"), StatRow::Lead::mark(&ThemeColors::accent))),
      wired_(new StatRow(context.theme, localizedText("Wired"), StatRow::Lead::mark(&ThemeColors::orange))),
      compressed_(new StatRow(context.theme, localizedText("Compressed"), StatRow::Lead::mark(&ThemeColors::purple))),
      swap_(new StatRow(context.theme, localizedText("Swap used"), StatRow::Lead::room())),
      pressure_(new TextLabel(context.theme, {.points = 11.0, .color = &ThemeColors::secondary, .wraps = true})) {
    content().addWidget(used_);
    content().addWidget(shares_);
    content().addLayout(columnOf({app_, wired_, compressed_, swap_}));
    content().addWidget(pressure_);
    if (context.watchPrograms)
        programs_ = new ProgramList(context, largestPrograms, *this);
}

void MemoryCard::showReadings(const Readings& readings) {
    const MemorySample& memory = readings.memory;
    const auto text = [unit = units(defaults_).memory](std::uint64_t bytes) { return memoryText(bytes, unit); };
    used_->setText(text(usedMemory(memory)), QStringLiteral("%@ ") + localizedText("of %@", text(memory.total)));
    used_->setColor(colorOf(memory.pressure));
    shares_->setSegments({{0, fractionOf(memory.app, memory.total), &ThemeColors::accent},
                          {1, fractionOf(memory.wired, memory.total), &ThemeColors::orange},
                          {2, fractionOf(memory.compressed, memory.total), &ThemeColors::purple}});
    app_->setValue(text(memory.app));
    wired_->setValue(text(memory.wired));
    compressed_->setValue(text(memory.compressed));
    swap_->setValue(text(memory.swapUsed));
    pressure_->setText(pressureLine(memory.pressure));
    if (programs_ != nullptr)
        programs_->showPrograms(readings.processes, static_cast<double>(memory.total));
}

} // namespace vantrix
