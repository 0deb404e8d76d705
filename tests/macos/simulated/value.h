#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace vantrix::simulated {

struct Value;
using List = std::vector<Value>;
using Dictionary = std::vector<std::pair<std::string, Value>>;

/// What a fixture says an object holds.
struct Value {
    Value(bool truth) : held(truth) {}
    Value(int number) : held(std::int64_t{number}) {}
    Value(std::int64_t number) : held(number) {}
    Value(double number) : held(number) {}
    Value(const char* text) : held(std::string(text)) {}
    Value(List list) : held(std::move(list)) {}
    Value(Dictionary dictionary) : held(std::move(dictionary)) {}

    std::variant<bool, std::int64_t, double, std::string, List, Dictionary> held;
};

} // namespace vantrix::simulated
