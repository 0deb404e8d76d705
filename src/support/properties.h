#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

namespace vantrix {

/// What a system service says about one object: numbers, booleans and texts by key. Never allocates: keys and texts are
/// views of what outlives the dictionary, and only the keys that a rule asks for are ever put in.
class Properties {
  public:
    /// An unsigned 64-bit number is kept with its bits as they are.
    using Value = std::variant<bool, std::int64_t, double, std::string_view>;

    static constexpr std::size_t capacity = 12;

    Properties() = default;
    Properties(std::initializer_list<std::pair<std::string_view, Value>> values) {
        for (const auto& [key, value] : values)
            set(key, value);
    }

    void clear() { count_ = 0; }

    /// Replaces the value of a key. More than `capacity` keys are a fault.
    void set(std::string_view key, Value value);

    /// A number without its fraction; absent when the key is missing or its value is no number within 64 bits.
    std::optional<std::int64_t> integer(std::string_view key) const;
    /// Absent when the key is missing or its value is no finite number.
    std::optional<double> number(std::string_view key) const;
    /// Absent when the key is missing or its value is no boolean.
    std::optional<bool> boolean(std::string_view key) const;
    /// Absent when the key is missing or its value is no text.
    std::optional<std::string_view> text(std::string_view key) const;

  private:
    const Value* find(std::string_view key) const;

    std::array<std::pair<std::string_view, Value>, capacity> values_;
    std::size_t count_ = 0;
};

} // namespace vantrix
