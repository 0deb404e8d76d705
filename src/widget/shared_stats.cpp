#include "widget/shared_stats.h"

#include <cmath>
#include <concepts>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include "support/json_object.h"

namespace vantrix {
namespace {

template<typename Stats, typename Record>
concept Either = std::same_as<Stats, Record> || std::same_as<Stats, const Record>;

/// Calls `visit` with the key and the member of each field: the one list that writing and reading go by.
template<Either<SharedStats> Stats, typename Visit>
void visitFields(Stats& stats, Visit&& visit) {
    visit("cpu", stats.cpu);
    visit("memory", stats.memory);
    visit("disk", stats.disk);
    visit("download", stats.download);
    visit("upload", stats.upload);
    visit("gpu", stats.gpu);
    visit("batteryPercent", stats.batteryPercent);
    visit("batteryCharging", stats.batteryCharging);
    visit("cpuTemperature", stats.cpuTemperature);
    visit("warning", stats.warning);
    visit("critical", stats.critical);
    visit("updated", stats.updated);
    visit("accessories", stats.accessories);
}

template<Either<AccessoryBattery> Accessory, typename Visit>
void visitFields(Accessory& accessory, Visit&& visit) {
    visit("isCharging", accessory.isCharging);
    visit("name", accessory.name);
    visit("percent", accessory.percent);
    visit("symbol", accessory.symbol);
}

template<typename Record>
void appendRecord(std::string& json, const Record& record) {
    JsonObject object(json);
    visitFields(record, [&](const char* key, const auto& field) { object.add(key, field); });
}

/// JSON has no other numbers.
bool isFinite(double field) {
    return std::isfinite(field);
}
bool isFinite(const std::optional<double>& field) {
    return !field || std::isfinite(*field);
}
template<typename T>
bool isFinite(const T& /*noDouble*/) {
    return true;
}

/// Fills records in from JSON. Each function is false when the value is missing or of another type.
struct Reader {
    template<typename Record>
    static bool readObject(const QJsonValue& value, Record& record) {
        bool isSound = value.isObject();
        visitFields(record, [&](const char* key, auto& field) {
            isSound = isSound && read(value[QLatin1StringView(key)], field);
        });
        return isSound;
    }

    static bool read(const QJsonValue& value, bool& field) {
        field = value.toBool();
        return value.isBool();
    }
    static bool read(const QJsonValue& value, int& field) {
        field = value.toInt();
        return value.isDouble() && field == value.toDouble();
    }
    static bool read(const QJsonValue& value, double& field) {
        field = value.toDouble();
        return value.isDouble();
    }
    static bool read(const QJsonValue& value, std::string& field) {
        field = value.toString().toStdString();
        return value.isString();
    }
    template<typename T>
    static bool read(const QJsonValue& value, std::optional<T>& field) {
        return value.isUndefined() || read(value, field.emplace());
    }
    static bool read(const QJsonValue& value, std::vector<AccessoryBattery>& field) {
        const QJsonArray elements = value.toArray();
        for (const QJsonValue element : elements)
            if (!readObject(element, field.emplace_back()))
                return false;
        return value.isArray();
    }
};

} // namespace

void appendJson(std::string& json, const AccessoryBattery& accessory) {
    appendRecord(json, accessory);
}

std::optional<std::string> encode(const SharedStats& stats) {
    bool isExpressible = true;
    visitFields(stats, [&](const char*, const auto& field) { isExpressible = isExpressible && isFinite(field); });
    if (!isExpressible)
        return std::nullopt;
    std::string json;
    appendRecord(json, stats);
    return json;
}

std::optional<SharedStats> decodeSharedStats(std::string_view json) {
    const auto document = QJsonDocument::fromJson(QByteArray(json.data(), static_cast<qsizetype>(json.size())));
    SharedStats stats;
    return Reader::readObject(document.object(), stats) ? std::optional(stats) : std::nullopt;
}

} // namespace vantrix
