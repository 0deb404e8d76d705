#include "popover/cards/battery_card.h"

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "popover/cards/row_column.h"
#include "popover/charts/segmented_bar.h"
#include "popover/charts/stat_row.h"
#include "popover/headline.h"
#include "popover/reading_text.h"
#include "support/localization.h"
#include "views/text_label.h"

namespace vantrix {
namespace {

const char* symbolOf(const BatterySample& battery) {
    if (battery.isCharging)
        return "battery.100percent.bolt";
    if (battery.percent < 13)
        return "battery.0percent";
    if (battery.percent < 38)
        return "battery.25percent";
    if (battery.percent < 63)
        return "battery.50percent";
    return battery.percent < 88 ? "battery.75percent" : "battery.100percent";
}

QString statusOf(const BatterySample& battery) {
    if (battery.isCharging)
        return localizedText("Charging");
    return battery.isPluggedIn ? localizedText("Plugged in") : localizedText("On battery");
}

ColorRole colorOf(const BatterySample& battery) {
    if (battery.isCharging || battery.isPluggedIn || battery.percent > 40)
        return &ThemeColors::green;
    return battery.percent < 21 ? &ThemeColors::red : &ThemeColors::orange;
}

QString durationText(int minutes) {
    if (minutes < 60)
        return QString::fromStdString(formatted(localized("%lldm"), {minutes}));
    return QString::fromStdString(formatted(localized("%lldh %lldm"), {minutes / 60, minutes % 60}));
}

} // namespace

BatteryCard::BatteryCard(const CardContext& context)
    : Card(context.theme, localizedText("Battery"), "battery.75percent"), defaults_(context.defaults),
      charge_(new Headline(context.theme)), bar_(new SegmentedBar(context.theme, localizedText("Battery charge"))),
      time_(new TextLabel(context.theme, {.points = 12.0, .color = &ThemeColors::secondary, .wraps = true})),
      capacity_(new StatRow(context.theme, localizedText("Maximum capacity"))),
      cycles_(new StatRow(context.theme, localizedText("Cycle count"))),
      temperature_(new StatRow(context.theme, localizedText("Temperature"))), power_(new StatRow(context.theme, {})) {
    content().addWidget(charge_);
    content().addWidget(bar_);
    content().addWidget(time_);
    content().addLayout(columnOf({capacity_, cycles_, temperature_, power_}));
}

void BatteryCard::showReadings(const Readings& readings) {
    if (readings.battery)
        showBattery(*readings.battery);
}

void BatteryCard::showBattery(const BatterySample& battery) {
    setSymbol(symbolOf(battery));
    setSubtitle(statusOf(battery));
    charge_->setText(QString::number(battery.percent) + u'%');
    const ColorRole color = colorOf(battery);
    charge_->setColor(color == &ThemeColors::green ? nullptr : color);
    bar_->setSegments({{0, battery.percent / 100.0, color}});

    time_->setVisible(battery.minutesRemaining.has_value());
    if (battery.minutesRemaining) {
        const QString duration = durationText(*battery.minutesRemaining);
        time_->setText(battery.isCharging ? localizedText("to full: %@", duration)
                                          : localizedText("left: %@", duration));
    }
    capacity_->showIfKnown(battery.healthPercent, [](int percent) { return percentText(percent / 100.0); });
    cycles_->showIfKnown(battery.cycleCount, [](int cycles) { return QString::number(cycles); });
    temperature_->showIfKnown(battery.temperature, [unit = units(defaults_).temperature](double celsius) {
        return temperatureText(celsius, unit);
    });
    power_->setLabel(battery.isCharging ? localizedText("Charging power") : localizedText("Discharge power"));
    power_->showIfKnown(battery.watts, powerText);
}

} // namespace vantrix
