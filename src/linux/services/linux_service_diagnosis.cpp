#include "linux/services/linux_service_diagnosis.h"

#include <utility>

#include <QDBusPendingCallWatcher>
#include <QTimer>

#include "linux/services/desktop_wishes.h"
#include "linux/status_area/xcb_support.h"
#include "support/finishes_within.h"

namespace vantrix {
namespace {

using Question = ServiceQuestion;

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");

QDBusMessage call(const QString& service, const QString& path, const QString& interface, const QString& method,
                  const QVariantList& arguments = {}) {
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false); // a diagnosis must not change what it describes
    return message;
}

QDBusMessage callBus(const QString& method, const QVariantList& arguments = {}) {
    return call(busName, QStringLiteral("/org/freedesktop/DBus"), busName, method, arguments);
}

TrayAnswer askXServer() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(xcb_connect(nullptr, nullptr),
                                                                                  xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0)
        return TrayAnswer::noServer;
    const auto selection = xcbAtom(connection.get(), "_NET_SYSTEM_TRAY_S0");
    const auto cookie = xcb_get_selection_owner(connection.get(), selection);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection.get(), cookie, nullptr));
    return reply && reply->owner != XCB_NONE ? TrayAnswer::tray : TrayAnswer::noTray;
}

TrayAnswer askXServer(std::chrono::milliseconds patience) {
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        return TrayAnswer::noServer;
    const auto answer = std::make_shared<TrayAnswer>();
    return finishesWithin(patience, [answer] { *answer = askXServer(); }) ? *answer : TrayAnswer::silent;
}

} // namespace

BusAddresses BusAddresses::standard() {
    const QString system = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
    return {sessionBusAddress(), system.isEmpty() ? QStringLiteral("unix:path=/run/dbus/system_bus_socket") : system};
}

LinuxServiceDiagnoses::LinuxServiceDiagnoses(const BusAddresses& addresses, std::chrono::milliseconds patience)
    : patience_(patience), session_(reach("Session bus", addresses.session, true)),
      system_(reach("System bus", addresses.system, session_.diagnosis.state != SourceState::silent)),
      tray_(askXServer(patience)) {
    leftThreadBehind = session_.diagnosis.state == SourceState::silent ||
                       system_.diagnosis.state == SourceState::silent || tray_ == TrayAnswer::silent;
    const QString notifications = QStringLiteral("org.freedesktop.Notifications");
    const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
    ask(session_, Question::startableServices, callBus(QStringLiteral("ListActivatableNames")));
    ask(session_, Question::notifierProcess, callBus(QStringLiteral("GetConnectionUnixProcessID"), {watcherName}));
    ask(session_, Question::notificationServer,
        call(notifications, QStringLiteral("/org/freedesktop/Notifications"), notifications,
             QStringLiteral("GetServerInformation")));
    ask(session_, Question::notifierHost,
        call(watcherName, QStringLiteral("/StatusNotifierWatcher"), QStringLiteral("org.freedesktop.DBus.Properties"),
             QStringLiteral("Get"), {watcherName, QStringLiteral("IsStatusNotifierHostRegistered")}));
    ask(session_, Question::portalSettings,
        call(portal, QStringLiteral("/org/freedesktop/portal/desktop"),
             QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"), {DesktopWishes::groups()}));
    ask(system_, Question::bluetoothObjects,
        call(QStringLiteral("org.bluez"), QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.ObjectManager"),
             QStringLiteral("GetManagedObjects")));
    if (unanswered_ == 0)
        QTimer::singleShot(0, this, &LinuxServiceDiagnoses::report);
}

LinuxServiceDiagnoses::Bus LinuxServiceDiagnoses::reach(const char* name, const std::optional<QString>& address,
                                                        bool mayConnect) const {
    Bus bus{nullptr, {name, "", SourceState::absent, {}, {}}};
    if (!address) {
        bus.diagnosis.reason = "There is none in this session: alerts, panel items and the desktop's colours need it.";
        return bus;
    }
    bus.diagnosis.source = address->section(u',', 0, 0).toStdString();
    if (!mayConnect) {
        bus.diagnosis.state = SourceState::silent;
        bus.diagnosis.reason = "Not asked: the toolkit still waits for the session bus.";
        return bus;
    }
    const auto connection = std::make_shared<std::shared_ptr<BusConnection>>();
    const auto connect = [connection, address = *address] { *connection = std::make_shared<BusConnection>(address); };
    if (!finishesWithin(patience_, connect)) {
        bus.diagnosis.state = SourceState::silent;
        bus.diagnosis.reason = "The bus takes the connection but does not answer.";
    } else if (!(*connection)->isConnected()) {
        bus.diagnosis.reason = "Nobody answers at this address.";
    } else {
        bus.connection = *connection;
        bus.diagnosis.state = SourceState::ok;
        bus.diagnosis.value = "connected";
    }
    return bus;
}

void LinuxServiceDiagnoses::ask(Bus& bus, ServiceQuestion question, const QDBusMessage& message) {
    if (!bus.connection)
        return;
    ++unanswered_;
    const auto pending = bus.connection->bus().asyncCall(message, static_cast<int>(patience_.count()));
    auto* watcher = new QDBusPendingCallWatcher(pending, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, question](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        answers_[question] = done->reply();
        if (--unanswered_ == 0)
            report();
    });
}

void LinuxServiceDiagnoses::report() {
    std::vector<SourceDiagnosis> rows{session_.diagnosis,
                                      system_.diagnosis,
                                      diagnoseBluetooth(answers_),
                                      diagnoseStatusArea(answers_, tray_, qEnvironmentVariableIsSet("WAYLAND_DISPLAY")),
                                      diagnoseNotifications(answers_),
                                      diagnosePortal(answers_)};
    for (SourceDiagnosis& row : diagnoseOwnFiles())
        rows.push_back(std::move(row));
    if (finished)
        finished(std::move(rows));
}

std::unique_ptr<ServiceDiagnoses> diagnoseServices(std::chrono::milliseconds patience) {
    return std::make_unique<LinuxServiceDiagnoses>(BusAddresses::standard(), patience);
}

} // namespace vantrix
