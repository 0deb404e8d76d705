#include "macos/simulated/machine.h"

#include "macos/kernel/autorelease_pool.h"
#include "support/checked.h"

namespace vantrix::simulated {
namespace {

Machine* present = nullptr;

} // namespace

Machine::Machine() {
    if (present)
        fatalError("two machines at once");
    present = this;
}

Machine::~Machine() {
    present = nullptr;
}

std::string Machine::outstanding() const {
    std::string text;
    const auto add = [&](auto count, const char* what) {
        if (count != 0)
            text += std::to_string(count) + ' ' + what + ' ';
    };
    add(liveObjects(), "objects");
    add(handles.size(), "registry objects");
    add(arrays.size(), "arrays");
    add(lists.size(), "lists of addresses");
    add(hostReferences, "references to the host");
    add(libraries, "libraries");
    add(pools, "pools");
    add(leftBehind, "objects left to no pool");
    return text;
}

Machine& mac() {
    if (!present)
        fatalError("a call without a machine");
    return *present;
}

void leaveToPool() {
    if (mac().pools == 0)
        ++mac().leftBehind;
}

Outcome outcomeOf(const std::string& call) {
    ++mac().calls[call];
    return mac().judge ? mac().judge(call) : Outcome::works;
}

Object* answer(Object* made, const char* call) {
    const Outcome outcome = outcomeOf(call);
    if (!made || outcome == Outcome::works)
        return made;
    CFRelease(made);
    return outcome == Outcome::wrongType ? makeOpaque() : nullptr;
}

const Object* heldAnswer(const Object* held, const char* call) {
    const Outcome outcome = outcomeOf(call);
    if (!held || outcome == Outcome::works)
        return held;
    return outcome == Outcome::wrongType ? strayObject() : nullptr;
}

} // namespace vantrix::simulated

using namespace vantrix::simulated;

void* objc_autoreleasePoolPush() {
    ++mac().calls["objc_autoreleasePoolPush"];
    return reinterpret_cast<void*>(++mac().pools);
}

void objc_autoreleasePoolPop(void* pool) {
    if (reinterpret_cast<std::uintptr_t>(pool) != mac().pools)
        vantrix::fatalError("objc_autoreleasePoolPop of another pool than the innermost");
    --mac().pools;
}
