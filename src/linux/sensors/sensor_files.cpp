#include "linux/sensors/sensor_files.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"
#include "support/utf8.h"

namespace vantrix {

std::string readName(const std::string& path) {
    constexpr std::size_t longest = 64;
    std::string text = readStart(path, longest).value_or("");
    text.erase(std::find(text.begin(), text.end(), '\n'), text.end());
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; }, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    return repairedUTF8(text);
}

FileProbe::FileProbe(const std::string& path, double scale, const std::string& faultPath) : file_(path), scale_(scale) {
    if (!faultPath.empty() && pathExists(faultPath))
        fault_.emplace(faultPath);
}

std::optional<double> FileProbe::read() {
    if (fault_ && fault_->read() == "1\n")
        return std::nullopt;
    const auto value = readNumber(file_);
    return value ? std::optional(*value * scale_) : std::nullopt;
}

std::optional<double> readNumber(KernelFile& file) {
    const auto text = file.read();
    const auto value = text ? parseInteger(*text, "\n") : std::nullopt;
    return value ? std::optional(static_cast<double>(*value)) : std::nullopt;
}

} // namespace vantrix
