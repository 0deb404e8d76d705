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

struct Maker {
    Object* operator()(bool truth) const { return track({.kind = Object::Kind::truth, .truth = truth}); }
    Object* operator()(std::int64_t whole) const { return track({.kind = Object::Kind::whole, .whole = whole}); }
    Object* operator()(double fraction) const { return track({.kind = Object::Kind::fraction, .fraction = fraction}); }
    Object* operator()(const std::string& text) const { return track({.kind = Object::Kind::text, .text = text}); }
    Object* operator()(const List& list) const {
        std::vector<Ref> members;
        for (const Value& member : list)
            members.emplace_back(make(member));
        return makeList(std::move(members));
    }
    Object* operator()(const Dictionary& dictionary) const {
        Object* const made = track({.kind = Object::Kind::dictionary});
        for (const auto& [key, value] : dictionary)
            made->entries[key] = Ref(make(value));
        return made;
    }
};

Object* makeConstant(Object constant) {
    constant.isConstant = true;
    return track(std::move(constant));
}

} // namespace

Ref::Ref(const Ref& other) : object_(other.object_) {
    if (object_)
        ++object_->references;
}

Ref::~Ref() {
    if (object_)
        CFRelease(object_);
}

Ref Ref::retained(CFTypeRef reference) {
    Object& held = object(reference, "CFRetain");
    ++held.references;
    return Ref(&held);
}

Object* make(const Value& value) {
    return std::visit(Maker(), value.held);
}

Object* makeOpaque(std::int64_t place) {
    return track({.kind = Object::Kind::opaque, .whole = place});
}

Object* makeList(std::vector<Ref> members) {
    return track({.kind = Object::Kind::list, .list = std::move(members)});
}

Object& object(CFTypeRef reference, const char* function) {
    auto* const found = as<Object*>(static_cast<const Object*>(reference));
    if (!live().contains(found))
        fatalError((std::string(function) + " is given null or an object that was released").c_str());
    return *found;
}

Object& object(CFTypeRef reference, Object::Kind kind, const char* function) {
    Object& found = object(reference, function);
    if (found.kind != kind)
        fatalError((std::string(function) + " is given an object of another type").c_str());
    return found;
}

std::ptrdiff_t liveObjects() {
    return std::count_if(live().begin(), live().end(), [](const Object* object) { return !object->isConstant; });
}

Object* strayObject() {
    static Object* const stray = makeConstant({.kind = Object::Kind::opaque});
    return stray;
}

} // namespace vantrix::simulated

using namespace vantrix::simulated;

void CFRelease(CFTypeRef reference) {
    Object& held = object(reference, "CFRelease");
    if (held.isConstant || --held.references > 0)
        return;
    live().erase(&held);
    delete &held;
}

CFStringRef __CFStringMakeConstantString(const char* text) {
    static auto& strings = *new std::map<std::string, Object*>;
    Object*& string = strings[text];
    if (!string)
        string = makeConstant({.kind = Object::Kind::text, .text = text});
    return as<CFStringRef>(string);
}
