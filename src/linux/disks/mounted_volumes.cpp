#include "linux/disks/mounted_volumes.h"

#include <algorithm>
#include <map>

#include "linux/kernel/kernel_file.h"
#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

struct Mount {
    std::string_view device; ///< "8:1"
    std::string_view root;   ///< the folder of the file system that is mounted
    std::string_view point;
    std::string_view type;
    std::string_view source;
};

/// Fields up to a lone "-" are as many as the kernel likes.
std::optional<Mount> mountIn(std::string_view line) {
    Mount mount;
    Fields fields(line);
    fields.skip(2);
    mount.device = fields.next();
    mount.root = fields.next();
    mount.point = fields.next();
    std::string_view field = fields.next();
    while (!field.empty() && field != "-")
        field = fields.next();
    mount.type = fields.next();
    mount.source = fields.next();
    return mount.source.empty() ? std::nullopt : std::optional(mount);
}

bool isOfRealDevice(const Mount& mount) {
    if (mount.type == "zfs" || mount.type == "btrfs") // whose volumes may be mounted below their root
        return true;
    const bool isImage = mount.type == "squashfs" || mount.type == "erofs" || mount.source.starts_with("/dev/loop");
    const bool isPart = mount.root != "/"; // a folder of a volume that is mounted elsewhere as well
    const bool isMadeUp = mount.type == "fuse" || mount.type.starts_with("fuse."); // unlike "fuseblk"
    return mount.source.starts_with("/dev/") && !isImage && !isPart && !isMadeUp;
}

/// The kernel writes a blank as "\040".
std::string unescaped(std::string_view text) {
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isCode = text[i] == '\\' && i + 3 < text.size() && isOctal(text[i + 1]) && isOctal(text[i + 2]) &&
                            isOctal(text[i + 3]);
        if (isCode) {
            plain += static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

} // namespace

std::vector<std::string> volumesIn(std::string_view mountinfo) {
    std::map<std::string_view, std::string> pointOf; // by device
    while (const auto line = takeLine(mountinfo)) {
        const auto mount = mountIn(*line);
        if (!mount || !isOfRealDevice(*mount))
            continue;
        std::string point = unescaped(mount->point);
        auto& shortest = pointOf[mount->device];
        if (shortest.empty() || point.size() < shortest.size())
            shortest = std::move(point);
    }
    std::vector<std::string> points;
    points.reserve(pointOf.size());
    for (auto& [device, point] : pointOf)
        points.push_back(std::move(point));
    std::sort(points.begin(), points.end());
    return points;
}

std::vector<std::string> mountedVolumes(const std::string& proc) {
    KernelFile file(proc + (proc == "/proc" ? "/self" : "/1") + "/mountinfo", KernelFile::Kind::longRecords);
    return volumesIn(file.read().value_or(std::string_view()));
}

} // namespace vantrix
