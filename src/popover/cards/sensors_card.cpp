#include "popover/cards/sensors_card.h"

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "popover/cards/row_column.h"
#include "popover/charts/stat_row.h"
#include "popover/reading_text.h"
#include "support/localization.h"
#include "support/text_format.h"
#include "views/disclosure_button.h"
#include "views/text_label.h"

namespace vantrix {
namespace {

constexpr double hot = 90.0; // °C, as in the status item
constexpr double warm = 80.0;

ColorRole heatOf(double temperature) {
    if (temperature >= hot)
        return &ThemeColors::red;
    return temperature >= warm ? &ThemeColors::orange : &ThemeColors::green;
}

void showHeat(StatRow* row, double temperature) {
    const ColorRole heat = heatOf(temperature);
    row->setMarker(heat);
    row->setValueColor(heat == &ThemeColors::green ? nullptr : heat);
}

void showTemperature(StatRow* row, const std::optional<double>& temperature, TemperatureUnit unit) {
    row->showIfKnown(temperature, [unit](double celsius) { return temperatureText(celsius, unit); });
    if (temperature)
        showHeat(row, *temperature);
}

QString cpuText(const SensorsSample& sensors, TemperatureUnit unit) {
    QString mean = temperatureText(*sensors.cpu, unit);
    if (!sensors.cpuHottest)
        return mean;
    return mean + QStringLiteral(" · ") + localizedText("max %@", temperatureText(*sensors.cpuHottest, unit));
}

QString fanText(const FanReading& fan) {
    QString speed = localizedText("%@ rpm", QString::fromStdString(roundedInteger(fan.rpm)));
    if (!fan.maxRPM)
        return speed;
    return speed + QStringLiteral(" · ") + localizedText("max %@", QString::fromStdString(roundedInteger(*fan.maxRPM)));
}

bool hasTemperature(const SensorsSample& sensors) {
    return sensors.cpu || sensors.cpuHottest || sensors.gpu || sensors.soc || sensors.ssd || sensors.battery ||
           !sensors.all.empty();
}

/// Adds or deletes rows in `column` until there are `count`.
void resizeRows(std::vector<StatRow*>& rows, std::size_t count, QVBoxLayout& column, const Theme& theme,
                const StatRow::Lead& lead) {
    for (; rows.size() > count; rows.pop_back())
        delete rows.back();
    while (rows.size() < count) {
        rows.push_back(new StatRow(theme, {}, lead));
        column.addWidget(rows.back());
        rows.back()->show();
    }
}

} // namespace

SensorsCard::SensorsCard(const CardContext& context)
    : Card(context.theme, localizedText("Sensors"), "thermometer.medium"), defaults_(context.defaults),
      unavailable_(new TextLabel(context.theme, {.points = 11.0, .color = &ThemeColors::secondary, .wraps = true},
                                 localizedText("Temperatures are not available on this Mac."))),
      details_(new QWidget), fanColumn_(columnOf({})), allSensors_(new DisclosureButton(context.theme)),
      sensorList_(new QWidget) {
    auto* details = new QVBoxLayout(details_);
    details->setContentsMargins(0, 0, 0, 0);
    details->setSpacing(10);
    details->addLayout(makeTemperatures());
    details->addLayout(makePowers());
    details->addLayout(fanColumn_);
    details->addWidget(allSensors_);
    details->addWidget(sensorList_);
    sensorList_->setLayout(columnOf({}));
    sensorList_->hide();
    connect(allSensors_, &QAbstractButton::toggled, this, [this] { showAll(); });
    content().addWidget(unavailable_);
    content().addWidget(details_);
}

QLayout* SensorsCard::makeTemperatures() {
    const auto row = [this](const QString& label) {
        return new StatRow(theme(), label, StatRow::Lead::mark(&ThemeColors::green));
    };
    cpu_ = row(localizedText("CPU"));
    gpu_ = row(localizedText("GPU"));
    soc_ = row(localizedText("SoC"));
    ssd_ = row(localizedText("SSD"));
    battery_ = row(localizedText("Battery"));
    return columnOf({cpu_, gpu_, soc_, ssd_, battery_});
}

QLayout* SensorsCard::makePowers() {
    // Marks tell the rows apart. None is red: what is much depends on the machine.
    const auto row = [this](const QString& label, ColorRole color) {
        return new StatRow(theme(), label, StatRow::Lead::mark(color));
    };
    systemPower_ = row(localizedText("System power"), &ThemeColors::accent);
    adapterPower_ = row(localizedText("Adapter input"), &ThemeColors::green);
    cpuPower_ = row(localizedText("CPU power"), &ThemeColors::orange);
    gpuPower_ = row(localizedText("GPU power"), &ThemeColors::purple);
    neuralPower_ = row(localizedText("Neural Engine"), &ThemeColors::accent);
    memoryPower_ = row(localizedText("Memory (DRAM)"), &ThemeColors::green);
    return columnOf({systemPower_, adapterPower_, cpuPower_, gpuPower_, neuralPower_, memoryPower_});
}

void SensorsCard::showReadings(const Readings& readings) {
    const SensorsSample& sensors = readings.sensors;
    const bool available = hasTemperature(sensors);
    unavailable_->setVisible(!available);
    details_->setVisible(available);
    if (!available)
        return;
    showTemperatures(sensors);
    showPowers(sensors, readings.activeComponents);
    showFans(sensors);
    all_ = sensors.all;
    showAll();
}

void SensorsCard::showTemperatures(const SensorsSample& sensors) {
    const TemperatureUnit unit = units(defaults_).temperature;
    cpu_->setVisible(sensors.cpu.has_value());
    if (sensors.cpu) {
        cpu_->setValue(cpuText(sensors, unit));
        showHeat(cpu_, *sensors.cpu);
    }
    showTemperature(gpu_, sensors.gpu, unit);
    showTemperature(soc_, sensors.soc, unit);
    showTemperature(ssd_, sensors.ssd, unit);
    showTemperature(battery_, sensors.battery, unit);
}

void SensorsCard::showPowers(const SensorsSample& sensors, const ComponentPower& components) {
    systemPower_->showIfKnown(sensors.systemPower, powerText);
    adapterPower_->showIfKnown(sensors.adapterPower, powerText);
    cpuPower_->showIfKnown(components.cpu, powerText);
    gpuPower_->showIfKnown(components.gpu, powerText);
    neuralPower_->showIfKnown(components.ane, powerText);
    memoryPower_->showIfKnown(components.dram, powerText);
}

void SensorsCard::showFans(const SensorsSample& sensors) {
    resizeRows(fans_, sensors.fans.size(), *fanColumn_, theme(), StatRow::Lead::room());
    for (std::size_t i = 0; i < fans_.size(); ++i) {
        fans_[i]->setLabel(QString::fromStdString(formatted(localized("Fan %lld"), {sensors.fans[i].id + 1})));
        fans_[i]->setValue(fanText(sensors.fans[i]));
    }
}

void SensorsCard::showAll() {
    const auto count = static_cast<long long>(all_.size());
    const bool offered = count >= 2;
    allSensors_->setVisible(offered);
    allSensors_->setText(QString::fromStdString(formatted(localized("All sensors (%lld)"), {count})));
    sensorList_->setVisible(offered && allSensors_->isChecked());
    if (!offered || !allSensors_->isChecked())
        return;
    resizeRows(sensors_, all_.size(), *static_cast<QVBoxLayout*>(sensorList_->layout()), theme(),
               StatRow::Lead::none());
    const TemperatureUnit unit = units(defaults_).temperature;
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        sensors_[i]->setLabel(QString::fromStdString(all_[i].name));
        sensors_[i]->setValue(temperatureText(all_[i].value, unit));
    }
}

} // namespace vantrix
