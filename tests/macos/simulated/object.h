#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>

namespace vantrix::simulated {

struct Value;
using List = std::vector<Value>;
using Dictionary = std::map<std::string, Value>;

/// What a fixture says an object holds.
struct Value : std::variant<bool, std::int64_t, double, std::string, List, Dictionary> {
    using variant::variant;
};

/// The first ones in a value's order; the system's own objects are opaque.
enum class Kind : CFTypeID { truth, whole, fraction, text, list, dictionary, opaque };

struct Object;

/// One reference, which is given back with its last holder. Null for none.
struct Ref : std::shared_ptr<Object> {
    Ref() = default;
    explicit Ref(Object* owned) : shared_ptr(owned, CFRelease) {}
};

/// Everything that is counted by references.
struct Object {
    Kind kind = Kind::opaque;
    Value value = false; ///< of neither a list nor a dictionary
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

// With one reference, the caller's. Opaque ones keep their parts as a dictionary does.
Object* make(const Value& value);
Object* makeOpaque(const Dictionary& parts = {});
Object* makeList(std::vector<Ref> members);
Object* makeOpaqueList(const std::vector<Dictionary>& all);

/// The same object with one reference more; null for null.
Object* retain(const Object* held);

// The live object behind a reference; they report a fault and end the test program where there is none, or of a kind
// that the function called may not be given.
Object& object(CFTypeRef reference, const char* function = __builtin_FUNCTION());
Object& object(CFTypeRef reference, Kind kind, const char* function = __builtin_FUNCTION());
const std::string& text(CFTypeRef reference, const char* function = __builtin_FUNCTION());

/// Objects that somebody still holds, constants aside.
std::ptrdiff_t liveObjects();

/// An object of a type that nobody asks for.
Object* strayObject();

template<typename Reference>
Reference as(const Object* made) {
    return reinterpret_cast<Reference>(const_cast<Object*>(made));
}

} // namespace vantrix::simulated
