#include "macos/kernel/registry.h"

namespace vantrix {

bool forEachService(const char* className, const std::function<void(const IOObject&)>& visit) {
    const CFMutableDictionaryRef matching = IOServiceMatching(className); // the next call takes the reference
    io_iterator_t found = IO_OBJECT_NULL;
    if (!matching || IOServiceGetMatchingServices(kIOMainPortDefault, matching, &found) != KERN_SUCCESS)
        return false;
    const IOObject iterator(found);
    if (!iterator)
        return false;
    while (const IOObject service{IOIteratorNext(iterator.get())})
        visit(service);
    return true;
}

IOObject firstService(const char* className) {
    const CFMutableDictionaryRef matching = IOServiceMatching(className); // the next call takes the reference
    return matching ? IOObject(IOServiceGetMatchingService(kIOMainPortDefault, matching)) : IOObject();
}

CFRef<CFTypeRef> propertyOf(const IOObject& service, CFStringRef key) {
    return CFRef(IORegistryEntryCreateCFProperty(service.get(), key, kCFAllocatorDefault, 0));
}

CFRef<CFMutableDictionaryRef> propertiesOf(const IOObject& service) {
    CFRef<CFMutableDictionaryRef> properties;
    const bool isRead =
        IORegistryEntryCreateCFProperties(service.get(), properties.out(), kCFAllocatorDefault, 0) == KERN_SUCCESS;
    return isRead ? std::move(properties) : CFRef<CFMutableDictionaryRef>();
}

} // namespace vantrix
