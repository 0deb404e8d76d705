#include "macos/simulated/object.h"

#include <algorithm>
#include <set>

#include "support/checked.h"

namespace vantrix::simulated {
namespace {

/// Never torn down: constants live longer than any other object of the program.
std::set<const Object*>& live() {
    static auto& objects = *new std::set<const Object*>;
    return objects;
}

Object* track(Object made) {
    auto* const object = new Object(std::move(made));
    live().insert(object);
    return object;
}

} // namespace

Object* make(const Value& value) {
    Object made{.kind = static_cast<Kind>(value.index())};
    if (const auto* const members = std::get_if<List>(&value)) {
        for (const Value& member : *members)
            made.list.emplace_back(make(member));
    } else if (const auto* const entries = std::get_if<Dictionary>(&value)) {
        for (const auto& [key, held] : *entries)
            made.entries.emplace(key, make(held));
    } else {
        made.value = value;
    }
    return track(std::move(made));
}

Object* makeOpaque(const Dictionary& parts) {
    Object* const made = make(parts);
    made->kind = Kind::opaque;
    return made;
}

Object* makeList(std::vector<Ref> members) {
    return track({.kind = Kind::list, .list = std::move(members)});
}

Object* makeOpaqueList(const std::vector<Dictionary>& all) {
    std::vector<Ref> members;
    for (const Dictionary& parts : all)
        members.emplace_back(makeOpaque(parts));
    return makeList(std::move(members));
}

Object* retain(const Object* held) {
    auto* const object = const_cast<Object*>(held);
    if (object)
        ++object->references;
    return object;
}

Object& object(CFTypeRef reference, const char* function) {
    auto* const found = as<Object*>(static_cast<const Object*>(reference));
    if (!live().contains(found))
        fatalError((std::string(function) + " is given null or an object that was released").c_str());
    return *found;
}

Object& object(CFTypeRef reference, Kind kind, const char* function) {
    Object& found = object(reference, function);
    if (found.kind != kind)
        fatalError((std::string(function) + " is given an object of another type").c_str());
    return found;
}

const std::string& text(CFTypeRef reference, const char* function) {
    return std::get<std::string>(object(reference, Kind::text, function).value);
}

std::ptrdiff_t liveObjects() {
    return std::count_if(live().begin(), live().end(), [](const Object* object) { return !object->isConstant; });
}

Object* strayObject() {
    static Object* const stray = track({.isConstant = true});
    return stray;
}

} // namespace vantrix::simulated

using namespace vantrix::simulated;

void CFRelease(CFTypeRef reference) {
    Object& held = object(reference);
    if (held.isConstant || --held.references > 0)
        return;
    live().erase(&held);
    delete &held;
}

CFStringRef __CFStringMakeConstantString(const char* text) {
    static auto& strings = *new std::map<std::string, Object*>;
    Object*& string = strings[text];
    if (!string)
        string = track({.kind = Kind::text, .value = text, .isConstant = true});
    return as<CFStringRef>(string);
}
