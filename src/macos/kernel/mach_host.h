#pragma once

#include <mach/mach.h>

namespace vantrix {

/// Owns one reference to the host port: each mach_host_self() adds one.
class MachHost {
  public:
    MachHost() : port_(mach_host_self()) {}
    MachHost(const MachHost&) = delete;
    MachHost& operator=(const MachHost&) = delete;
    ~MachHost() { mach_port_deallocate(mach_task_self(), port_); }

    host_t port() const { return port_; }

  private:
    host_t port_;
};

/// Owns an array that a Mach call has mapped into this process.
struct MachArray {
    MachArray() = default;
    MachArray(const MachArray&) = delete;
    MachArray& operator=(const MachArray&) = delete;
    ~MachArray() {
        if (data)
            vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(data), count * sizeof(integer_t));
    }

    integer_t* data = nullptr;
    mach_msg_type_number_t count = 0; ///< integers
};

} // namespace vantrix
