#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

// Append a value as JSON. Numbers are the shortest that stand for the same value; one without a fraction is written as
// an integer, one that is not finite as null.
void appendJson(std::string& json, bool value);
void appendJson(std::string& json, int value);
void appendJson(std::string& json, std::int64_t value);
void appendJson(std::string& json, std::uint64_t value);
void appendJson(std::string& json, double value);
/// UTF-8; what is not becomes U+FFFD.
void appendJson(std::string& json, std::string_view text);
inline void appendJson(std::string& json, const std::string& text) {
    appendJson(json, std::string_view(text));
}
void appendJson(std::string& json, const char*) = delete;

/// Appends an object, which ends with this. Records are appended by a function `appendJson` of their own.
class JsonObject {
  public:
    explicit JsonObject(std::string& json) : json_(json) { json_ += '{'; }
    ~JsonObject() { json_ += '}'; }
    JsonObject(const JsonObject&) = delete;
    JsonObject& operator=(const JsonObject&) = delete;

    template<typename Value>
    void add(std::string_view name, const Value& value) {
        addName(name);
        appendValue(value);
    }
    /// Leaves out what is absent.
    template<typename Value>
    void add(std::string_view name, const std::optional<Value>& value) {
        if (value)
            add(name, *value);
    }
    /// Leaves out an object, a list or a text with nothing in it.
    template<typename Value>
    void addUnlessEmpty(std::string_view name, const Value& value) {
        constexpr std::size_t emptySize = 2; // of both braces
        const std::size_t before = json_.size();
        addName(name);
        const std::size_t begin = json_.size();
        appendValue(value);
        if (json_.size() == begin + emptySize)
            json_.resize(before);
    }

  private:
    void addName(std::string_view name) {
        if (json_.back() != '{')
            json_ += ',';
        json_.append(1, '"').append(name).append("\":");
    }

    template<typename Value>
    void appendValue(const Value& value) {
        appendJson(json_, value);
    }
    template<typename Value>
    void appendValue(const std::vector<Value>& values) {
        json_ += '[';
        for (const Value& value : values) {
            if (json_.back() != '[')
                json_ += ',';
            appendValue(value);
        }
        json_ += ']';
    }

    std::string& json_;
};

} // namespace vantrix
