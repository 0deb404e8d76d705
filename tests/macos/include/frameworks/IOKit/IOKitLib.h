#pragma once

// The part of IOKit that the program uses, by its documented interface.

#include <cstddef>

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

extern "C" {

typedef mach_port_t io_object_t;
typedef io_object_t io_connect_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef UInt32 IOOptionBits;

#define IO_OBJECT_NULL ((io_object_t)0)

extern const mach_port_t kIOMainPortDefault;

CFMutableDictionaryRef IOServiceMatching(const char* name);
/// Both take over the reference to `matching`.
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort, CFDictionaryRef matching, io_iterator_t* existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);

CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key, CFAllocatorRef allocator,
                                          IOOptionBits options);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options);

kern_return_t IOServiceOpen(io_service_t service, task_port_t owningTask, std::uint32_t type, io_connect_t* connect);
kern_return_t IOServiceClose(io_connect_t connect);
kern_return_t IOConnectCallStructMethod(mach_port_t connection, std::uint32_t selector, const void* inputStruct,
                                        std::size_t inputStructCnt, void* outputStruct, std::size_t* outputStructCnt);

} // extern "C"
