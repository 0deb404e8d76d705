#pragma once

// The part of the Mach interface that the program uses, by its documented interface.

#include <cstdint>

extern "C" {

typedef int kern_return_t;
typedef int integer_t;
typedef unsigned int natural_t;
typedef natural_t mach_port_t;
typedef mach_port_t host_t;
typedef mach_port_t task_port_t;
typedef mach_port_t vm_map_t;
typedef std::uintptr_t vm_address_t;
typedef std::uintptr_t vm_size_t;
typedef natural_t mach_msg_type_number_t;

#define KERN_SUCCESS 0
#define KERN_FAILURE 5

extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_

mach_port_t mach_host_self(void);
kern_return_t mach_port_deallocate(task_port_t task, mach_port_t name);
kern_return_t vm_deallocate(vm_map_t task, vm_address_t address, vm_size_t size);

typedef int processor_flavor_t;
typedef integer_t* processor_info_array_t;
#define PROCESSOR_CPU_LOAD_INFO 2
#define CPU_STATE_MAX 4
#define CPU_STATE_USER 0
#define CPU_STATE_SYSTEM 1
#define CPU_STATE_IDLE 2
#define CPU_STATE_NICE 3

kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* infoCount);

typedef int host_flavor_t;
typedef integer_t* host_info64_t;
#define HOST_VM_INFO64 4

struct vm_statistics64 {
    natural_t free_count, active_count, inactive_count, wire_count;
    std::uint64_t zero_fill_count, reactivations, pageins, pageouts, faults, cow_faults, lookups, hits, purges;
    natural_t purgeable_count, speculative_count;
    std::uint64_t decompressions, compressions, swapins, swapouts;
    natural_t compressor_page_count, throttled_count, external_page_count, internal_page_count;
    std::uint64_t total_uncompressed_pages_in_compressor;
} __attribute__((aligned(8)));
typedef struct vm_statistics64 vm_statistics64_data_t;

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t* infoCount);

} // extern "C"
