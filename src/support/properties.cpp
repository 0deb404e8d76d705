#include "support/properties.h"

#include <algorithm>
#include <cmath>

#include "support/checked.h"

namespace vantrix {
namespace {

template<typename Kind>
std::optional<Kind> held(const Properties::Value* value) {
    const Kind* const kind = value ? std::get_if<Kind>(value) : nullptr;
    return kind ? std::optional(*kind) : std::nullopt;
}

} // namespace

void Properties::set(std::string_view key, Value value) {
    std::size_t place = 0;
    while (place < count_ && values_[place].first != key)
        ++place;
    if (place == capacity)
        fatalError("a dictionary of properties overflows");
    count_ = std::max(count_, place + 1);
    values_[place] = {key, value};
}

const Properties::Value* Properties::find(std::string_view key) const {
    for (std::size_t i = 0; i < count_; ++i) {
        if (values_[i].first == key)
            return &values_[i].second;
    }
    return nullptr;
}

std::optional<std::int64_t> Properties::integer(std::string_view key) const {
    const Value* const value = find(key);
    if (const auto fraction = held<double>(value)) {
        constexpr double limit = 9.2e18;
        return std::abs(*fraction) < limit ? std::optional(static_cast<std::int64_t>(*fraction)) : std::nullopt;
    }
    return held<std::int64_t>(value);
}

std::optional<double> Properties::number(std::string_view key) const {
    const Value* const value = find(key);
    if (const auto whole = held<std::int64_t>(value))
        return static_cast<double>(*whole);
    const auto fraction = held<double>(value);
    return fraction && std::isfinite(*fraction) ? fraction : std::nullopt;
}

std::optional<bool> Properties::boolean(std::string_view key) const {
    return held<bool>(find(key));
}

std::optional<std::string_view> Properties::text(std::string_view key) const {
    return held<std::string_view>(find(key));
}

} // namespace vantrix
