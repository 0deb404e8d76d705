#include "popover/cards/disk_card.h"

#include <QHBoxLayout>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "popover/charts/segmented_bar.h"
#include "popover/headline.h"
#include "popover/rate_column.h"
#include "popover/reading_text.h"
#include "support/localization.h"

namespace vantrix {
namespace {

constexpr double idleDisk = 1'000'000.0; // bytes per second: less than this is an idle disk

/// "/home", or "Stick" of "/media/ann/Stick"; short enough to leave room for the title.
QString volumeName(const QString& mountPoint) {
    constexpr int most = 24;
    const QString name = mountPoint.count(u'/') > 1 ? mountPoint.section(u'/', -1) : mountPoint;
    return name.size() > most ? name.left(most - 1) + u'…' : name;
}

/// With a mark in the place of the free space.
QString freeSpacePattern(const DiskSample& disk) {
    if (disk.total == 0)
        return localizedText("%@ free");
    return QString::fromStdString(
        formatted(localized("%@ free of %@"), {std::string_view("%@"), byteText(disk.total).toStdString()}));
}

} // namespace

DiskCard::DiskCard(const CardContext& context)
    : Card(context.theme, localizedText("Disk"), "internaldrive"), defaults_(context.defaults),
      free_(new Headline(context.theme)), used_(new SegmentedBar(context.theme, localizedText("Disk space in use"))),
      read_(new RateColumn(context.theme,
                           {localizedText("Read"), localizedText("Read history"), {}, &ThemeColors::accent, idleDisk})),
      write_(new RateColumn(
          context.theme, {localizedText("Write"), localizedText("Write history"), {}, &ThemeColors::green, idleDisk})) {
    content().addWidget(free_);
    content().addWidget(used_);
    content().addLayout(sideBySide(read_, write_));
}

void DiskCard::showReadings(const Readings& readings) {
    const DiskSample& disk = readings.disk;
    const QString name = volumeName(QString::fromStdString(storedText(defaults_, preference_key::diskVolume)));
    const bool isGone = disk.total == 0 && !name.isEmpty();
    setSubtitle(isGone ? localizedText("%@ is not available", name) : name);
    if (isGone)
        free_->setText(QStringLiteral("–"));
    else
        free_->setText(byteText(disk.available), freeSpacePattern(disk));
    used_->setSegments({{0, usedFraction(disk), &ThemeColors::accent}});
    read_->setRate(disk.readRate.value_or(0.0), readings.diskReadHistory, readings.interval);
    write_->setRate(disk.writeRate.value_or(0.0), readings.diskWriteHistory, readings.interval);
}

} // namespace vantrix
