#include <dlfcn.h>

#include <cstring>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;

namespace {

// The HID event system.

CFTypeRef IOHIDEventSystemClientCreate(CFAllocatorRef) {
    return fails() ? nullptr : makeOpaque();
}

void IOHIDEventSystemClientSetMatching(CFTypeRef client, CFDictionaryRef matching) {
    object(client, Kind::opaque).entries["matching"] = Ref(retain(&object(matching, Kind::dictionary)));
}

CFArrayRef IOHIDEventSystemClientCopyServices(CFTypeRef client) {
    const Object* const matching = object(client, Kind::opaque).at("matching");
    const bool asksForTemperatures = matching && matching->entries.size() == 2 &&
                                     matching->at("PrimaryUsagePage")->value == Value(65280) &&
                                     matching->at("PrimaryUsage")->value == Value(5);
    return as<CFArrayRef>(asksForTemperatures ? answer(makeOpaqueList(*mac().sensors)) : nullptr);
}

CFTypeRef IOHIDServiceClientCopyProperty(CFTypeRef service, CFStringRef key) {
    return answer(retain(object(service, Kind::opaque).at(text(key))));
}

CFTypeRef IOHIDServiceClientCopyEvent(CFTypeRef service, std::int64_t type, std::int64_t options, std::int64_t more) {
    const bool isTaken = type == 15 && options == 0 && more == 0 && !fails();
    return isTaken ? retain(object(service, Kind::opaque).at("celsius")) : nullptr;
}

double IOHIDEventGetFloatValue(CFTypeRef event, std::int32_t field) {
    return field == 0xf0000 ? std::get<double>(object(event, Kind::fraction).value) : 0.0;
}

// The library of energy reports.

CFMutableDictionaryRef IOReportCopyChannelsInGroup(CFStringRef group, CFStringRef, std::uint64_t, std::uint64_t,
                                                   std::uint64_t) {
    const bool isThere = text(group) == "Energy Model" && !fails();
    return as<CFMutableDictionaryRef>(isThere ? make(Dictionary()) : nullptr);
}

CFTypeRef IOReportCreateSubscription(void*, CFMutableDictionaryRef channels, CFMutableDictionaryRef* subscribed,
                                     std::uint64_t, CFTypeRef) {
    object(channels, Kind::dictionary);
    const Outcome outcome = outcomeOf();
    if (outcome == Outcome::works)
        *subscribed = as<CFMutableDictionaryRef>(make(Dictionary())); // else a subscription without channels
    return outcome == Outcome::fails ? nullptr : makeOpaque();
}

CFDictionaryRef IOReportCreateSamples(CFTypeRef subscription, CFMutableDictionaryRef channels, CFTypeRef) {
    object(subscription, Kind::opaque);
    object(channels, Kind::dictionary);
    return as<CFDictionaryRef>(fails() ? nullptr : makeOpaque({{"number", mac().energySnapshots++}}));
}

std::int64_t numberOf(CFDictionaryRef snapshot) {
    return std::get<std::int64_t>(object(snapshot, Kind::opaque).at("number")->value);
}

CFDictionaryRef IOReportCreateSamplesDelta(CFDictionaryRef before, CFDictionaryRef now, CFTypeRef) {
    const bool isStep = numberOf(now) == numberOf(before) + 1;
    if (!isStep || fails())
        return nullptr;
    return as<CFDictionaryRef>(make(Dictionary{{"IOReportChannels", *mac().energy}}));
}

CFStringRef IOReportChannelGetGroup(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("group")));
}

CFStringRef IOReportChannelGetChannelName(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("name")));
}

CFStringRef IOReportChannelGetUnitLabel(CFDictionaryRef channel) {
    return as<CFStringRef>(heldAnswer(object(channel, Kind::dictionary).at("unit")));
}

std::int64_t IOReportSimpleGetIntegerValue(CFDictionaryRef channel, std::int32_t) {
    return std::get<std::int64_t>(object(channel, Kind::dictionary).at("value")->value);
}

using Functions = std::map<std::string, void*>;

// What the program can look up of either.
Functions hidFunctions{
    {"IOHIDEventSystemClientCreate", reinterpret_cast<void*>(IOHIDEventSystemClientCreate)},
    {"IOHIDEventSystemClientSetMatching", reinterpret_cast<void*>(IOHIDEventSystemClientSetMatching)},
    {"IOHIDEventSystemClientCopyServices", reinterpret_cast<void*>(IOHIDEventSystemClientCopyServices)},
    {"IOHIDServiceClientCopyProperty", reinterpret_cast<void*>(IOHIDServiceClientCopyProperty)},
    {"IOHIDServiceClientCopyEvent", reinterpret_cast<void*>(IOHIDServiceClientCopyEvent)},
    {"IOHIDEventGetFloatValue", reinterpret_cast<void*>(IOHIDEventGetFloatValue)},
};
Functions energyFunctions{
    {"IOReportCopyChannelsInGroup", reinterpret_cast<void*>(IOReportCopyChannelsInGroup)},
    {"IOReportCreateSubscription", reinterpret_cast<void*>(IOReportCreateSubscription)},
    {"IOReportCreateSamples", reinterpret_cast<void*>(IOReportCreateSamples)},
    {"IOReportCreateSamplesDelta", reinterpret_cast<void*>(IOReportCreateSamplesDelta)},
    {"IOReportChannelGetGroup", reinterpret_cast<void*>(IOReportChannelGetGroup)},
    {"IOReportChannelGetChannelName", reinterpret_cast<void*>(IOReportChannelGetChannelName)},
    {"IOReportChannelGetUnitLabel", reinterpret_cast<void*>(IOReportChannelGetUnitLabel)},
    {"IOReportSimpleGetIntegerValue", reinterpret_cast<void*>(IOReportSimpleGetIntegerValue)},
};

} // namespace

void* dlopen(const char* path, int mode) {
    const bool isEnergy = path && std::strcmp(path, "/usr/lib/libIOReport.dylib") == 0;
    const bool isMissing = mode != RTLD_NOW || (path && !(isEnergy && mac().energy));
    if (isMissing || fails())
        return nullptr;
    ++mac().libraries;
    return isEnergy ? &energyFunctions : &hidFunctions;
}

void* dlsym(void* handle, const char* name) {
    const auto& functions = *static_cast<Functions*>(handle);
    const bool isThere = &functions == &energyFunctions || mac().sensors;
    const auto found = functions.find(name);
    const bool isFound = isThere && found != functions.end() && !fails(std::string("dlsym ") + name);
    return isFound ? found->second : nullptr;
}

int dlclose(void*) {
    if (--mac().libraries < 0)
        vantrix::fatalError("dlclose of a library that is not open");
    return 0;
}
