#include "accessories/accessory_reading.h"

#include <algorithm>
#include <cstdlib>

#include "accessories/accessory_symbol.h"
#include "support/ascii_case.h"

namespace vantrix {
namespace {

using Readings = std::vector<AccessoryReading>;
using Unpaired = std::vector<AccessoryReading*>;

/// "aa-bb-…" and "AA:BB:…" are one address.
std::string hexDigits(std::string_view address) {
    std::string digits = loweredASCII(address);
    std::erase_if(digits, [](char c) { return c == ':' || c == '-'; });
    return digits;
}

void fillIn(std::string& text, const std::string& other) {
    if (text.empty())
        text = other;
}

void renew(AccessoryReading& known, const AccessoryReading& news) {
    known.battery.percent = news.battery.percent;
    known.battery.isCharging |= news.battery.isCharging;
    if (known.battery.symbol == unspecificSymbol)
        known.battery.symbol = news.battery.symbol;
    if (news.isNamed || !known.isNamed) {
        known.battery.name = news.battery.name;
        known.isNamed = news.isNamed;
    }
    fillIn(known.address, news.address);
    fillIn(known.identifier, news.identifier);
}

/// Two drivers may report one device; the later one stands.
Readings withoutRepetitions(const Readings& readings) {
    Readings distinct;
    for (const AccessoryReading& reading : readings) {
        const auto known = std::find_if(distinct.begin(), distinct.end(), [&](const auto& other) {
            return haveOneIdentity(other, reading).value_or(false);
        });
        if (known == distinct.end())
            distinct.push_back(reading);
        else
            renew(*known, reading);
    }
    return distinct;
}

/// The smaller, the likelier it is that both are of one thing; absent when they are not.
std::optional<int> distance(const AccessoryReading& scanned, const AccessoryReading& live) {
    constexpr int certain = -1;
    if (const auto isSame = haveOneIdentity(scanned, live))
        return *isSame ? std::optional(certain) : std::nullopt;
    if (scanned.battery.name != live.battery.name)
        return std::nullopt;
    return std::abs(scanned.battery.percent - live.battery.percent);
}

struct Pair {
    Unpaired::iterator scanned;
    Readings::iterator live;
    int distance;
};

/// Of several at one distance the first.
std::optional<Pair> nearestPair(Unpaired& scanned, Readings& live) {
    std::optional<Pair> nearest;
    for (auto known = scanned.begin(); known != scanned.end(); ++known) {
        for (auto news = live.begin(); news != live.end(); ++news) {
            const auto apart = distance(**known, *news);
            if (apart && (!nearest || *apart < nearest->distance))
                nearest = Pair{known, news, *apart};
        }
    }
    return nearest;
}

} // namespace

std::optional<bool> haveOneIdentity(const AccessoryReading& a, const AccessoryReading& b) {
    if (a.isCase != b.isCase)
        return false;
    if (!a.address.empty() && !b.address.empty())
        return hexDigits(a.address) == hexDigits(b.address);
    if (!a.identifier.empty() && !b.identifier.empty())
        return a.identifier == b.identifier;
    return std::nullopt;
}

std::vector<AccessoryBattery> batteriesOf(const Readings& readings) {
    std::vector<AccessoryBattery> batteries;
    batteries.reserve(readings.size());
    for (const AccessoryReading& reading : readings)
        batteries.push_back(reading.battery);
    return batteries;
}

Readings combineAccessories(const Readings& scanned, const Readings& live) {
    Readings combined = withoutRepetitions(scanned);
    Readings alone = withoutRepetitions(live);
    Unpaired unpaired;
    for (AccessoryReading& reading : combined)
        unpaired.push_back(&reading);
    while (const auto pair = nearestPair(unpaired, alone)) {
        renew(**pair->scanned, *pair->live);
        unpaired.erase(pair->scanned);
        alone.erase(pair->live);
    }
    combined.insert(combined.end(), alone.begin(), alone.end());
    return combined;
}

} // namespace vantrix
