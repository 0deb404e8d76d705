#include "linux/disks/proc_diskstats.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

constexpr std::uint64_t sectorSize = 512;

/// A disk that is reached over several paths has a disk for each, which count the same bytes as it does.
bool isSumOfPaths(const std::string& device) {
    return device.find("/nvme-subsystem/") != std::string::npos;
}

/// Absent when the bytes, or their sum over all disks, need more than 64 bits: no disk moves that much.
std::optional<std::uint64_t> bytesOf(std::optional<std::uint64_t> sectors, std::uint64_t& sum) {
    std::uint64_t bytes = 0;
    std::uint64_t newSum = 0;
    if (!sectors || __builtin_mul_overflow(*sectors, sectorSize, &bytes) || __builtin_add_overflow(sum, bytes, &newSum))
        return std::nullopt;
    sum = newSum;
    return bytes;
}

} // namespace

bool parseDiskStats(std::string_view text, std::vector<DiskStatsLine>& lines) {
    lines.clear();
    while (const auto line = takeLine(text)) {
        Fields fields(*line);
        fields.skip(2); // device numbers
        const auto name = fields.next();
        if (name.empty())
            return false;
        lines.push_back({name, fields.rest()});
    }
    return text.empty();
}

DiskSectors parseDiskCounters(std::string_view counters) {
    Fields fields(counters);
    fields.skip(2); // reads, merged reads
    const auto read = fields.number();
    fields.skip(3); // time, writes, merged writes
    return {read, fields.number()};
}

bool isPhysicalDisk(const std::string& sys, std::string_view name) {
    constexpr std::string_view others[] = {"sr", "fd", "loop", "ram", "zram", "dm-", "md"};
    if (std::any_of(std::begin(others), std::end(others),
                    [&](std::string_view prefix) { return name.starts_with(prefix); }))
        return false;
    std::string entryName(name);
    std::replace(entryName.begin(), entryName.end(), '/', '!'); // as sysfs writes "cciss/c0d0"
    if (!isEntryName(entryName))
        return false;
    const std::string entry = sys + "/block/" + entryName;
    return pathExists(entry + "/device") && !isSumOfPaths(linkTarget(entry));
}

DiskStatsSource::DiskStatsSource(const std::string& proc, std::string sys)
    : file_(proc + "/diskstats", KernelFile::Kind::records), sys_(std::move(sys)) {}

bool DiskStatsSource::read(std::vector<DiskSampler::Counters>& disks) {
    const auto text = file_.read();
    if (!text || !parseDiskStats(*text, lines_))
        return false;
    disks.clear();
    known_.resize(lines_.size());
    std::uint64_t sumRead = 0;
    std::uint64_t sumWritten = 0;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (!isPhysicalAt(i, lines_[i].name))
            continue;
        const auto sectors = parseDiskCounters(lines_[i].counters);
        disks.push_back({bytesOf(sectors.read, sumRead), bytesOf(sectors.written, sumWritten)});
    }
    return true;
}

bool DiskStatsSource::isPhysicalAt(std::size_t place, std::string_view name) {
    Known& known = known_[place];
    if (known.name != name) {
        known.name = name;
        known.isPhysical = isPhysicalDisk(sys_, name);
    }
    return known.isPhysical;
}

} // namespace vantrix
