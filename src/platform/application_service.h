#pragma once

#include <functional>
#include <memory>
#include <string>

namespace vantrix {

/// What desktops know the program by: its menu entry, its windows and, on the session bus, its name.
inline constexpr const char* applicationId = "app.vantrix.Vantrix";

/// Hears what the desktop itself asks of the program, by its menu entry for example. This one, of a system without such
/// a way, hears nothing.
class ApplicationService {
  public:
    virtual ~ApplicationService() = default;
    /// Called on the main thread for each request; they are those of `AppDelegate::handleRequest`.
    std::function<void(const std::string&)> received;
};

/// Needs the application object's event loop. Made by the session's only instance, or by one that was started to pass
/// on what the desktop asks.
std::unique_ptr<ApplicationService> makeApplicationService();

/// Hands `request` to this session's running instance in the desktop's way; false when none takes it within about a
/// second. Starts nothing.
bool askApplicationService(const std::string& request);

} // namespace vantrix
