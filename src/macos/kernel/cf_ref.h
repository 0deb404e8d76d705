#pragma once

#include <utility>

#include <CoreFoundation/CoreFoundation.h>

namespace vantrix {

/// Owns one reference returned by a create or copy function, or null. `Ref` is a reference type such as CFStringRef.
template<typename Ref>
class CFRef {
  public:
    CFRef() = default;
    explicit CFRef(Ref owned) : ref_(owned) {}
    CFRef(CFRef&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
    CFRef& operator=(CFRef&& other) noexcept {
        std::swap(ref_, other.ref_);
        return *this;
    }
    ~CFRef() {
        if (ref_)
            CFRelease(ref_);
    }

    explicit operator bool() const { return ref_ != nullptr; }
    Ref get() const { return ref_; }

    /// For functions that return a reference through a pointer. Releases what was held.
    Ref* out() {
        *this = CFRef();
        return &ref_;
    }

  private:
    Ref ref_ = nullptr;
};

template<typename Ref>
CFTypeID typeIDOf() = delete;
template<>
inline CFTypeID typeIDOf<CFStringRef>() {
    return CFStringGetTypeID();
}
template<>
inline CFTypeID typeIDOf<CFNumberRef>() {
    return CFNumberGetTypeID();
}
template<>
inline CFTypeID typeIDOf<CFBooleanRef>() {
    return CFBooleanGetTypeID();
}
template<>
inline CFTypeID typeIDOf<CFArrayRef>() {
    return CFArrayGetTypeID();
}
template<>
inline CFTypeID typeIDOf<CFDictionaryRef>() {
    return CFDictionaryGetTypeID();
}

/// The object if it has this type, else null. Takes no reference.
template<typename Ref>
Ref as(CFTypeRef object) {
    return object && CFGetTypeID(object) == typeIDOf<Ref>() ? static_cast<Ref>(object) : nullptr;
}

/// The value under a key if it has this type, else null. The dictionary owns it.
template<typename Ref>
Ref valueAt(CFDictionaryRef dictionary, CFStringRef key) {
    return as<Ref>(CFDictionaryGetValue(dictionary, key));
}

} // namespace vantrix
