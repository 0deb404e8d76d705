#include "linux/capture/answers.h"

#include <charconv>
#include <fstream>

namespace vantrix {

void Answers::load(const std::string& file) {
    values_.clear();
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        const auto blank = line.find(' ');
        if (blank != std::string::npos)
            values_[line.substr(0, blank)] = line.substr(blank + 1);
    }
}

bool Answers::save(const std::string& file) const {
    std::ofstream lines(file);
    for (const auto& [key, value] : values_)
        lines << key << ' ' << value << '\n';
    return static_cast<bool>(lines.flush());
}

/// In as many digits as give the same number again.
void Answers::set(const std::string& key, double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    set(key, std::string(text, end));
}

std::string Answers::text(const std::string& key) const {
    const auto value = values_.find(key);
    return value != values_.end() ? value->second : std::string();
}

std::optional<double> Answers::number(const std::string& key) const {
    const std::string value = text(key);
    double number = 0.0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() && end == value.data() + value.size() ? std::optional(number) : std::nullopt;
}

} // namespace vantrix
