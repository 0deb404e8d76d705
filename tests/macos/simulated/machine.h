#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <ifaddrs.h>
#include <mach/mach.h>

#include "macos/network/wifi_client.h"
#include "macos/simulated/object.h"

namespace vantrix::simulated {

/// What becomes of a call that may fail.
enum class Outcome { works, fails, wrongType };

struct LinkEntry {
    std::string name;
    unsigned flags = 0;
    std::uint8_t family = 0; ///< 0: an entry without an address
    std::uint32_t received = 0;
    std::uint32_t sent = 0;
    std::string address = {}; ///< four bytes
};

struct Mount {
    std::string point;
    std::string source;
    unsigned flags = 0;
};

struct SMCKey {
    std::string type;
    std::vector<std::uint8_t> bytes;
};

struct ProcessEntry {
    int id = 0;
    std::string path;           ///< empty: it is not told
    std::uint64_t userTime = 0; ///< 24 to the microsecond, like its start
    std::uint64_t footprint = 0;
    std::uint64_t start = 1;
    bool isOwn = true;
};

/// A Mac as its interfaces tell of it; everything that a new one has is nothing at all. One at a time.
struct Machine {
    Machine();
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    template<typename T>
    void setSystemValue(const std::string& name, const T& value) {
        const auto* const bytes = reinterpret_cast<const char*>(&value);
        systemValues[name].assign(bytes, bytes + sizeof value);
    }

    /// What was taken and not given back, in words; empty when all was.
    std::string outstanding() const;

    std::optional<std::vector<std::array<std::uint32_t, 4>>> ticks; ///< user, system, idle, nice
    std::optional<vm_statistics64> pages;
    std::map<std::string, std::string> systemValues;
    std::uint64_t machTime = 0; ///< 24 to the microsecond
    std::vector<LinkEntry> links;
    std::vector<ProcessEntry> processes;
    std::vector<std::pair<std::string, Dictionary>> services; ///< by class
    std::map<std::string, SMCKey> controllerKeys;
    std::optional<Dictionary> volume;
    std::string volumePoint = "/"; ///< where it is mounted
    std::vector<Mount> mounts;
    std::optional<List> powerSources;
    Dictionary store;
    std::vector<Dictionary> interfaces;
    std::map<std::string, WiFiClient::Details, std::less<>> wifi;
    std::optional<std::vector<Dictionary>> sensors; ///< absent: the functions are missing
    std::optional<List> energy;       ///< channels, from one snapshot to the next; absent: the library is missing
    std::int64_t energySnapshots = 0; ///< taken so far
    std::optional<Value> applicationGroups;
    std::optional<Dictionary> signature; ///< what is told of it; absent: there is none
    Dictionary propertyLists;            ///< by the text that holds them

    /// Decides over each call that may fail, by name.
    std::function<Outcome(const std::string& call)> judge;
    std::map<std::string, long> calls; ///< how many there were

    // What the program holds.
    long hostReferences = 0;
    long libraries = 0;
    std::uintptr_t pools = 0; ///< open ones, each within the one before
    long leftBehind = 0;      ///< objects that were left to a pool where there was none
    std::map<const void*, std::vector<integer_t>> arrays;
    std::map<const ifaddrs*, std::shared_ptr<void>> lists; ///< of addresses
    std::map<std::uint32_t, Ref> handles;                  ///< of services, lists of them, and connections
    std::uint32_t nextHandle = 100;
};

/// The present machine.
Machine& mac();

// Calls are known by the names of the functions that simulate them.
Outcome outcomeOf(const std::string& call = __builtin_FUNCTION());
inline bool fails(const std::string& call = __builtin_FUNCTION()) {
    return outcomeOf(call) != Outcome::works;
}

/// Leaves an object to the innermost pool, as some calls do.
void leaveToPool();

/// What a copying function answers: `made`, or what the judge says instead.
Object* answer(Object* made, const char* call = __builtin_FUNCTION());
/// The same for a function whose answer stays the owner's.
const Object* heldAnswer(const Object* held, const char* call = __builtin_FUNCTION());

/// Gives the machine everything that a laptop has.
void furnish(Machine& machine);

/// Two seconds later: time and every counter have moved on.
void advance(Machine& machine);

} // namespace vantrix::simulated
