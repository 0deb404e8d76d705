#include "linux/services/service_answers.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>

#include "linux/bluetooth/bluez_objects.h"
#include "linux/services/desktop_wishes.h"
#include "linux/status_area/notifier_watch.h"

namespace vantrix {
namespace {

using Question = ServiceQuestion;

constexpr const char* noSessionBus = "There is no session bus to ask.";

using ManagedObjects = QMap<QDBusObjectPath, BluezObjects::Interfaces>;

SourceState stateOfError(const QDBusMessage& error) {
    switch (QDBusError(error).type()) {
    case QDBusError::ServiceUnknown:
        return SourceState::absent;
    case QDBusError::AccessDenied:
        return SourceState::denied;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
    case QDBusError::Disconnected:
        return SourceState::silent;
    default:
        break;
    }
    return error.errorName() == u"org.freedesktop.DBus.Error.NameHasNoOwner" ? SourceState::absent
                                                                             : SourceState::damaged;
}

/// `ok` when there is an answer whose arguments have that signature.
SourceState stateOf(const ServiceAnswers& answers, Question question, QStringView signature) {
    const auto answer = answers.find(question);
    if (answer == answers.end())
        return SourceState::absent;
    if (answer->second.type() != QDBusMessage::ReplyMessage)
        return stateOfError(answer->second);
    return answer->second.signature() == signature ? SourceState::ok : SourceState::damaged;
}

/// Only for an answer whose state is `ok`.
QVariantList argumentsOf(const ServiceAnswers& answers, Question question) {
    return answers.at(question).arguments();
}

/// Why a service that runs is of no use.
std::string usualReason(SourceState state) {
    switch (state) {
    case SourceState::denied:
        return "The bus does not let this program ask: its policy, or a sandbox, forbids it.";
    case SourceState::silent:
        return "It did not answer in time.";
    case SourceState::damaged:
        return "It answered something else than what is agreed upon.";
    default:
        return {};
    }
}

bool canBeStarted(const ServiceAnswers& answers, const QString& name) {
    return stateOf(answers, Question::startableServices, u"as") == SourceState::ok &&
           argumentsOf(answers, Question::startableServices).constFirst().toStringList().contains(name);
}

/// The name of the process that owns the watcher, "waybar"; empty when that cannot be found out.
std::string notifierProcess(const ServiceAnswers& answers) {
    if (stateOf(answers, Question::notifierProcess, u"u") != SourceState::ok)
        return {};
    return processName(argumentsOf(answers, Question::notifierProcess).constFirst().toUInt());
}

/// The row of a status area that has a watcher, though perhaps no panel.
SourceDiagnosis watchedStatusArea(const ServiceAnswers& answers, SourceDiagnosis row) {
    const std::string process = notifierProcess(answers);
    const auto answer = argumentsOf(answers, Question::notifierHost).constFirst().value<QDBusVariant>();
    // MATE's panel, its own watcher, says that there is no host, and shows items all the same.
    const bool isMate = process == "notification-ar" || process == "mate-panel";
    if (answer.variant().toBool() || isMate) {
        row.value = process;
        return row;
    }
    row.state = SourceState::absent;
    row.reason = (process.empty() ? "A program" : process) +
                 " keeps the list of status items, but no panel shows them: add a system tray to one.";
    return row;
}

std::string bluetoothValue(const ManagedObjects& objects, SourceDiagnosis& row) {
    int adapters = 0;
    bool isOn = false;
    int batteries = 0;
    for (const auto& interfaces : objects) {
        const auto adapter = interfaces.find(bluez::adapter);
        if (adapter != interfaces.end()) {
            ++adapters;
            isOn = isOn || adapter->value(QStringLiteral("Powered")).toBool();
        }
        batteries += interfaces.contains(bluez::battery) ? 1 : 0;
    }
    if (adapters == 0) {
        row.state = SourceState::absent;
        row.reason = "BlueZ runs, but this machine has no Bluetooth adapter, or it is blocked by hardware.";
        return {};
    }
    return isOn ? "on, " + std::to_string(batteries) + (batteries == 1 ? " level" : " levels") : "off";
}

} // namespace

SourceDiagnosis diagnoseNotifications(const ServiceAnswers& answers) {
    const QString name = QStringLiteral("org.freedesktop.Notifications");
    SourceDiagnosis row{"Notifications", name.toStdString()};
    row.state = stateOf(answers, Question::notificationServer, u"ssss");
    row.reason = usualReason(row.state);
    if (row.state == SourceState::ok) {
        const auto server = argumentsOf(answers, Question::notificationServer);
        row.value = (server[0].toString() + u' ' + server[2].toString()).toStdString();
    } else if (row.state == SourceState::absent && canBeStarted(answers, name)) {
        row.state = SourceState::ok;
        row.value = "started when needed";
    } else if (!answers.contains(Question::notificationServer)) {
        row.reason = noSessionBus;
    } else if (row.state == SourceState::absent) {
        row.reason = "No notification service runs, and none can be started: alerts stay unseen. Any notification "
                     "daemon will do.";
    }
    return row;
}

SourceDiagnosis diagnoseStatusArea(const ServiceAnswers& answers, TrayAnswer tray, bool hasWayland) {
    SourceDiagnosis row{"Status area", "org.kde.StatusNotifierWatcher"};
    if (tray == TrayAnswer::tray)
        return {row.name, "_NET_SYSTEM_TRAY_S0 of the X server", SourceState::ok, "X11 tray", {}};
    if (tray == TrayAnswer::silent)
        return {row.name, "the X server", SourceState::silent, {}, "The display does not answer."};
    row.state = stateOf(answers, Question::notifierHost, u"v");
    row.reason = usualReason(row.state);
    if (row.state == SourceState::ok)
        return watchedStatusArea(answers, std::move(row));
    if (row.state == SourceState::absent)
        row.reason = tray == TrayAnswer::noServer && !hasWayland
                         ? "There is no display here: the program prints to the terminal instead."
                         : "No panel of this desktop shows status items: a strip on the desktop stands in. GNOME "
                           "needs its AppIndicator extension, some panels a tray module.";
    return row;
}

SourceDiagnosis diagnosePortal(const ServiceAnswers& answers) {
    SourceDiagnosis row{"Appearance", "org.freedesktop.portal.Desktop"};
    row.state = stateOf(answers, Question::portalSettings, u"a{sa{sv}}");
    row.reason = usualReason(row.state);
    if (row.state == SourceState::absent)
        row.reason = answers.contains(Question::portalSettings)
                         ? "No desktop portal runs: light or dark follows the toolkit's palette."
                         : noSessionBus;
    if (row.state != SourceState::ok)
        return row;
    DesktopWishes wishes;
    const auto groups =
        qdbus_cast<QMap<QString, QVariantMap>>(argumentsOf(answers, Question::portalSettings).constFirst());
    for (auto group = groups.begin(); group != groups.end(); ++group)
        for (auto setting = group->begin(); setting != group->end(); ++setting)
            wishes.take(group.key(), setting.key(), setting.value());
    row.value = !wishes.dark() ? "no preference" : *wishes.dark() ? "dark" : "light";
    return row;
}

SourceDiagnosis diagnoseBluetooth(const ServiceAnswers& answers) {
    SourceDiagnosis row{std::string(reading_name::bluetooth), "org.bluez (system bus)"};
    row.state = stateOf(answers, Question::bluetoothObjects, u"a{oa{sa{sv}}}");
    row.reason = usualReason(row.state);
    if (row.state == SourceState::ok)
        row.value = bluetoothValue(
            qdbus_cast<ManagedObjects>(argumentsOf(answers, Question::bluetoothObjects).constFirst()), row);
    else if (row.state == SourceState::denied)
        row.reason = "The system bus does not let this user talk to BlueZ. On some systems the group \"bluetooth\" "
                     "may: usermod -aG bluetooth USER, then log in anew.";
    else if (row.state == SourceState::absent)
        row.reason = answers.contains(Question::bluetoothObjects)
                         ? "The Bluetooth service does not run (systemctl start bluetooth, package bluez)."
                         : "There is no system bus to ask.";
    return row;
}

} // namespace vantrix
