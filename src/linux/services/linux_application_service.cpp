#include "linux/services/linux_application_service.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QHash>

#include "linux/services/bus_probe.h"
#include "menubar/display_choices.h"
#include "posix/local_socket.h"

namespace vantrix {
namespace {

constexpr std::chrono::milliseconds askPatience{500}; // with the bus, and again with the instance

constexpr std::string_view popoverRequest = "show-popover";
constexpr std::string_view settingsRequest = "show-settings";

const QString applicationName = QString::fromLatin1(applicationId);
const QString applicationPath = QStringLiteral("/app/vantrix/Vantrix");
const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
const QString settingsAction = QStringLiteral("settings");

/// In the platform data of our own requests: several sessions of a user may share one bus, and each has an instance.
const QString sessionKey = QStringLiteral("app.vantrix.Session");

const QStringList tokenKeys{QStringLiteral("activation-token"), QStringLiteral("desktop-startup-id")};

const QString applicationMethods = QStringLiteral(R"(<interface name="org.freedesktop.Application">
<method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
<method name="Open"><arg type="as" name="uris" direction="in"/>
<arg type="a{sv}" name="platform_data" direction="in"/></method>
<method name="ActivateAction"><arg type="s" name="action_name" direction="in"/>
<arg type="av" name="parameter" direction="in"/><arg type="a{sv}" name="platform_data" direction="in"/></method>
</interface>
)");

QString ownSession() {
    return QString::fromStdString(instancePrefix());
}

QVariantMap platformData(const QDBusMessage& call) {
    return qdbus_cast<QVariantMap>(call.arguments().constLast());
}

/// Absent where there is no such action.
std::optional<std::string> requestOfAction(const QString& action, const QVariantList& parameters) {
    if (action == QStringLiteral("quit") && parameters.isEmpty())
        return "quit";
    if (action != settingsAction || parameters.size() > 1)
        return std::nullopt;
    std::string request(settingsRequest);
    if (parameters.isEmpty())
        return request;
    const std::string tab = parameters[0].toString().toStdString();
    return choiceNamed(settingsTabs, tab) ? std::optional(request + ' ' + tab) : std::nullopt;
}

/// The methods, and what they take.
const QHash<QString, QString> signatures{
    {QStringLiteral("Activate"), QStringLiteral("a{sv}")},
    {QStringLiteral("Open"), QStringLiteral("asa{sv}")},
    {QStringLiteral("ActivateAction"), QStringLiteral("sava{sv}")},
};

/// Absent where the arguments are none that the method takes.
std::optional<std::string> requestOf(const QDBusMessage& call) {
    if (call.signature() != signatures.value(call.member()))
        return std::nullopt;
    if (call.member() != QStringLiteral("ActivateAction"))
        return std::string(popoverRequest);
    return requestOfAction(call.arguments()[0].toString(), qdbus_cast<QVariantList>(call.arguments()[1]));
}

/// A Wayland compositor gives the keyboard to a window that has the token of whoever asked for it; the toolkit looks
/// for one where programs find that of their start.
void takeToken(const QVariantMap& told) {
    for (const QString& key : tokenKeys)
        if (const QByteArray token = told.value(key).toByteArray(); !token.isEmpty()) {
            qputenv("XDG_ACTIVATION_TOKEN", token);
            return;
        }
}

QDBusMessage callFor(const std::string& request) {
    const bool isPopover = request == popoverRequest;
    auto call =
        QDBusMessage::createMethodCall(applicationName, applicationPath, applicationInterface,
                                       isPopover ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    call.setAutoStartService(false);
    if (!isPopover) {
        const QString text = QString::fromStdString(request);
        const QString tab = text.section(u' ', 1);
        const bool isSettings = request.starts_with(settingsRequest);
        call << (isSettings ? settingsAction : text) << QVariantList(tab.isEmpty() ? 0 : 1, tab);
    }
    QVariantMap told{{sessionKey, ownSession()}};
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        told.insert(tokenKeys[0], token);
    return call << told;
}

} // namespace

LinuxApplicationService::LinuxApplicationService(std::shared_ptr<BusLink> link) : link_(std::move(link)) {
    link_->whenConnected(this, [this](const QDBusConnection& bus) { take(bus); });
}

LinuxApplicationService::~LinuxApplicationService() {
    leave();
}

void LinuxApplicationService::leave() {
    if (bus_)
        bus_->unregisterObject(applicationPath);
}

/// The object comes first: once the name is there, the bus delivers what it has started the program for.
void LinuxApplicationService::take(const QDBusConnection& bus) {
    leave();
    bus_ = bus;
    bus_->registerVirtualObject(applicationPath, this);
    auto request =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    bus_->send(request << applicationName << 0U); // wait for it in line, and let nobody replace us
}

QString LinuxApplicationService::introspect(const QString&) const {
    return applicationMethods;
}

bool LinuxApplicationService::handleMessage(const QDBusMessage& call, const QDBusConnection& bus) {
    if ((!call.interface().isEmpty() && call.interface() != applicationInterface) ||
        !signatures.contains(call.member()))
        return false; // the toolkit refuses it
    const auto request = requestOf(call);
    if (!request)
        return bus.send(call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("No such action or arguments")));
    const QVariantMap told = platformData(call);
    if (told.value(sessionKey, ownSession()) != ownSession())
        return bus.send(call.createErrorReply(QDBusError::Failed, QStringLiteral("This is another session's")));
    if (request->starts_with(settingsRequest) && QGuiApplication::platformName().startsWith(u"wayland"))
        takeToken(told);
    const bool isSent = bus.send(call.createReply()); // before a request that ends the program
    if (received)
        received(*request);
    return isSent;
}

bool askApplicationOn(const QString& address, const std::string& request) {
    if (!busAnswers(address, askPatience))
        return false;
    BusConnection connection(address);
    const auto call = callFor(request);
    return connection.bus().call(call, QDBus::Block, static_cast<int>(askPatience.count())).type() ==
           QDBusMessage::ReplyMessage;
}

bool askApplicationService(const std::string& request) {
    const auto address = sessionBusAddress();
    return address && askApplicationOn(*address, request);
}

std::unique_ptr<ApplicationService> makeApplicationService() {
    return std::make_unique<LinuxApplicationService>(sharedSessionBus());
}

} // namespace vantrix
