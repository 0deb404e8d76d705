#pragma once

#include <vector>

#include "popover/cards/card.h"
#include "sensors/sensors_sample.h"

namespace vantrix {

class DisclosureButton;
class StatRow;
class TextLabel;

/// Temperatures, power draw and fans, and on demand every single sensor.
class SensorsCard : public Card {
  public:
    explicit SensorsCard(const CardContext& context);
    void showReadings(const Readings& readings) override;

  private:
    QLayout* makeTemperatures();
    QLayout* makePowers();
    void showTemperatures(const SensorsSample& sensors);
    void showPowers(const SensorsSample& sensors, const ComponentPower& components);
    void showFans(const SensorsSample& sensors);
    void showAll();

    const UserDefaults& defaults_;
    TextLabel* unavailable_;
    QWidget* details_;
    StatRow* cpu_;
    StatRow* gpu_;
    StatRow* soc_;
    StatRow* ssd_;
    StatRow* battery_;
    StatRow* systemPower_;
    StatRow* adapterPower_;
    StatRow* cpuPower_;
    StatRow* gpuPower_;
    StatRow* neuralPower_;
    StatRow* memoryPower_;
    QVBoxLayout* fanColumn_;
    std::vector<StatRow*> fans_;
    DisclosureButton* allSensors_;
    QWidget* sensorList_;
    std::vector<TemperatureReading> all_;
    std::vector<StatRow*> sensors_; // one for each in `all_` while they are shown
};

} // namespace vantrix
