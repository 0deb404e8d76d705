#include "samplers/disk_sampler.h"

#include <algorithm>

#include "support/checked.h"

namespace vantrix {

double usedFraction(const DiskSample& disk) {
    if (disk.total == 0)
        return 0.0;
    const auto used = clampedDifference(disk.total, disk.available);
    return std::min(static_cast<double>(used) / static_cast<double>(disk.total), 1.0);
}

DiskSample DiskSampler::sample() {
    DiskSample sample;
    readSpace(sample);
    readRates(sample);
    return sample;
}

void DiskSampler::readSpace(DiskSample& sample) {
    const auto volume = volume_.read();
    if (!volume)
        return;
    const auto total = volume->total.value_or(0);
    if (total < 0)
        fatalError("the total capacity of the volume is negative");
    sample.total = static_cast<std::uint64_t>(total);
    sample.available = static_cast<std::uint64_t>(std::max<std::int64_t>(volume->available.value_or(0), 0));
}

std::optional<DiskSampler::Totals> DiskSampler::readTotals() {
    if (!counters_.read(disks_) || disks_.empty())
        return std::nullopt;
    Totals totals;
    for (const Counters& disk : disks_) {
        totals.read =
            checkedAdd(totals.read, disk.bytesRead.value_or(0), "the sum of bytes read from all disks overflows");
        totals.written = checkedAdd(totals.written, disk.bytesWritten.value_or(0),
                                    "the sum of bytes written to all disks overflows");
    }
    return totals;
}

void DiskSampler::readRates(DiskSample& sample) {
    const double now = clock_.uptime();
    const auto totals = readTotals();
    if (!totals)
        return; // the baseline stays: the next good reading measures over the whole gap
    if (previous_ && lastTimestamp_ && *lastTimestamp_ < now) {
        const double elapsed = now - *lastTimestamp_;
        sample.readRate = static_cast<double>(clampedDifference(totals->read, previous_->read)) / elapsed;
        sample.writeRate = static_cast<double>(clampedDifference(totals->written, previous_->written)) / elapsed;
    }
    previous_ = totals;
    lastTimestamp_ = now;
}

} // namespace vantrix
