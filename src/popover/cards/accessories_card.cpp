#include "popover/cards/accessories_card.h"

#include <algorithm>

#include <QVBoxLayout>

#include "monitor/readings.h"
#include "popover/charts/stat_row.h"
#include "support/localization.h"

namespace vantrix {
namespace {

constexpr int rowGap = 7;
constexpr int low = 20; // percent, as in the status item
constexpr int critical = 10;

bool sameDevice(const AccessoryBattery& a, const AccessoryBattery& b) {
    return a.name == b.name && a.symbol == b.symbol;
}

void showCharge(StatRow& row, const AccessoryBattery& accessory) {
    const bool isLow = !accessory.isCharging && accessory.percent <= low;
    const bool isCritical = isLow && accessory.percent <= critical;
    row.setValue(QString::number(accessory.percent) + u'%');
    row.setSymbol(accessory.isCharging ? "bolt.fill"
                  : isCritical         ? "battery.0percent"
                  : isLow              ? "battery.25percent"
                                       : "");
    row.setValueColor(isCritical ? &ThemeColors::red : isLow ? &ThemeColors::orange : nullptr);
    row.setNote(accessory.isCharging ? localizedText("Charging") : isLow ? localizedText("Battery low") : QString());
}

} // namespace

AccessoriesCard::AccessoriesCard(const CardContext& context)
    : Card(context.theme, localizedText("Accessories"), "dot.radiowaves.left.and.right"), column_(new QVBoxLayout) {
    column_->setSpacing(rowGap);
    content().addLayout(column_);
}

void AccessoriesCard::makeRows(const std::vector<AccessoryBattery>& accessories) {
    for (StatRow* row : rows_)
        delete row;
    rows_.clear();
    for (const AccessoryBattery& accessory : accessories) {
        auto* row =
            new StatRow(theme(), QString::fromStdString(accessory.name), StatRow::Lead::picture(accessory.symbol));
        column_->addWidget(row);
        row->show();
        rows_.push_back(row);
    }
}

void AccessoriesCard::showReadings(const Readings& readings) {
    const auto& accessories = readings.accessories;
    const bool sameDevices =
        std::equal(accessories.begin(), accessories.end(), shown_.begin(), shown_.end(), sameDevice);
    if (!sameDevices || rows_.size() != accessories.size())
        makeRows(accessories);
    shown_ = accessories;
    setSubtitle(QString::fromStdString(localizedCount("%lld connected", static_cast<long long>(accessories.size()))));
    for (std::size_t i = 0; i < rows_.size(); ++i)
        showCharge(*rows_[i], accessories[i]);
}

} // namespace vantrix
