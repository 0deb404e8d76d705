#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "macos/kernel/cf_ref.h"
#include "support/properties.h"

namespace vantrix {

/// In UTF-8; absent for null and anything but a string.
std::optional<std::string> textOf(CFTypeRef object);

/// Absent for null and anything but a whole number.
std::optional<std::int64_t> wholeNumberOf(CFTypeRef object);

/// The values that dictionaries hold under a fixed set of keys.
class PropertyTable {
  public:
    /// `names` are string literals.
    PropertyTable(std::initializer_list<const char*> names);

    void clear();

    /// Copies the numbers, booleans and strings under these keys; an empty row for null. Valid until the next call.
    const Properties& add(CFDictionaryRef dictionary);

    /// One per dictionary; valid until the next call.
    std::span<const Properties> rows() const { return rows_; }

  private:
    struct Key {
        const char* name;
        CFRef<CFStringRef> text; ///< made when it is first needed
    };

    std::vector<Key> keys_;
    std::vector<Properties> rows_;
    std::deque<std::string> texts_; // a deque, as the rows hold views of them
};

} // namespace vantrix
