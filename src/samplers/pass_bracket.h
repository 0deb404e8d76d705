#pragma once

#include <memory>

namespace vantrix {

/// Told where a pass over the sources begins and ends, so that what is asked of devices in its course can be handed
/// over at once.
class PassBracket {
  public:
    virtual ~PassBracket() = default;
    virtual void begin() = 0;
    virtual void end() = 0;
};

/// A pass, as long as this lives.
class PassScope {
  public:
    /// `bracket` may be null.
    explicit PassScope(std::shared_ptr<PassBracket> bracket) : bracket_(std::move(bracket)) {
        if (bracket_)
            bracket_->begin();
    }
    ~PassScope() {
        if (bracket_)
            bracket_->end();
    }
    PassScope(const PassScope&) = delete;
    PassScope& operator=(const PassScope&) = delete;

  private:
    std::shared_ptr<PassBracket> bracket_;
};

} // namespace vantrix
