#include <algorithm>
#include <cstring>

#include "macos/simulated/machine.h"

using namespace vantrix::simulated;
using Kind = Object::Kind;

const CFAllocatorRef kCFAllocatorDefault = nullptr;
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

Object& number(CFNumberRef reference, const char* function) {
    Object& found = object(reference, function);
    return found.kind == Kind::fraction ? found : object(reference, Kind::whole, function);
}

std::string keyText(const void* key) {
    return object(key, Kind::text, "a dictionary's key").text;
}

} // namespace

CFTypeID CFGetTypeID(CFTypeRef reference) {
    return idOf(object(reference, "CFGetTypeID").kind);
}

Boolean CFEqual(CFTypeRef a, CFTypeRef b) {
    return object(a, Kind::text, "CFEqual").text == object(b, Kind::text, "CFEqual").text;
}

CFTypeID CFStringGetTypeID() {
    return idOf(Kind::text);
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* text, CFStringEncoding) {
    return as<CFStringRef>(fails("CFStringCreateWithCString") ? nullptr : make(text));
}

/// The fixtures' texts are in ASCII.
CFIndex CFStringGetLength(CFStringRef string) {
    return static_cast<CFIndex>(object(string, Kind::text, "CFStringGetLength").text.size());
}

CFIndex CFStringGetBytes(CFStringRef string, CFRange range, CFStringEncoding encoding, UInt8, Boolean, UInt8* buffer,
                         CFIndex room, CFIndex* used) {
    const std::string text =
        object(string, Kind::text, "CFStringGetBytes")
            .text.substr(static_cast<std::size_t>(range.location), static_cast<std::size_t>(range.length));
    const auto size = static_cast<CFIndex>(text.size());
    *used = encoding != kCFStringEncodingUTF8 ? 0 : buffer ? std::min(room, size) : size;
    if (buffer)
        std::memcpy(buffer, text.data(), static_cast<std::size_t>(*used));
    return *used;
}

CFTypeID CFNumberGetTypeID() {
    return idOf(Kind::whole);
}

CFNumberRef CFNumberCreate(CFAllocatorRef, CFNumberType type, const void* value) {
    const bool is32 = type == kCFNumberSInt32Type;
    const bool isMade = is32 && !fails("CFNumberCreate");
    return as<CFNumberRef>(isMade ? make(*static_cast<const std::int32_t*>(value)) : nullptr);
}

Boolean CFNumberGetValue(CFNumberRef reference, CFNumberType type, void* value) {
    const Object& from = number(reference, "CFNumberGetValue");
    const bool isFraction = from.kind == Kind::fraction;
    if (type == kCFNumberSInt64Type)
        *static_cast<std::int64_t*>(value) = isFraction ? static_cast<std::int64_t>(from.fraction) : from.whole;
    else
        *static_cast<double*>(value) = isFraction ? from.fraction : static_cast<double>(from.whole);
    return !fails("CFNumberGetValue");
}

Boolean CFNumberIsFloatType(CFNumberRef reference) {
    return number(reference, "CFNumberIsFloatType").kind == Kind::fraction;
}

CFTypeID CFBooleanGetTypeID() {
    return idOf(Kind::truth);
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
    return object(boolean, Kind::truth, "CFBooleanGetValue").truth;
}

CFTypeID CFArrayGetTypeID() {
    return idOf(Kind::list);
}

CFArrayRef CFArrayCreate(CFAllocatorRef, const void** values, CFIndex count, const CFArrayCallBacks*) {
    if (fails("CFArrayCreate"))
        return nullptr;
    std::vector<Ref> members;
    std::transform(values, values + count, std::back_inserter(members), Ref::retained);
    return as<CFArrayRef>(makeList(std::move(members)));
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return static_cast<CFIndex>(object(array, Kind::list, "CFArrayGetCount").list.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    // What a list of the system holds is of one type; a member may still be null.
    const auto& members = object(array, Kind::list, "CFArrayGetValueAtIndex").list;
    return fails("CFArrayGetValueAtIndex") ? nullptr : members.at(static_cast<std::size_t>(index)).get();
}

CFTypeID CFDictionaryGetTypeID() {
    return idOf(Kind::dictionary);
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks*, const CFDictionaryValueCallBacks*) {
    if (fails("CFDictionaryCreate"))
        return nullptr;
    Object* const made = make(Dictionary());
    for (CFIndex i = 0; i < count; ++i)
        made->entries[keyText(keys[i])] = Ref::retained(values[i]);
    return as<CFDictionaryRef>(made);
}

const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key) {
    const Object& from = object(dictionary, Kind::dictionary, "CFDictionaryGetValue");
    return heldAnswer("CFDictionaryGetValue", from.at(keyText(key)));
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    return static_cast<CFIndex>(object(dictionary, Kind::dictionary, "CFDictionaryGetCount").entries.size());
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values) {
    for (const auto& [key, value] : object(dictionary, Kind::dictionary, "CFDictionaryGetKeysAndValues").entries) {
        *keys++ = __CFStringMakeConstantString(key.c_str());
        *values++ = value.get();
    }
}

CFDataRef CFDataCreate(CFAllocatorRef, const UInt8* bytes, CFIndex length) {
    if (fails("CFDataCreate"))
        return nullptr;
    Object* const data = makeOpaque();
    data->text.assign(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
    return as<CFDataRef>(data);
}

CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef, CFDataRef data, CFOptionFlags, CFPropertyListFormat*,
                                               CFErrorRef*) {
    const auto found = mac().propertyLists.find(object(data, Kind::opaque, "CFPropertyListCreateWithData").text);
    return answer("CFPropertyListCreateWithData", found == mac().propertyLists.end() ? nullptr : make(found->second));
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const UInt8* buffer, CFIndex length, Boolean) {
    if (fails("CFURLCreateFromFileSystemRepresentation"))
        return nullptr;
    Object* const url = makeOpaque();
    url->text.assign(reinterpret_cast<const char*>(buffer), static_cast<std::size_t>(length));
    return as<CFURLRef>(url);
}

CFDictionaryRef CFURLCopyResourcePropertiesForKeys(CFURLRef url, CFArrayRef keys, CFErrorRef*) {
    leaveToPool();
    const bool isRoot = object(url, Kind::opaque, "CFURLCopyResourcePropertiesForKeys").text == "/";
    if (!isRoot || !mac().volume || fails("CFURLCopyResourcePropertiesForKeys"))
        return nullptr;
    Object* const all = make(*mac().volume);
    Object* const asked = make(Dictionary());
    for (const Ref& key : object(keys, Kind::list, "CFURLCopyResourcePropertiesForKeys").list) {
        if (const Object* const value = all->at(keyText(key.get())))
            asked->entries[keyText(key.get())] = Ref::retained(value);
    }
    CFRelease(all);
    return as<CFDictionaryRef>(asked);
}
