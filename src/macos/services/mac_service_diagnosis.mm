#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>
#import <UserNotifications/UserNotifications.h>
#import <dispatch/dispatch.h>

#include <memory>
#include <utility>

#include <QObject>
#include <QTimer>

#include "macos/bluetooth/bluetooth_access.h"
#include "macos/kernel/cf_ref.h"
#include "macos/mac_application_group.h"
#include "macos/mac_signature.h"
#include "platform/diagnosis.h"
#include "platform/login_item.h"

namespace vantrix {
namespace {

SourceDiagnosis bluetooth() {
    SourceDiagnosis row{std::string(reading_name::bluetooth), "CBCentralManager, IOBluetoothDevice"};
    switch (bluetoothAccess()) {
    case BluetoothAccess::allowed:
        row.value = "allowed";
        break;
    case BluetoothAccess::asksUser:
        row.value = "asked for at the first start";
        break;
    case BluetoothAccess::denied:
        row.state = SourceState::denied;
        row.reason = "Allow it in System Settings, Privacy & Security, Bluetooth.";
        break;
    case BluetoothAccess::undescribed:
        row.state = SourceState::absent;
        row.reason = "The program that started this one has not been allowed to use it; Vantrix.app asks for itself.";
        break;
    }
    return row;
}

SourceDiagnosis statusArea() {
    const CFRef<CFDictionaryRef> session(CGSessionCopyCurrentDictionary());
    if (session)
        return {"Status area", "NSStatusBar", SourceState::ok, "menu bar", {}};
    return {"Status area", "NSStatusBar", SourceState::absent, {}, "There is no desktop session to draw in."};
}

SourceDiagnosis notifications(SourceState state, std::string value, std::string reason) {
    return {"Notifications", "UNUserNotificationCenter", state, std::move(value), std::move(reason)};
}

SourceDiagnosis notifications(UNAuthorizationStatus status) {
    if (status == UNAuthorizationStatusAuthorized || status == UNAuthorizationStatusProvisional)
        return notifications(SourceState::ok, "allowed", {});
    if (!isSignedByIdentity())
        return notifications(
            SourceState::denied, {},
            "The program is signed ad hoc, for this machine alone, and macOS shows no notifications of "
            "such programs: sign it with an identity.");
    if (status == UNAuthorizationStatusDenied)
        return notifications(SourceState::denied, {}, "Allow them in System Settings, Notifications.");
    return notifications(SourceState::ok, "not asked for yet", "The test notification in the settings asks for them.");
}

SourceDiagnosis widgetData() {
    const auto group = applicationGroup();
    if (group)
        return {"Widget data", *group, SourceState::ok, "shared", {}};
    return {"Widget data", "application group", SourceState::absent, {}, "The program is signed for no group."};
}

SourceDiagnosis loginItem() {
    return {"Login item", "SMAppService", SourceState::ok, makeLoginItem()->isEnabled() ? "on" : "off", {}};
}

/// Most answers come from other processes of the system, and this waits for them; that of the notification centre comes
/// later, on any thread.
class MacServiceDiagnoses final : public ServiceDiagnoses {
  public:
    explicit MacServiceDiagnoses(std::chrono::milliseconds patience)
        : life_(std::make_shared<MacServiceDiagnoses*>(this)) {
        // Outside a bundle, asking for the centre ends the program.
        if (!NSBundle.mainBundle.bundleIdentifier)
            reportLater(
                std::chrono::milliseconds(0),
                notifications(SourceState::absent, {}, "Only an application bundle may notify: start Vantrix.app."));
        else
            ask(patience);
    }

  private:
    void ask(std::chrono::milliseconds patience) {
        reportLater(patience, notifications(SourceState::silent, {}, "The notification centre does not answer."));
        const std::weak_ptr<MacServiceDiagnoses*> life = life_;
        [[UNUserNotificationCenter currentNotificationCenter]
            getNotificationSettingsWithCompletionHandler:^(UNNotificationSettings* settings) {
              const UNAuthorizationStatus status = settings.authorizationStatus;
              dispatch_async(dispatch_get_main_queue(), ^{
                if (const auto owner = life.lock())
                    (*owner)->report(notifications(status));
              });
            }];
    }

    void reportLater(std::chrono::milliseconds time, const SourceDiagnosis& notifications) {
        QTimer::singleShot(time, &context_, [this, notifications] { report(notifications); });
    }

    void report(const SourceDiagnosis& notifications) {
        if (!std::exchange(hasReported_, true) && finished)
            finished({bluetooth(), statusArea(), notifications, widgetData(), loginItem()});
    }

    std::shared_ptr<MacServiceDiagnoses*> life_; ///< ends with this
    bool hasReported_ = false;
    QObject context_;
};

} // namespace

std::unique_ptr<ServiceDiagnoses> diagnoseServices(std::chrono::milliseconds patience) {
    return std::make_unique<MacServiceDiagnoses>(patience);
}

} // namespace vantrix
