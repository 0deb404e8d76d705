#include "sensors/smc.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vantrix {
namespace {

// Where the fields lie that are used; every other byte is zero.
constexpr std::size_t keyOffset = 0;
constexpr std::size_t dataSizeOffset = 28;
constexpr std::size_t dataTypeOffset = 32;
constexpr std::size_t resultOffset = 40;
constexpr std::size_t commandOffset = 42;
constexpr std::size_t bytesOffset = 48;

constexpr std::uint8_t readKeyInfo = 9;
constexpr std::uint8_t readBytes = 5;

void putNumber(SMC::Record& record, std::size_t offset, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        record[offset + i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t littleEndian(std::span<const std::uint8_t> bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t{bytes[i]} << (8 * i);
    return value;
}

std::uint32_t bigEndian(std::span<const std::uint8_t> bytes) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = (value << 8) | byte;
    return value;
}

std::uint32_t keyCode(std::string_view key) {
    std::uint32_t code = 0;
    for (const char c : key.substr(0, 4))
        code = (code << 8) | static_cast<std::uint8_t>(c);
    return code;
}

std::optional<double> finiteFloat(std::uint32_t bits) {
    const auto value = std::bit_cast<float>(bits);
    return std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

} // namespace

std::optional<double> SMC::value(std::string_view key) {
    Record question{};
    Record answer{};
    const auto ask = [&](std::uint8_t command) {
        question[commandOffset] = command;
        return transport_->call(question, answer) && answer[resultOffset] == 0;
    };
    putNumber(question, keyOffset, keyCode(key));
    if (!ask(readKeyInfo))
        return std::nullopt;
    const std::uint32_t size = littleEndian(std::span(answer).subspan(dataSizeOffset, 4));
    std::array<char, 4> type{}; // told as a number: the last character comes first
    std::reverse_copy(answer.begin() + dataTypeOffset, answer.begin() + dataTypeOffset + type.size(), type.begin());
    if (size < 1 || size > answer.size() - bytesOffset)
        return std::nullopt;
    putNumber(question, dataSizeOffset, size);
    if (!ask(readBytes))
        return std::nullopt;
    return decode({type.data(), type.size()}, std::span(answer).subspan(bytesOffset, size));
}

std::optional<double> SMC::decode(std::string_view type, std::span<const std::uint8_t> bytes) {
    const auto has = [&](std::string_view name, std::size_t least) { return type == name && bytes.size() >= least; };
    if (has("flt ", 4))
        return finiteFloat(littleEndian(bytes.first(4)));
    if (has("ui8 ", 1))
        return bytes[0];
    if (has("ui16", 2))
        return bigEndian(bytes.first(2));
    if (has("ui32", 4))
        return bigEndian(bytes.first(4));
    if (has("sp78", 2))
        return static_cast<std::int16_t>(bigEndian(bytes.first(2))) / 256.0;
    if (has("fpe2", 2))
        return bigEndian(bytes.first(2)) / 4.0;
    return std::nullopt;
}

} // namespace vantrix
