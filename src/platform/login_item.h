#pragma once

#include <memory>

namespace vantrix {

/// The system's registration of the program as one that starts at login.
class LoginItem {
  public:
    virtual ~LoginItem() = default;
    /// Read back from the system each time.
    virtual bool isEnabled() const = 0;
    /// May fail silently; `isEnabled` then returns what it did before.
    virtual void setEnabled(bool enabled) = 0;
};

std::unique_ptr<LoginItem> makeLoginItem();

} // namespace vantrix
