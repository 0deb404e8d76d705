#include <cstring>

#include <IOKit/IOKitLib.h>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;
using Handle = Machine::Handle;

const mach_port_t kIOMainPortDefault = 9;

namespace {

std::uint32_t open(Handle handle) {
    mac().handles[mac().nextHandle] = std::move(handle);
    return mac().nextHandle++;
}

Handle& handleOf(std::uint32_t handle, const char* function) {
    const auto found = mac().handles.find(handle);
    if (found == mac().handles.end())
        vantrix::fatalError((std::string(function) + " is given null or a handle that was released").c_str());
    return found->second;
}

const Service& serviceOf(std::uint32_t handle, const char* function) {
    const auto place = handleOf(handle, function).service;
    if (!place)
        vantrix::fatalError((std::string(function) + " is given no service").c_str());
    return mac().services.at(*place);
}

/// The places of the services of the class matched, the first last. Takes the reference.
std::vector<std::size_t> takeMatches(CFDictionaryRef matching) {
    const Ref taken(&object(matching, Object::Kind::dictionary, "IOServiceGetMatching…"));
    const std::string& className = taken.get()->entries.at("IOProviderClass").get()->text;
    std::vector<std::size_t> places;
    for (std::size_t i = mac().services.size(); i-- > 0;) {
        if (mac().services[i].className == className)
            places.push_back(i);
    }
    return places;
}

} // namespace

CFMutableDictionaryRef IOServiceMatching(const char* name) {
    return as<CFMutableDictionaryRef>(fails("IOServiceMatching") ? nullptr
                                                                 : make(Dictionary{{"IOProviderClass", name}}));
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
    const auto places = takeMatches(matching);
    return mainPort != kIOMainPortDefault || places.empty() || fails("IOServiceGetMatchingService")
               ? IO_OBJECT_NULL
               : open({{}, places.back(), false});
}

kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching, io_iterator_t* existing) {
    auto places = takeMatches(matching);
    if (mainPort != kIOMainPortDefault)
        return KERN_FAILURE;
    const Outcome outcome = outcomeOf("IOServiceGetMatchingServices");
    if (outcome != Outcome::works)
        return outcome == Outcome::fails ? KERN_FAILURE : KERN_SUCCESS; // success without an iterator
    *existing = open({std::move(places), std::nullopt, false});
    return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
    auto& left = handleOf(iterator, "IOIteratorNext").left;
    if (left.empty() || fails("IOIteratorNext"))
        return IO_OBJECT_NULL;
    const std::size_t place = left.back();
    left.pop_back();
    return open({{}, place, false});
}

kern_return_t IOObjectRelease(io_object_t released) {
    handleOf(released, "IOObjectRelease");
    mac().handles.erase(released);
    return KERN_SUCCESS;
}

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key, CFAllocatorRef,
                                          IOOptionBits options) {
    const Service& service = serviceOf(entry, "IORegistryEntryCreateCFProperty");
    const std::string& name = object(key, Object::Kind::text, "IORegistryEntryCreateCFProperty").text;
    for (const auto& [property, value] : service.properties) {
        if (property == name && options == 0)
            return answer("IORegistryEntryCreateCFProperty", make(value));
    }
    return nullptr;
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef, IOOptionBits options) {
    leaveToPool();
    const Service& service = serviceOf(entry, "IORegistryEntryCreateCFProperties");
    const Outcome outcome = outcomeOf("IORegistryEntryCreateCFProperties");
    if (options != 0 || outcome != Outcome::works)
        return outcome == Outcome::fails ? KERN_FAILURE : KERN_SUCCESS; // success without a dictionary
    *properties = as<CFMutableDictionaryRef>(make(service.properties));
    return KERN_SUCCESS;
}

kern_return_t IOServiceOpen(io_service_t service, task_port_t task, std::uint32_t type, io_connect_t* connection) {
    const Service& opened = serviceOf(service, "IOServiceOpen");
    if (!opened.opens || task != mach_task_self_ || type != 0 || fails("IOServiceOpen"))
        return KERN_FAILURE;
    *connection = open({{}, std::nullopt, true});
    return KERN_SUCCESS;
}

kern_return_t IOServiceClose(io_connect_t connection) {
    if (!handleOf(connection, "IOServiceClose").isConnection)
        vantrix::fatalError("IOServiceClose is given no connection");
    mac().handles.erase(connection);
    return KERN_SUCCESS;
}

kern_return_t IOConnectCallStructMethod(mach_port_t connection, std::uint32_t selector, const void* input,
                                        std::size_t inputSize, void* output, std::size_t* outputSize) {
    const bool isSound = handleOf(connection, "IOConnectCallStructMethod").isConnection && selector == 2 &&
                         inputSize == 80 && *outputSize == 80;
    const Outcome outcome = outcomeOf("IOConnectCallStructMethod");
    if (!isSound || outcome == Outcome::fails)
        return KERN_FAILURE;
    std::memset(output, 0, *outputSize);
    answerAsController(static_cast<const std::uint8_t*>(input), static_cast<std::uint8_t*>(output));
    *outputSize = outcome == Outcome::wrongType ? 12 : 80; // half an answer
    return KERN_SUCCESS;
}
