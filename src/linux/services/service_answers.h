#pragma once

#include <map>
#include <optional>
#include <string>

#include <QDBusMessage>

#include "platform/diagnosis.h"

namespace vantrix {

/// The questions that services are asked.
enum class ServiceQuestion {
    notificationServer, ///< org.freedesktop.Notifications: GetServerInformation
    startableServices,  ///< the session bus: ListActivatableNames
    notifierHost,       ///< org.kde.StatusNotifierWatcher: IsStatusNotifierHostRegistered
    notifierProcess,    ///< the session bus: the process that owns that name
    portalSettings,     ///< org.freedesktop.portal.Desktop: ReadAll of the groups of the appearance
    bluetoothObjects,   ///< org.bluez: GetManagedObjects
};

/// Replies and errors. A question that could not be asked, because there is no bus, has no entry.
using ServiceAnswers = std::map<ServiceQuestion, QDBusMessage>;

/// What an X server says about its system tray.
enum class TrayAnswer { noServer, noTray, tray, silent };

SourceDiagnosis diagnoseNotifications(const ServiceAnswers& answers);
/// `hasWayland`: the session is a Wayland one.
SourceDiagnosis diagnoseStatusArea(const ServiceAnswers& answers, TrayAnswer tray, bool hasWayland);
SourceDiagnosis diagnosePortal(const ServiceAnswers& answers);
SourceDiagnosis diagnoseBluetooth(const ServiceAnswers& answers);

} // namespace vantrix
