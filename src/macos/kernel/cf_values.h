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

/// In UTF-8; absent for null and what is no text.
std::optional<std::string> textOf(CFTypeRef object);

/// Absent for null and what is no whole number.
std::optional<std::int64_t> wholeNumberOf(CFTypeRef object);

/// What dictionaries hold under the keys that somebody asks for.
class PropertyTable {
  public:
    /// `names` are literals.
    PropertyTable(std::initializer_list<const char*> names);

    void clear();

    /// Copies the numbers, truths and texts under these keys, none from null. The row holds until the next call.
    const Properties& add(CFDictionaryRef dictionary);

    /// One for each dictionary; they hold until the next call.
    std::span<const Properties> rows() const { return rows_; }

  private:
    struct Key {
        const char* name;
        CFRef<CFStringRef> text; ///< made when it is first needed
    };

    std::vector<Key> keys_;
    std::vector<Properties> rows_;
    std::deque<std::string> texts_; // the rows have views of them: growing moves none
};

} // namespace vantrix
