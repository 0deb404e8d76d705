#include <algorithm>
#include <cstring>

#include "macos/simulated/machine.h"

using namespace vantrix::simulated;

const CFAllocatorRef kCFAllocatorDefault = nullptr;
// Nobody looks into these.
struct CFArrayCallBacks {};
struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};
const CFArrayCallBacks kCFTypeArrayCallBacks{};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};
const CFStringRef kCFURLVolumeTotalCapacityKey = CFSTR("NSURLVolumeTotalCapacityKey");
const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey =
    CFSTR("NSURLVolumeAvailableCapacityForImportantUsageKey");

namespace {

CFTypeID idOf(Kind kind) {
    return static_cast<CFTypeID>(kind == Kind::fraction ? Kind::whole : kind); // both are numbers
}

Object& number(CFNumberRef reference, const char* function = __builtin_FUNCTION()) {
    Object& found = object(reference, function);
    return found.kind == Kind::fraction ? found : object(reference, Kind::whole, function);
}

} // namespace

CFTypeID CFGetTypeID(CFTypeRef reference) {
    return idOf(object(reference).kind);
}

Boolean CFEqual(CFTypeRef a, CFTypeRef b) {
    return text(a) == text(b);
}

CFTypeID CFStringGetTypeID() {
    return idOf(Kind::text);
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* text, CFStringEncoding) {
    return as<CFStringRef>(fails() ? nullptr : make(text));
}

/// The fixtures' texts are in ASCII.
CFIndex CFStringGetLength(CFStringRef string) {
    return static_cast<CFIndex>(text(string).size());
}

CFIndex CFStringGetBytes(CFStringRef string, CFRange range, CFStringEncoding encoding, UInt8, Boolean, UInt8* buffer,
                         CFIndex room, CFIndex* used) {
    const auto asked = text(string).substr(static_cast<std::size_t>(range.location));
    const CFIndex size = std::min(static_cast<CFIndex>(asked.size()), range.length);
    *used = encoding != kCFStringEncodingUTF8 ? 0 : buffer ? std::min(room, size) : size;
    if (buffer)
        std::memcpy(buffer, asked.data(), static_cast<std::size_t>(*used));
    return *used;
}

CFTypeID CFNumberGetTypeID() {
    return idOf(Kind::whole);
}

CFNumberRef CFNumberCreate(CFAllocatorRef, CFNumberType type, const void* value) {
    const bool isMade = type == kCFNumberSInt32Type && !fails();
    return as<CFNumberRef>(isMade ? make(*static_cast<const std::int32_t*>(value)) : nullptr);
}

Boolean CFNumberGetValue(CFNumberRef reference, CFNumberType type, void* value) {
    const Value& from = number(reference).value;
    const auto* const whole = std::get_if<std::int64_t>(&from);
    if (type == kCFNumberSInt64Type)
        *static_cast<std::int64_t*>(value) = whole ? *whole : static_cast<std::int64_t>(std::get<double>(from));
    else
        *static_cast<double*>(value) = whole ? static_cast<double>(*whole) : std::get<double>(from);
    return !fails();
}

Boolean CFNumberIsFloatType(CFNumberRef reference) {
    return number(reference).kind == Kind::fraction;
}

CFTypeID CFBooleanGetTypeID() {
    return idOf(Kind::truth);
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return std::get<bool>(object(boolean, Kind::truth).value);
}

CFTypeID CFArrayGetTypeID() {
    return idOf(Kind::list);
}

CFArrayRef CFArrayCreate(CFAllocatorRef, const void** values, CFIndex count, const CFArrayCallBacks*) {
    if (fails())
        return nullptr;
    std::vector<Ref> members;
    for (CFIndex i = 0; i < count; ++i)
        members.emplace_back(retain(&object(values[i])));
    return as<CFArrayRef>(makeList(std::move(members)));
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return static_cast<CFIndex>(object(array, Kind::list).list.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    // What a list of the system holds is of one type; a member may still be null.
    const auto& members = object(array, Kind::list).list;
    return fails() ? nullptr : members.at(static_cast<std::size_t>(index)).get();
}

CFTypeID CFDictionaryGetTypeID() {
    return idOf(Kind::dictionary);
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks*, const CFDictionaryValueCallBacks*) {
    if (fails())
        return nullptr;
    Object* const made = make(Dictionary());
    for (CFIndex i = 0; i < count; ++i)
        made->entries.emplace(text(keys[i]), retain(&object(values[i])));
    return as<CFDictionaryRef>(made);
}

const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key) {
    return heldAnswer(object(dictionary, Kind::dictionary).at(text(key)));
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    return static_cast<CFIndex>(object(dictionary, Kind::dictionary).entries.size());
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values) {
    for (const auto& [key, value] : object(dictionary, Kind::dictionary).entries) {
        *keys++ = __CFStringMakeConstantString(key.c_str());
        *values++ = value.get();
    }
}

// Data and the path of a URL are kept as texts.

CFDataRef CFDataCreate(CFAllocatorRef, const UInt8* bytes, CFIndex length) {
    return as<CFDataRef>(fails() ? nullptr : make(std::string(bytes, bytes + length)));
}

CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef, CFDataRef data, CFOptionFlags, CFPropertyListFormat*,
                                               CFErrorRef*) {
    const auto found = mac().propertyLists.find(text(data));
    return answer(found == mac().propertyLists.end() ? nullptr : make(found->second));
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* buffer, CFIndex length, Boolean) {
    return as<CFURLRef>(fails() ? nullptr : make(std::string(buffer, buffer + length)));
}

CFDictionaryRef CFURLCopyResourcePropertiesForKeys(CFURLRef url, CFArrayRef keys, CFErrorRef*) {
    leaveToPool();
    if (text(url) != mac().volumePoint || !mac().volume || fails())
        return nullptr;
    Dictionary asked;
    for (const Ref& key : object(keys, Kind::list).list) {
        const auto found = mac().volume->find(text(key.get()));
        if (found != mac().volume->end())
            asked.insert(*found);
    }
    return as<CFDictionaryRef>(make(asked));
}
