#include "popover/cards/cpu_card.h"

#include <QHBoxLayout>

#include "monitor/readings.h"
#include "popover/cards/program_list.h"
#include "popover/cards/row_column.h"
#include "popover/charts/core_bars.h"
#include "popover/charts/ring_gauge.h"
#include "popover/charts/stat_row.h"
#include "popover/reading_text.h"
#include "samplers/processor_description.h"
#include "support/localization.h"
#include "support/text_format.h"
#include "views/text_label.h"

namespace vantrix {
namespace {

constexpr int ringSide = 76;
constexpr double ringLine = 8.0;
constexpr int ringGap = 16;

const ProgramList::Kind busiestPrograms{
    PopoverCard::cpu, localizedLater("Programs by CPU use"), &ProcessSample::busiest,
    [](const ProgramShare& program) { return program.cpu; },
    [](const ProgramShare& program, const Units&) { return shareText(program.cpu); }};

} // namespace

CPUCard::CPUCard(const CardContext& context)
    : Card(context.theme, localizedText("CPU"), "cpu"),
      total_(new RingGauge(context.theme, context.defaults, localizedText("CPU load"), ringLine)),
      user_(new StatRow(context.theme, localizedText("User"), StatRow::Lead::mark(&ThemeColors::accent))),
      system_(new StatRow(context.theme, localizedText("System"), StatRow::Lead::mark(&ThemeColors::orange))),
      idle_(new StatRow(context.theme, localizedText("Idle"), StatRow::Lead::mark(&ThemeColors::secondary))),
      cores_(new CoreBars(context.theme, context.defaults)) {
    total_->setFixedSize(ringSide, ringSide);
    const auto description = QString::fromStdString(context.processor.cores());

    auto* kind =
        new TextLabel(context.theme, {.points = 10.0, .color = &ThemeColors::tertiary, .wraps = true}, description);
    auto* rows = columnOf({user_, system_, idle_, kind});
    rows->insertStretch(0, 1);
    rows->addStretch(1);

    auto* top = new QHBoxLayout;
    top->setSpacing(ringGap);
    top->addWidget(total_);
    top->addLayout(rows, 1);
    content().addLayout(top);
    content().addWidget(cores_);
    if (context.watchPrograms)
        programs_ = new ProgramList(context, busiestPrograms, *this);
}

void CPUCard::showReadings(const Readings& readings) {
    const CPUSample& cpu = readings.cpu;
    total_->setFraction(cpu.total);
    const LoadTexts parts = loadTexts(cpu.total, cpu.user, cpu.system);
    user_->setValue(QString::fromStdString(parts.user));
    system_->setValue(QString::fromStdString(parts.system));
    idle_->setValue(QString::fromStdString(parts.idle));
    cores_->setValues(cpu.perCore);
    cores_->setVisible(!cpu.perCore.empty());
    if (programs_ != nullptr)
        programs_->showPrograms(readings.processes, 1.0);
}

} // namespace vantrix
