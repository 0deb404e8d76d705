#include "linux/power_supply/power_supply.h"

#include "linux/kernel/text_scan.h"
#include "support/ascii_case.h"
#include "support/integer.h"

namespace vantrix {
namespace {

struct Key {
    std::string_view name; ///< as in uevent; the file's in lower case
    SupplyState::Number number;
};

constexpr Key keys[] = {
    {"PRESENT", SupplyState::present},
    {"ONLINE", SupplyState::online},
    {"CAPACITY", SupplyState::capacity},
    {"ENERGY_NOW", SupplyState::energyNow},
    {"ENERGY_FULL", SupplyState::energyFull},
    {"ENERGY_FULL_DESIGN", SupplyState::energyFullDesign},
    {"CHARGE_NOW", SupplyState::chargeNow},
    {"CHARGE_FULL", SupplyState::chargeFull},
    {"CHARGE_FULL_DESIGN", SupplyState::chargeFullDesign},
    {"VOLTAGE_NOW", SupplyState::voltageNow},
    {"VOLTAGE_MIN_DESIGN", SupplyState::voltageMinDesign},
    {"POWER_NOW", SupplyState::powerNow},
    {"CURRENT_NOW", SupplyState::currentNow},
    {"CYCLE_COUNT", SupplyState::cycleCount},
    {"TEMP", SupplyState::temperature},
    {"TIME_TO_EMPTY_NOW", SupplyState::timeToEmpty},
    {"TIME_TO_FULL_NOW", SupplyState::timeToFull},
    {"TIME_TO_EMPTY_AVG", SupplyState::meanTimeToEmpty},
    {"TIME_TO_FULL_AVG", SupplyState::meanTimeToFull},
};

constexpr std::string_view prefix = "POWER_SUPPLY_";

std::optional<std::int64_t> plausible(std::optional<std::int64_t> value) {
    constexpr std::int64_t limit = 1'000'000'000'000; // a megawatt hour
    return value && *value > -limit && *value < limit ? value : std::nullopt;
}

SupplyState::Status parseStatus(std::string_view text) {
    using Status = SupplyState::Status;
    constexpr std::pair<std::string_view, Status> words[] = {{"Charging", Status::charging},
                                                             {"Discharging", Status::discharging},
                                                             {"Not charging", Status::notCharging},
                                                             {"Full", Status::full}};
    for (const auto& [word, status] : words) {
        if (text == word)
            return status;
    }
    return Status::unknown;
}

void store(SupplyState& state, std::string_view name, std::string_view value) {
    if (name == "STATUS") {
        state.status = parseStatus(value);
        return;
    }
    for (const Key& key : keys) {
        if (name.size() != key.name.size() || name != key.name)
            continue;
        state.numbers[key.number] = plausible(parseInteger(value));
        return;
    }
}

} // namespace

std::optional<SupplyState> parseSupply(std::string_view uevent) {
    SupplyState state;
    bool isSupply = false;
    while (const auto line = takeLine(uevent)) {
        const auto equals = line->find('=');
        if (!line->starts_with(prefix) || equals == std::string_view::npos)
            continue;
        isSupply = true;
        store(state, line->substr(prefix.size(), equals - prefix.size()), line->substr(equals + 1));
    }
    return isSupply ? std::optional(state) : std::nullopt;
}

PowerSupply::PowerSupply(std::string folder) : folder_(std::move(folder)), all_(folder_ + "/uevent") {}

std::optional<SupplyState> PowerSupply::read() {
    const auto text = all_.read();
    const auto state = text ? parseSupply(*text) : std::nullopt;
    return state ? state : readSingly();
}

std::optional<SupplyState> PowerSupply::readSingly() {
    if (single_.empty()) {
        for (const Key& key : keys)
            single_.emplace_back(folder_ + '/' + loweredASCII(key.name));
        single_.emplace_back(folder_ + "/status");
    }
    SupplyState state;
    bool isSupply = false;
    for (std::size_t i = 0; i < std::size(keys); ++i) {
        if (const auto text = single_[i].read()) {
            isSupply = true;
            store(state, keys[i].name, text->substr(0, text->find('\n')));
        }
    }
    if (const auto status = single_.back().read())
        state.status = parseStatus(status->substr(0, status->find('\n')));
    return isSupply ? std::optional(state) : std::nullopt;
}

} // namespace vantrix
