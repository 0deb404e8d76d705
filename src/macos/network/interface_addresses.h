#pragma once

#include <ifaddrs.h>

namespace vantrix {

/// Owns a list of the interface addresses (getifaddrs).
class InterfaceAddresses {
  public:
    InterfaceAddresses() {
        if (getifaddrs(&first_) != 0)
            first_ = nullptr;
    }
    InterfaceAddresses(const InterfaceAddresses&) = delete;
    InterfaceAddresses& operator=(const InterfaceAddresses&) = delete;
    ~InterfaceAddresses() {
        if (first_)
            freeifaddrs(first_);
    }

    /// Null when the list is empty or cannot be read.
    const ifaddrs* first() const { return first_; }

  private:
    ifaddrs* first_ = nullptr;
};

} // namespace vantrix
