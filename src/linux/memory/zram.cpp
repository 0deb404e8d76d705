#include "linux/memory/zram.h"

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

constexpr std::uint64_t largestUse = std::uint64_t{1} << 60;

} // namespace

std::optional<std::uint64_t> parseZramMemory(std::string_view text) {
    const auto line = takeLine(text);
    if (!line)
        return std::nullopt;
    Fields fields(*line);
    fields.skip(2); // the data's size before and after compression
    return fields.number();
}

void ZramDisks::find() {
    files_.clear();
    for (const std::string& name : entriesStartingWith(folder_, "zram")) {
        const std::string disk = folder_ + '/' + name;
        // The module makes a first disk when it is loaded; until that is set up it holds nothing.
        if (readStart(disk + "/initstate") != "0\n")
            files_.emplace_back(disk + "/mm_stat");
    }
}

std::uint64_t ZramDisks::memoryUsed() {
    std::uint64_t sum = 0;
    for (KernelFile& file : files_) {
        const auto text = file.read();
        const auto used = text ? parseZramMemory(*text) : std::nullopt;
        if (used && *used <= largestUse - sum)
            sum += *used;
    }
    return sum;
}

} // namespace vantrix
