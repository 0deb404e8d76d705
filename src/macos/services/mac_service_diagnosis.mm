#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

#include <QObject>
#include <QTimer>

#include "macos/bluetooth/bluetooth_access.h"
#include "macos/kernel/cf_ref.h"
#include "macos/mac_application_group.h"
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

SourceDiagnosis notifications() {
    if (NSBundle.mainBundle.bundleIdentifier)
        return {"Notifications", "UNUserNotificationCenter", SourceState::ok, "application bundle", {}};
    return {"Notifications",
            "UNUserNotificationCenter",
            SourceState::absent,
            {},
            "Only an application bundle may notify: start Vantrix.app."};
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

/// The answers come from other processes of the system; this waits for them.
class MacServiceDiagnoses final : public ServiceDiagnoses {
  public:
    MacServiceDiagnoses() {
        QTimer::singleShot(0, &context_, [this] {
            if (finished)
                finished({bluetooth(), statusArea(), notifications(), widgetData(), loginItem()});
        });
    }

  private:
    QObject context_;
};

} // namespace

std::unique_ptr<ServiceDiagnoses> diagnoseServices(std::chrono::milliseconds /*patience*/) {
    return std::make_unique<MacServiceDiagnoses>();
}

} // namespace vantrix
