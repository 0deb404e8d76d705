#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include <QObject>
#include <QString>

#include "monitor/readings.h"
#include "platform/notification_center.h"
#include "support/wall_clock.h"

namespace vantrix {

class UserDefaults;

/// Posts notifications about conditions that last. Main thread only.
class AlertManager : public QObject {
    Q_OBJECT
  public:
    enum class Kind { cpu, memory, disk, battery, temperature, test };

    /// The names of the kinds in identifiers, in the order of `Kind`.
    static constexpr std::array<std::string_view, 6> kindNames{"cpu",     "memory",      "disk",
                                                               "battery", "temperature", "test"};

    /// Seconds between two notifications of one kind.
    static constexpr double cooldown = 900.0;

    /// `center` and `defaults` outlive the manager.
    AlertManager(NotificationCenter& center, const UserDefaults& defaults, WallClock clock = secondsSince2001);

    /// To be called once after every pass. How long a condition has lasted is the sum of the intervals of the passes,
    /// not the time on the clock.
    void evaluate(const Readings& readings);

    /// Makes a sampler for a look at the processes shortly before a notification and one at it; may be empty, and
    /// answer null where the system tells nothing of them.
    std::function<std::shared_ptr<ProcessSampler>()> makeProcessSampler;

    /// Called when the user clicks on a notification.
    std::function<void(Kind)> opened;

    /// Posts a notification at once, replacing the one of the same kind before.
    void send(Kind kind, const QString& title, const QString& body);

    /// Posts the test notification if the system allows it. `done` gets a text that says how it went, perhaps much
    /// later, but never once the manager is gone.
    void sendTest(std::function<void(const QString& outcome)> done);

  private:
    struct Message {
        QString title;
        QString body;
    };

    bool holds(Kind kind, const Readings& readings) const;
    bool isWanted(Kind kind) const;
    bool isDue(Kind kind, double ahead);
    void beginLook(Kind kind);
    QString programsBehind(Kind kind, const Readings& readings);
    Message messageFor(Kind kind, const Readings& readings) const;
    QString freeSpaceText(const std::string& free) const;

    NotificationCenter& center_;
    const UserDefaults& defaults_;
    WallClock clock_;
    std::array<double, kindNames.size()> sustained_{}; // seconds
    std::array<std::optional<double>, kindNames.size()> lastSent_;
    std::array<std::shared_ptr<ProcessSampler>, kindNames.size()> looks_; // begun, of those about to be posted
};

} // namespace vantrix
