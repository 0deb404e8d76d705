#include "accessories/bluetooth_report.h"

#include <charconv>

#include "accessories/accessory_levels.h"
#include "accessories/accessory_symbol.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

struct Line {
    std::size_t indent = 0;
    std::string_view label;
    std::string_view value; ///< empty for a heading
};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// Takes the next line off `text`; the label is empty when it is neither a heading nor a value.
Line takeReportLine(std::string_view& text) {
    const auto end = text.find('\n');
    const auto whole = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    const auto content = trimmed(whole);
    Line line;
    line.indent = content.empty() ? 0 : static_cast<std::size_t>(content.data() - whole.data());
    if (content.ends_with(':')) {
        line.label = content.substr(0, content.size() - 1); // a device's name may hold colons itself
    } else if (const auto colon = content.find(": "); colon != std::string_view::npos) {
        line.label = trimmed(content.substr(0, colon));
        line.value = trimmed(content.substr(colon + 2));
    }
    return line;
}

/// "57%", "57 %" or "57".
std::optional<int> parsePercent(std::string_view text) {
    int percent = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), percent);
    const auto rest = trimmed({end, static_cast<std::size_t>(text.data() + text.size() - end)});
    const bool isPercent = error == std::errc() && percent >= 0 && (rest.empty() || rest == "%");
    return isPercent ? std::optional(percent) : std::nullopt;
}

class Reader {
  public:
    BluetoothReport read(std::string_view text) {
        while (!text.empty()) {
            const Line line = takeReportLine(text);
            if (!line.label.empty())
                take(line);
        }
        finishDevice();
        return std::move(report_);
    }

  private:
    struct Device {
        std::string name;
        std::string address;
        std::string kind;
        AccessoryLevels levels;
    };

    void take(const Line& line) {
        if (line.indent == 0)
            return; // the report's own title
        if (!sectionIndent_)
            sectionIndent_ = line.indent;
        if (line.indent <= *sectionIndent_) {
            finishDevice();
            isConnected_ = line.label == "Connected" || line.label == "device_connected";
            deviceIndent_.reset();
            return;
        }
        if (isConnected_)
            takeBelowConnected(line);
    }

    void takeBelowConnected(const Line& line) {
        if (!deviceIndent_)
            deviceIndent_ = line.indent;
        if (line.indent > *deviceIndent_) {
            if (device_)
                takeValue(line);
            return;
        }
        finishDevice();
        if (line.value.empty())
            device_ = Device{repairedUTF8(line.label), {}, {}, {}};
    }

    void takeValue(const Line& line) {
        const auto is = [&](std::string_view label, std::string_view key) {
            return line.label == label || line.label == key;
        };
        if (is("Address", "device_address"))
            device_->address = repairedUTF8(line.value);
        else if (is("Minor Type", "device_minorType"))
            device_->kind = line.value;
        else if (is("Battery Level", "device_batteryLevelMain"))
            device_->levels.single = parsePercent(line.value);
        else if (is("Left Battery Level", "device_batteryLevelLeft"))
            device_->levels.left = parsePercent(line.value);
        else if (is("Right Battery Level", "device_batteryLevelRight"))
            device_->levels.right = parsePercent(line.value);
        else if (is("Case Battery Level", "device_batteryLevelCase"))
            device_->levels.box = parsePercent(line.value);
    }

    void finishDevice() {
        if (!device_)
            return;
        const std::size_t before = report_.accessories.size();
        // The words of the name come first: they know AirPods from other headphones.
        const std::string symbol = symbolForAccessory(device_->name + ' ' + device_->kind);
        appendAccessory(report_.accessories, {device_->name, 0, false, symbol, device_->address}, device_->levels);
        if (report_.accessories.size() == before)
            report_.others.push_back(device_->name);
        device_.reset();
    }

    BluetoothReport report_;
    std::optional<std::size_t> sectionIndent_;
    std::optional<std::size_t> deviceIndent_;
    bool isConnected_ = false;
    std::optional<Device> device_;
};

} // namespace

BluetoothReport parseBluetoothReport(std::string_view text) {
    return Reader().read(text);
}

} // namespace vantrix
