#include "linux/power_supply/accessory_name.h"

#include <algorithm>
#include <utility>

#include "accessories/accessory_symbol.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "linux/sensors/sensor_files.h"
#include "support/ascii_case.h"
#include "support/localization.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

/// Part of an address ("AA:BB:…", in any brackets) or a number on a bus ("04F3:2A1C", "ELAN9008:00", "PID:4038").
bool isNumbered(std::string_view word) {
    const auto colon = word.find(':');
    if (colon == std::string_view::npos)
        return false;
    const auto number = word.substr(colon + 1, 2);
    return number.size() == 2 && number.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

/// What a driver calls the entry itself.
bool isEntry(std::string_view word) {
    return word.find("_battery") != std::string_view::npos || word.find("-battery") != std::string_view::npos;
}

bool hasLetter(std::string_view word) {
    return std::any_of(word.begin(), word.end(), [](char c) {
        const char small = loweredASCII(c);
        return (small >= 'a' && small <= 'z') || static_cast<unsigned char>(c) >= 0x80;
    });
}

bool isAddressAt(std::string_view text) {
    constexpr std::string_view pattern = "xx:xx:xx:xx:xx:xx";
    constexpr std::string_view hex = "0123456789abcdefABCDEF";
    return text.size() >= pattern.size() &&
           std::equal(pattern.begin(), pattern.end(), text.begin(), [&](char expected, char c) {
               return expected == ':' ? c == ':' : hex.find(c) != std::string_view::npos;
           });
}

bool isCommonWord(std::string_view word) {
    constexpr std::string_view common[] = {"hid", "device", "wireless", "battery", "unknown"};
    const std::string lowered = loweredASCII(word);
    return std::find(std::begin(common), std::end(common), lowered) != std::end(common);
}

std::string nameOfDevice(const std::string& device) {
    return tellingName(repairedUTF8(ueventValue(readStart(device + "/uevent").value_or(""), "HID_NAME")));
}

std::string nameOfInput(const std::string& device) {
    const std::string folder = device + "/input";
    auto inputs = entriesStartingWith(folder, "input");
    std::sort(inputs.begin(), inputs.end());
    for (const std::string& input : inputs) {
        if (std::string name = tellingName(readName(pathBelow(folder, input) + "/name")); !name.empty())
            return name;
    }
    return {};
}

/// In English, by the driver that named the entry.
std::string_view kindOf(std::string_view entry) {
    constexpr auto tablet = localizedLater("Graphics tablet");
    constexpr auto controller = localizedLater("Game controller");
    constexpr auto headphones = localizedLater("Headphones");
    constexpr std::pair<std::string_view, std::string_view> kinds[] = {
        {"wacom", tablet},
        {"controller", controller},
        {"xbox", controller},
        {"xpad", controller},
        {"gip", controller},
        {"wiimote", controller},
        {"headset", headphones},
        {"corsair-void", headphones},
        {"keyboard", localizedLater("Keyboard")},
        {"mouse", localizedLater("Mouse")},
    };
    const std::string lowered = loweredASCII(entry);
    for (const auto& [word, kind] : kinds) {
        if (lowered.find(word) != std::string::npos)
            return kind;
    }
    return findAddress(entry).empty() ? localizedLater("Wireless device") : localizedLater("Bluetooth device");
}

} // namespace

std::string findAddress(std::string_view text) {
    constexpr std::size_t length = 17;
    while (text.size() >= length && !isAddressAt(text))
        text.remove_prefix(1);
    return text.size() >= length ? raisedASCII(text.substr(0, length)) : std::string();
}

std::string tellingName(std::string_view reported) {
    std::string name;
    bool tells = false;
    Fields words(reported);
    for (auto word = words.next(); !word.empty(); word = words.next()) {
        if (isNumbered(word) || isEntry(word))
            continue;
        tells |= hasLetter(word) && !isCommonWord(word);
        name += (name.empty() ? "" : " ");
        name += word;
    }
    return tells ? name : std::string();
}

AccessoryName accessoryName(const std::string& supply, std::string_view entry) {
    const std::string device = supply + "/device";
    std::string name = tellingName(readName(supply + "/model_name"));
    if (name.empty())
        name = nameOfDevice(device);
    if (name.empty())
        name = nameOfInput(device);
    if (name.empty()) {
        const std::string_view kind = kindOf(entry);
        return {localized(kind), symbolForAccessory(kind), false};
    }
    std::string symbol = symbolForAccessory(name);
    return {std::move(name), std::move(symbol), true};
}

} // namespace vantrix
