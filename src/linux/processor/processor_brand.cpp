#include "linux/processor/processor_brand.h"

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "support/utf8.h"

namespace vantrix {

std::optional<std::string> parseModelName(std::string_view cpuInfo) {
    while (const auto line = takeLine(cpuInfo)) {
        const auto colon = line->find(':');
        if (line->starts_with("model name") && colon != std::string_view::npos)
            return tidiedName(line->substr(colon + 1));
    }
    return std::nullopt;
}

std::optional<std::string> tidiedName(std::string_view raw) {
    std::string name;
    bool isBlankDue = false;
    for (const char c : raw) {
        if (static_cast<unsigned char>(c) <= ' ' || c == '\x7f') {
            isBlankDue = !name.empty();
            continue;
        }
        if (isBlankDue)
            name += ' ';
        isBlankDue = false;
        name += c;
    }
    if (name.empty())
        return std::nullopt;
    return repairedUTF8(name);
}

std::optional<std::string> processorBrand(const std::string& proc, const std::string& sys) {
    // Enough for the first processor; the whole text may be long, and slow to make.
    const auto cpuInfo = readStart(proc + "/cpuinfo", 8192);
    if (auto name = cpuInfo ? parseModelName(*cpuInfo) : std::nullopt)
        return name;
    const auto model = readStart(sys + "/firmware/devicetree/base/model");
    if (!model)
        return std::nullopt;
    return tidiedName(std::string_view(*model).substr(0, model->find('\0')));
}

} // namespace vantrix
