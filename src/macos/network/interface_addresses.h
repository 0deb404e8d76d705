#pragma once

#include <ifaddrs.h>

namespace vantrix {

/// Owns the list of interface addresses as it is now.
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

    /// Null when the list is empty or cannot be read; the entries are linked by `ifa_next`.
    const ifaddrs* first() const { return first_; }

  private:
    ifaddrs* first_ = nullptr;
};

} // namespace vantrix
