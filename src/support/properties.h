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

/// What a system service tells of one object: numbers, truths and texts by key. Never allocates: keys and texts are
/// views of what outlives the dictionary, and only the keys that a rule asks for are ever put in.
class Properties {
  public:
    /// A number that is unsigned in its register keeps its 64 bits.
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

    /// A number with its fraction cut off; absent when the key is missing or no number within 64 bits.
    std::optional<std::int64_t> integer(std::string_view key) const;
    /// Absent when the key is missing or no number.
    std::optional<double> number(std::string_view key) const;
    /// Absent when the key is missing or no truth value.
    std::optional<bool> boolean(std::string_view key) const;
    /// Absent when the key is missing or no text.
    std::optional<std::string_view> text(std::string_view key) const;

  private:
    const Value* find(std::string_view key) const;

    std::array<std::pair<std::string_view, Value>, capacity> values_;
    std::size_t count_ = 0;
};

} // namespace vantrix
