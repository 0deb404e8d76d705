#include "linux/power_supply/power_supply_accessories.h"

#include <algorithm>

#include "accessories/accessory_symbol.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "linux/sensors/supply_kind.h"
#include "support/ascii_case.h"
#include "support/integer.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

/// The first line of a file without the blanks around it; empty when it cannot be read.
std::string readWord(const std::string& path) {
    const auto text = readStart(path, 256);
    if (!text)
        return {};
    const std::string line = text->substr(0, text->find('\n'));
    const auto begin = line.find_first_not_of(' ');
    return begin == std::string::npos ? "" : line.substr(begin, line.find_last_not_of(' ') - begin + 1);
}

std::string readEventValue(const std::string& device, std::string_view key) {
    return std::string(ueventValue(readStart(device + "/uevent").value_or(""), key));
}

std::string nameOf(const std::string& supply, const std::string& entry) {
    std::string name = readWord(supply + "/model_name");
    if (name.empty())
        name = readEventValue(supply + "/device", "HID_NAME");
    return repairedUTF8(name.empty() ? entry : name);
}

std::string addressOf(const std::string& supply, const std::string& entry) {
    const std::string address = findAddress(entry);
    return address.empty() ? findAddress(readEventValue(supply + "/device", "HID_UNIQ")) : address;
}

std::optional<int> levelOf(const std::string& supply) {
    if (const auto percent = parseInteger(readWord(supply + "/capacity")))
        return boundedPercent(*percent);
    return percentOfLevel(readWord(supply + "/capacity_level"));
}

/// A wireless device keeps its entry while it is switched off, or out of reach of its receiver.
bool isThere(const std::string& supply) {
    return readWord(supply + "/online") != "0" && readWord(supply + "/present") != "0";
}

bool isAddressAt(std::string_view text) {
    constexpr std::string_view pattern = "xx:xx:xx:xx:xx:xx";
    constexpr std::string_view hex = "0123456789abcdefABCDEF";
    return text.size() >= pattern.size() &&
           std::equal(pattern.begin(), pattern.end(), text.begin(), [&](char expected, char c) {
               return expected == ':' ? c == ':' : hex.find(c) != std::string_view::npos;
           });
}

} // namespace

std::string findAddress(std::string_view text) {
    constexpr std::size_t length = 17;
    while (text.size() >= length && !isAddressAt(text))
        text.remove_prefix(1);
    return text.size() >= length ? raisedASCII(text.substr(0, length)) : std::string();
}

std::optional<int> percentOfLevel(std::string_view word) {
    constexpr std::pair<std::string_view, int> levels[] = {
        {"Critical", 5}, {"Low", 15}, {"Normal", 50}, {"High", 75}, {"Full", 100}};
    for (const auto& [name, percent] : levels) {
        if (word == name)
            return percent;
    }
    return std::nullopt;
}

AccessoriesSampler::Scan PowerSupplyAccessories::scan() {
    Scan scan;
    std::vector<std::string> others;
    for (const std::string& entry : suppliesOf(sys_, SupplyKind::accessory)) {
        const std::string supply = sys_ + "/class/power_supply/" + entry;
        if (!isThere(supply))
            continue;
        std::string name = nameOf(supply, entry);
        const auto level = levelOf(supply);
        if (!level) {
            others.push_back(std::move(name));
            continue;
        }
        const std::string symbol = symbolForAccessory(name);
        scan.accessories.push_back({{std::move(name), *level, readWord(supply + "/status") == "Charging", symbol},
                                    addressOf(supply, entry),
                                    entry});
    }
    scan.diagnostics = accessoriesDiagnostics("power_supply", scan.accessories, others);
    return scan;
}

} // namespace vantrix
