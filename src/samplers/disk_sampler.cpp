#include "samplers/disk_sampler.h"

#include <algorithm>
#include <utility>

#include "support/checked.h"

namespace vantrix {

double usedFraction(const DiskSample& disk) {
    return fractionOf(clampedDifference(disk.total, disk.available), disk.total);
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
    Totals totals{.time = clock_.uptime()};
    if (!counters_.read(disks_) || disks_.empty())
        return std::nullopt;
    for (const Counters& disk : disks_) {
        totals.read =
            checkedAdd(totals.read, disk.bytesRead.value_or(0), "the sum of bytes read from all disks overflows");
        totals.written = checkedAdd(totals.written, disk.bytesWritten.value_or(0),
                                    "the sum of bytes written to all disks overflows");
    }
    return totals;
}

void DiskSampler::readRates(DiskSample& sample) {
    const auto now = readTotals();
    if (!now)
        return; // the baseline stays: the next good reading measures over the whole gap
    const auto before = std::exchange(previous_, now);
    if (!before || now->time <= before->time)
        return;
    const double elapsed = now->time - before->time;
    sample.readRate = static_cast<double>(clampedDifference(now->read, before->read)) / elapsed;
    sample.writeRate = static_cast<double>(clampedDifference(now->written, before->written)) / elapsed;
}

} // namespace vantrix
