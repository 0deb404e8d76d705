#pragma once

#include <utility>

#include <IOKit/IOKitLib.h>

namespace vantrix {

/// Owns one reference to an I/O registry object, or none.
class IOObject {
  public:
    IOObject() = default;
    explicit IOObject(io_object_t owned) : object_(owned) {}
    IOObject(IOObject&& other) noexcept : object_(std::exchange(other.object_, IO_OBJECT_NULL)) {}
    IOObject& operator=(IOObject&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~IOObject() {
        if (object_ != IO_OBJECT_NULL)
            IOObjectRelease(object_);
    }

    explicit operator bool() const { return object_ != IO_OBJECT_NULL; }
    io_object_t get() const { return object_; }

  private:
    io_object_t object_ = IO_OBJECT_NULL;
};

} // namespace vantrix
