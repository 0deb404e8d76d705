#include <algorithm>
#include <cstring>

#include <IOKit/IOKitLib.h>

#include "macos/simulated/machine.h"
#include "support/checked.h"

using namespace vantrix::simulated;

const mach_port_t kIOMainPortDefault = 9;

namespace {

std::uint32_t open(Ref held) {
    mac().handles[mac().nextHandle] = std::move(held);
    return mac().nextHandle++;
}

Object& held(std::uint32_t handle, Kind kind, const char* function = __builtin_FUNCTION()) {
    return object(mac().handles.contains(handle) ? mac().handles[handle].get() : nullptr, kind, function);
}

/// The services of the class matched. Takes the reference.
std::vector<Ref> takeMatches(CFDictionaryRef matching) {
    const Ref taken(&object(matching, Kind::dictionary));
    std::vector<Ref> matches;
    for (const auto& [className, properties] : mac().services) {
        if (className == text(taken.get()->at("IOProviderClass")))
            matches.emplace_back(make(properties));
    }
    return matches;
}

// The controller's side.

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

/// One exchange of 80-byte records; the answer is zeros before.
void answerAsController(const std::uint8_t* question, std::uint8_t* answer) {
    constexpr std::uint8_t keyIsMissing = 0x84;
    const auto& keys = mac().controllerKeys;
    const auto key = std::find_if(keys.begin(), keys.end(),
                                  [&](const auto& entry) { return codeOf(entry.first) == numberAt(question, 0); });
    if (key == keys.end()) {
        answer[40] = keyIsMissing;
        return;
    }
    const auto& [type, bytes] = key->second;
    if (question[42] == 9) {
        const std::uint32_t sizeAndType[] = {static_cast<std::uint32_t>(bytes.size()), codeOf(type)};
        std::memcpy(answer + 28, sizeAndType, sizeof sizeAndType);
    } else if (question[42] == 5 && numberAt(question, 28) == bytes.size()) {
        std::memcpy(answer + 48, bytes.data(), bytes.size());
    } else {
        answer[40] = 1;
    }
}

} // namespace

CFMutableDictionaryRef IOServiceMatching(const char* name) {
    return as<CFMutableDictionaryRef>(fails() ? nullptr : make(Dictionary{{"IOProviderClass", name}}));
}

io_service_t IOServiceGetMatchingService(mach_port_t, CFDictionaryRef matching) {
    const auto matches = takeMatches(matching);
    return matches.empty() || fails() ? IO_OBJECT_NULL : open(matches.front());
}

kern_return_t IOServiceGetMatchingServices(mach_port_t, CFDictionaryRef matching, io_iterator_t* existing) {
    auto matches = takeMatches(matching);
    const Outcome outcome = outcomeOf();
    if (outcome == Outcome::works)
        *existing = open(Ref(makeList(std::move(matches)))); // else success without an iterator
    return outcome == Outcome::fails ? KERN_FAILURE : KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
    auto& left = held(iterator, Kind::list).list;
    if (left.empty() || fails())
        return IO_OBJECT_NULL;
    const Ref next = left.front();
    left.erase(left.begin());
    return open(next);
}

kern_return_t IOObjectRelease(io_object_t released) {
    if (mac().handles.erase(released) == 0)
        vantrix::fatalError("IOObjectRelease is given null or a handle that was released");
    return KERN_SUCCESS;
}

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key, CFAllocatorRef, IOOptionBits) {
    return answer(retain(held(entry, Kind::dictionary).at(text(key))));
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef, IOOptionBits) {
    leaveToPool();
    const Object& service = held(entry, Kind::dictionary);
    const Outcome outcome = outcomeOf();
    if (outcome == Outcome::works)
        *properties = as<CFMutableDictionaryRef>(retain(&service)); // else success without a dictionary
    return outcome == Outcome::fails ? KERN_FAILURE : KERN_SUCCESS;
}

kern_return_t IOServiceOpen(io_service_t service, task_port_t task, std::uint32_t type, io_connect_t* connection) {
    held(service, Kind::dictionary);
    if (task != mach_task_self_ || type != 0 || fails())
        return KERN_FAILURE;
    *connection = open(Ref(makeOpaque()));
    return KERN_SUCCESS;
}

kern_return_t IOServiceClose(io_connect_t connection) {
    held(connection, Kind::opaque);
    return IOObjectRelease(connection);
}

kern_return_t IOConnectCallStructMethod(mach_port_t connection, std::uint32_t selector, const void* input,
                                        std::size_t inputSize, void* output, std::size_t* outputSize) {
    held(connection, Kind::opaque);
    const Outcome outcome = outcomeOf();
    if (selector != 2 || inputSize != 80 || *outputSize != 80 || outcome == Outcome::fails)
        return KERN_FAILURE;
    std::memset(output, 0, *outputSize);
    answerAsController(static_cast<const std::uint8_t*>(input), static_cast<std::uint8_t*>(output));
    *outputSize = outcome == Outcome::wrongType ? 12 : 80; // half an answer
    return KERN_SUCCESS;
}
