#include "linux/memory/zfs_cache.h"

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"

namespace vantrix {

std::optional<std::uint64_t> parseReclaimableCache(std::string_view text) {
    std::optional<std::uint64_t> least;
    std::optional<std::uint64_t> size;
    while (const auto line = takeLine(text)) {
        Fields fields(*line);
        const auto name = fields.next();
        if (name != "c_min" && name != "size")
            continue;
        fields.skip(1); // the value's type
        (name == "size" ? size : least) = fields.number();
        if (size && least)
            return *size > *least ? *size - *least : 0;
    }
    return std::nullopt;
}

std::uint64_t ZFSCache::reclaimable() {
    const auto stats = text();
    return stats ? parseReclaimableCache(*stats).value_or(0) : 0;
}

std::optional<std::string_view> ZFSCache::text() {
    if (schedule_.isDue() && !file_ && pathExists(path_))
        file_.emplace(path_, KernelFile::Kind::records);
    const auto stats = file_ ? file_->read() : std::nullopt;
    if (file_ && !stats) {
        file_.reset();
        schedule_.noteFailure();
    }
    return stats;
}

} // namespace vantrix
