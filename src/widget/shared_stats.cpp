#include "widget/shared_stats.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "support/decimal_text.h"
#include "support/utf8.h"

namespace vantrix {
namespace {

void appendEscaped(std::string& json, std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x20) {
            json += "\\u00";
            json += digits[code >> 4];
            json += digits[code & 0xf];
            continue;
        }
        if (character == '"' || character == '\\')
            json += '\\';
        json += character;
    }
}

bool isASCII(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return static_cast<signed char>(character) >= 0; });
}

/// Writes one object, entry by entry.
class ObjectWriter {
  public:
    explicit ObjectWriter(std::string& json) : json_(json) { json_ += '{'; }

    void put(std::string_view key, double value) {
        putKey(key);
        isFinite_ = isFinite_ && std::isfinite(value);
        json_ += roundTripDecimal(value);
    }
    void put(std::string_view key, int value) {
        putKey(key);
        json_ += std::to_string(value);
    }
    void put(std::string_view key, bool value) {
        putKey(key);
        json_ += value ? "true" : "false";
    }
    void put(std::string_view key, const std::string& value) {
        putKey(key);
        json_ += '"';
        if (isASCII(value)) // needs no copy
            appendEscaped(json_, value);
        else
            appendEscaped(json_, repairedUTF8(value));
        json_ += '"';
    }
    template<typename T>
    void put(std::string_view key, const std::optional<T>& value) {
        if (value)
            put(key, *value);
    }

    /// Returns with the key written and its value still to be.
    void putKey(std::string_view key) {
        if (!isFirst_)
            json_ += ',';
        isFirst_ = false;
        json_ += '"';
        json_ += key;
        json_ += "\":";
    }

    /// False when a number was not finite.
    bool finish() {
        json_ += '}';
        return isFinite_;
    }

  private:
    std::string& json_;
    bool isFirst_ = true;
    bool isFinite_ = true;
};

void append(std::string& json, const AccessoryBattery& accessory) {
    ObjectWriter object(json);
    object.put("name", accessory.name);
    object.put("percent", accessory.percent);
    object.put("isCharging", accessory.isCharging);
    object.put("symbol", accessory.symbol);
    object.finish();
}

} // namespace

bool encode(const SharedStats& stats, std::string& json) {
    json.clear();
    ObjectWriter object(json);
    object.put("cpu", stats.cpu);
    object.put("memory", stats.memory);
    object.put("disk", stats.disk);
    object.put("download", stats.download);
    object.put("upload", stats.upload);
    object.put("gpu", stats.gpu);
    object.put("batteryPercent", stats.batteryPercent);
    object.put("batteryCharging", stats.batteryCharging);
    object.put("cpuTemperature", stats.cpuTemperature);
    object.put("warning", stats.warning);
    object.put("critical", stats.critical);
    object.put("updated", stats.updated);
    object.putKey("accessories");
    json += '[';
    for (const AccessoryBattery& accessory : stats.accessories) {
        if (&accessory != stats.accessories.data())
            json += ',';
        append(json, accessory);
    }
    json += ']';
    return object.finish();
}

} // namespace vantrix
