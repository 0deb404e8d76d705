#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "support/clock.h"
#include "support/integer.h"

namespace vantrix {

/// What the sources learn in a pass otherwise than from files, and the time of the pass: lines "key value" of the file
/// "answers" of a capture.
class Answers {
  public:
    /// Replaces all answers; without such a file there are none.
    void load(const std::string& file);
    bool save(const std::string& file) const;

    void clear() { values_.clear(); }
    void set(const std::string& key, const std::string& value) { values_[key] = value; }
    void set(const std::string& key, double value);
    template<typename Integer>
    void setInteger(const std::string& key, const std::optional<Integer>& value) {
        if (value)
            set(key, std::to_string(*value));
    }

    bool has(const std::string& key) const { return values_.contains(key); }
    /// Empty without an answer.
    std::string text(const std::string& key) const;
    std::optional<double> number(const std::string& key) const;
    template<typename Integer>
    std::optional<Integer> integer(const std::string& key) const {
        return parseInteger<Integer>(text(key));
    }

  private:
    std::map<std::string, std::string> values_;
};

/// Stands still between the passes of a capture, so that what is read in one does not depend on how long it took.
class PassClock : public Clock {
  public:
    double uptime() const override { return *now_; }
    /// For all copies of this clock.
    void set(double now) { *now_ = now; }

  private:
    std::shared_ptr<double> now_ = std::make_shared<double>(0.0); ///< seconds
};

} // namespace vantrix
