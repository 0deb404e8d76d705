#pragma once

#include <functional>
#include <memory>

#include <QString>

namespace vantrix {

/// Where the system shows the program's notifications. Main thread only; never waits, and reports no failures.
class NotificationCenter {
  public:
    /// How to show a notification that arrives while the program is in front.
    struct Presentation {
        bool banner = false;
        bool sound = false;

        bool operator==(const Presentation&) const = default;
    };

    virtual ~NotificationCenter() = default;

    /// Shows plain texts with the default sound, replacing what was posted under `identifier` before.
    virtual void post(const QString& identifier, const QString& title, const QString& body) = 0;

    /// Asks the system, which may ask the user, whether banners with sound may be shown. `answer` is called later, on
    /// the main thread, and never once the centre is gone.
    virtual void requestAuthorization(std::function<void(bool granted)> answer) = 0;

    /// False where the system would show nothing of this program whatever the user allows, and does not list it among
    /// those that may be allowed.
    virtual bool canBeAllowed() const { return true; }

    /// Called by systems that leave this to the program. Set once, by the owner; without it nothing is shown then.
    std::function<Presentation()> willPresent;

    /// Called when the user clicks on a notification, where the system tells of that. Set once, by the owner, before
    /// anything is posted.
    std::function<void(const QString& identifier)> activated;
};

/// The notification centre of this desktop. Made after the application object.
std::unique_ptr<NotificationCenter> makeNotificationCenter();

} // namespace vantrix
