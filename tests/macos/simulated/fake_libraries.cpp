#include <dlfcn.h>

#include <cstring>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;
using Kind = Object::Kind;

namespace {

// The HID event system.

CFTypeRef createClient(CFAllocatorRef) {
    return fails("IOHIDEventSystemClientCreate") ? nullptr : makeOpaque();
}

void setMatching(CFTypeRef client, CFDictionaryRef matching) {
    object(client, Kind::opaque, "IOHIDEventSystemClientSetMatching").entries["matching"] = Ref::retained(matching);
}

bool asksForTemperatures(const Object& client) {
    const Object* const matching = client.at("matching");
    return matching && matching->entries.size() == 2 && matching->at("PrimaryUsagePage")->whole == 65280 &&
           matching->at("PrimaryUsage")->whole == 5;
}

CFArrayRef copyServices(CFTypeRef client) {
    if (!asksForTemperatures(object(client, Kind::opaque, "IOHIDEventSystemClientCopyServices")))
        return nullptr;
    std::vector<Ref> services;
    for (std::size_t i = 0; i < mac().sensors->size(); ++i)
        services.emplace_back(makeOpaque(static_cast<std::int64_t>(i)));
    return as<CFArrayRef>(answer("IOHIDEventSystemClientCopyServices", makeList(std::move(services))));
}

const TemperatureSensor& sensorOf(CFTypeRef service, const char* function) {
    return mac().sensors->at(static_cast<std::size_t>(object(service, Kind::opaque, function).whole));
}

CFTypeRef copyProperty(CFTypeRef service, CFStringRef key) {
    const auto& product = sensorOf(service, "IOHIDServiceClientCopyProperty").product;
    const bool isAsked = object(key, Kind::text, "IOHIDServiceClientCopyProperty").text == "Product";
    return answer("IOHIDServiceClientCopyProperty", isAsked && product ? make(*product) : nullptr);
}

CFTypeRef copyEvent(CFTypeRef service, std::int64_t type, std::int64_t options, std::int64_t more) {
    const auto& celsius = sensorOf(service, "IOHIDServiceClientCopyEvent").celsius;
    const bool isTaken = celsius && type == 15 && options == 0 && more == 0;
    return isTaken && !fails("IOHIDServiceClientCopyEvent") ? make(Dictionary{{"level", *celsius}}) : nullptr;
}

double getFloat(CFTypeRef event, std::int32_t field) {
    return field == 0xf0000 ? object(event, Kind::dictionary, "IOHIDEventGetFloatValue").at("level")->fraction : 0.0;
}

} // namespace

namespace vantrix::simulated {

Functions& hidFunctions() {
    static Functions functions{
        {"IOHIDEventSystemClientCreate", reinterpret_cast<void*>(createClient)},
        {"IOHIDEventSystemClientSetMatching", reinterpret_cast<void*>(setMatching)},
        {"IOHIDEventSystemClientCopyServices", reinterpret_cast<void*>(copyServices)},
        {"IOHIDServiceClientCopyProperty", reinterpret_cast<void*>(copyProperty)},
        {"IOHIDServiceClientCopyEvent", reinterpret_cast<void*>(copyEvent)},
        {"IOHIDEventGetFloatValue", reinterpret_cast<void*>(getFloat)},
    };
    return functions;
}

} // namespace vantrix::simulated

void* dlopen(const char* path, int mode) {
    const bool isEnergy = path && std::strcmp(path, "/usr/lib/libIOReport.dylib") == 0;
    const bool isMissing = mode != RTLD_NOW || (path && !(isEnergy && mac().energy));
    if (isMissing || fails("dlopen"))
        return nullptr;
    ++mac().libraries;
    return isEnergy ? &energyFunctions() : &hidFunctions();
}

void* dlsym(void* handle, const char* name) {
    const auto& functions = *static_cast<Functions*>(handle);
    const bool isThere = &functions == &energyFunctions() || mac().sensors;
    const auto found = functions.find(name);
    const bool isFound = isThere && found != functions.end() && !fails(std::string("dlsym ") + name);
    return isFound ? found->second : nullptr;
}

int dlclose(void*) {
    if (--mac().libraries < 0)
        vantrix::fatalError("dlclose of a library that is not open");
    return 0;
}
