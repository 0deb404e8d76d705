#include "popover/cards/gpu_card.h"

#include <QVBoxLayout>

#include "monitor/readings.h"
#include "popover/charts/sparkline.h"
#include "popover/charts/threshold_color.h"
#include "popover/headline.h"
#include "popover/reading_text.h"

namespace vantrix {

GPUCard::GPUCard(const CardContext& context)
    : Card(context.theme, localizedText("GPU"), "display"), defaults_(context.defaults),
      load_(new Headline(context.theme)), history_(new Sparkline(context.theme, localizedText("GPU history"),
                                                                 &ThemeColors::accent, {1.0, 0.0}, percentText)) {
    content().addWidget(load_);
    content().addWidget(history_);
}

void GPUCard::showReadings(const Readings& readings) {
    const double load = readings.gpu.value_or(0.0);
    load_->setText(percentText(load));
    const ColorRole severity = thresholdColor(load, defaults_);
    load_->setColor(severity);
    history_->setColor(severity);
    history_->setValues(readings.gpuHistory, readings.interval);
}

} // namespace vantrix
