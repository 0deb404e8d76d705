#pragma once

#include <map>
#include <string>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>

#include "macos/simulated/value.h"

namespace vantrix::simulated {

struct Object;

/// Releases and retains like the program does, so that a fault of the fakes shows as well. Null for none.
class Ref {
  public:
    Ref() = default;
    explicit Ref(Object* owned) : object_(owned) {}
    Ref(const Ref& other);
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref& operator=(Ref other) {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref();

    static Ref retained(CFTypeRef object);
    Object* get() const { return object_; }

  private:
    Object* object_ = nullptr;
};

/// Everything that is counted by references.
struct Object {
    enum class Kind : CFTypeID { text = 1, whole, fraction, truth, list, dictionary, opaque };

    Kind kind = Kind::opaque;
    std::string text;
    std::int64_t whole = 0; ///< of an opaque object: its place in the fixture
    double fraction = 0.0;
    bool truth = false;
    std::vector<Ref> list;
    std::map<std::string, Ref> entries;
    long references = 1;
    bool isConstant = false;

    /// What lies under a key; null for nothing.
    const Object* at(const std::string& key) const {
        const auto entry = entries.find(key);
        return entry == entries.end() ? nullptr : entry->second.get();
    }
};

/// With one reference, the caller's.
Object* make(const Value& value);
Object* makeOpaque(std::int64_t place = 0);
Object* makeList(std::vector<Ref> members);

/// The live object behind a reference; reports a fault and ends the test program where there is none, or of a kind that
/// the function called may not be given.
Object& object(CFTypeRef reference, const char* function);
Object& object(CFTypeRef reference, Object::Kind kind, const char* function);

/// Objects that somebody still holds, constants aside.
std::ptrdiff_t liveObjects();

/// An object of a type that nobody asks for.
Object* strayObject();

template<typename Reference>
Reference as(const Object* made) {
    return reinterpret_cast<Reference>(const_cast<Object*>(made));
}

} // namespace vantrix::simulated
