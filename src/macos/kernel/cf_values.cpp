#include "macos/kernel/cf_values.h"

namespace vantrix {
namespace {

std::optional<Properties::Value> valueOf(CFTypeRef object, std::deque<std::string>& texts) {
    if (const auto boolean = as<CFBooleanRef>(object))
        return CFBooleanGetValue(boolean) != 0;
    if (const auto whole = wholeNumberOf(object))
        return *whole;
    if (const auto number = as<CFNumberRef>(object)) {
        double fraction = 0.0;
        return CFNumberGetValue(number, kCFNumberFloat64Type, &fraction) ? std::optional<Properties::Value>(fraction)
                                                                         : std::nullopt;
    }
    auto text = textOf(object);
    return text ? std::optional<Properties::Value>(texts.emplace_back(std::move(*text))) : std::nullopt;
}

} // namespace

std::optional<std::string> textOf(CFTypeRef object) {
    const auto string = as<CFStringRef>(object);
    if (!string)
        return std::nullopt;
    const CFRange all = CFRangeMake(0, CFStringGetLength(string));
    const auto convert = [&](UInt8* to, CFIndex room) {
        CFIndex used = 0;
        CFStringGetBytes(string, all, kCFStringEncodingUTF8, '?', false, to, room, &used);
        return used;
    };
    std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(reinterpret_cast<UInt8*>(text.data()), static_cast<CFIndex>(text.size()));
    return text;
}

std::optional<std::int64_t> wholeNumberOf(CFTypeRef object) {
    const auto number = as<CFNumberRef>(object);
    std::int64_t whole = 0;
    const bool isWhole =
        number && !CFNumberIsFloatType(number) && CFNumberGetValue(number, kCFNumberSInt64Type, &whole);
    return isWhole ? std::optional(whole) : std::nullopt;
}

PropertyTable::PropertyTable(std::initializer_list<const char*> names) {
    for (const char* name : names)
        keys_.push_back({name, {}});
}

void PropertyTable::clear() {
    rows_.clear();
    texts_.clear();
}

const Properties& PropertyTable::add(CFDictionaryRef dictionary) {
    Properties& row = rows_.emplace_back();
    for (Key& key : keys_) {
        if (!key.text)
            key.text = CFRef(CFStringCreateWithCString(kCFAllocatorDefault, key.name, kCFStringEncodingUTF8));
        if (!dictionary || !key.text)
            continue;
        if (const auto value = valueOf(CFDictionaryGetValue(dictionary, key.text.get()), texts_))
            row.set(key.name, *value);
    }
    return row;
}

} // namespace vantrix
