#include <algorithm>
#include <cstring>

#include "macos/simulated/machine.h"

namespace vantrix::simulated {
namespace {

std::uint32_t numberAt(const std::uint8_t* record, std::size_t offset) {
    std::uint32_t number = 0;
    std::memcpy(&number, record + offset, sizeof number);
    return number;
}

std::uint32_t codeOf(const std::string& text) {
    std::uint32_t code = 0;
    for (const char c : text)
        code = code << 8 | static_cast<std::uint8_t>(c);
    return code;
}

} // namespace

void answerAsController(const std::uint8_t* question, std::uint8_t* answer) {
    constexpr std::uint8_t keyIsMissing = 0x84;
    const auto key = std::find_if(mac().controllerKeys.begin(), mac().controllerKeys.end(),
                                  [&](const auto& entry) { return codeOf(entry.first) == numberAt(question, 0); });
    if (key == mac().controllerKeys.end()) {
        answer[40] = keyIsMissing;
        return;
    }
    const SMCKey& held = key->second;
    const auto size = static_cast<std::uint32_t>(held.bytes.size());
    if (question[42] == 9) {
        const std::uint32_t type = codeOf(held.type);
        std::memcpy(answer + 28, &size, sizeof size);
        std::memcpy(answer + 32, &type, sizeof type);
    } else if (question[42] == 5 && numberAt(question, 28) == size) {
        std::memcpy(answer + 48, held.bytes.data(), size);
    } else {
        answer[40] = 1;
    }
}

} // namespace vantrix::simulated
