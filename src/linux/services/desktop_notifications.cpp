#include "linux/services/desktop_notifications.h"

#include <utility>

#include <QDBusPendingCallWatcher>
#include <QIcon>
#include <QTimer>

#include "linux/services/notification_picture.h"
#include "platform/application_service.h"
#include "support/localization.h"

namespace vantrix {
namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString servicePath = QStringLiteral("/org/freedesktop/Notifications");
/// Of a service that takes the body, unlike the title, for markup.
const QString markup = QStringLiteral("body-markup");
const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

/// What a click on the notification itself is called. Where it is told of, services show its text nowhere, or as a
/// button.
const QString clickAction = QStringLiteral("default");

/// The icon theme's name for it.
const QString programName = QStringLiteral("vantrix");

QVariantMap hints() {
    constexpr uchar normalUrgency = 1;
    QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)},
        {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
        {QStringLiteral("desktop-entry"), QString::fromLatin1(applicationId)},
    };
    // A program that is not installed has no icon that a service could find. Elsewhere it is not sent, because some
    // services show it beside the icon of that name.
    if (!QIcon::hasThemeIcon(programName))
        hints.insert(QStringLiteral("image-data"), QVariant::fromValue(programPicture()));
    return hints;
}

/// The only argument of a reply; absent when the reply is an error or has another signature.
template<typename T>
std::optional<T> answerOf(const QDBusMessage& reply, QStringView signature) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != signature)
        return std::nullopt;
    return reply.arguments().constFirst().value<T>();
}

} // namespace

DesktopNotifications::DesktopNotifications(std::shared_ptr<BusLink> link) : link_(std::move(link)) {
    // Without the service's name as the sender: the toolkit would wait for the bus to say who owns it.
    link_->whenConnected(this, [this](QDBusConnection& bus) {
        bus.connect(QString(), busPath, busName, QStringLiteral("NameOwnerChanged"), {serviceName}, QString(), this,
                    SLOT(serviceOwnerChanged(QString, QString, QString)));
        bus.connect(QString(), servicePath, serviceName, QStringLiteral("ActionInvoked"), this,
                    SLOT(actionInvoked(uint, QString)));
    });
    connect(link_.get(), &BusLink::disconnected, this, &DesktopNotifications::forgetNumbers);
}

void DesktopNotifications::post(const QString& identifier, const QString& title, const QString& body) {
    Posted& posted = posted_[identifier];
    if (posted.isUnanswered)
        posted.next = Texts{title, body};
    else
        notify(identifier, {title, body});
}

void DesktopNotifications::notify(const QString& identifier, const Texts& texts) {
    posted_[identifier].isUnanswered = true;
    if (capabilities_)
        return send(identifier, texts);
    const auto question =
        QDBusMessage::createMethodCall(serviceName, servicePath, serviceName, QStringLiteral("GetCapabilities"));
    call(question, [this, identifier, texts](const QDBusMessage& reply) {
        capabilities_ = answerOf<QStringList>(reply, u"as").value_or(QStringList(markup)); // the careful guess
        send(identifier, texts);
    });
}

void DesktopNotifications::send(const QString& identifier, const Texts& texts) {
    const Posted& posted = posted_[identifier];
    // Some that cannot show actions make a dialogue of a notification that has any.
    const bool tellsOfClicks = activated && capabilities_->contains(u"actions");
    const QStringList actions{clickAction, QString::fromStdString(localized("Open Vantrix"))};
    auto message = QDBusMessage::createMethodCall(serviceName, servicePath, serviceName, QStringLiteral("Notify"));
    constexpr int serviceDecidesHowLong = -1;
    message << QStringLiteral("Vantrix") << posted.id << programName << texts.title
            << (capabilities_->contains(markup) ? texts.body.toHtmlEscaped() : texts.body)
            << (tellsOfClicks ? actions : QStringList()) << hints() << serviceDecidesHowLong;
    call(message, [this, identifier, asked = resignations_](const QDBusMessage& reply) {
        takeAnswer(identifier, reply, asked == resignations_);
    });
}

void DesktopNotifications::takeAnswer(const QString& identifier, const QDBusMessage& reply, bool isCurrent) {
    Posted& posted = posted_[identifier];
    posted.isUnanswered = false;
    const auto id = answerOf<uint>(reply, u"u");
    // When another process has become the service meanwhile, the number means nothing to it.
    if (id && isCurrent)
        posted.id = *id;
    if (const auto next = std::exchange(posted.next, std::nullopt))
        notify(identifier, *next);
}

void DesktopNotifications::actionInvoked(uint id, const QString& action) {
    for (auto posted = posted_.cbegin(); posted != posted_.cend(); ++posted)
        if (posted->id == id && id != 0 && action == clickAction && activated)
            return activated(posted.key());
}

void DesktopNotifications::serviceOwnerChanged(const QString&, const QString& oldOwner, const QString&) {
    if (oldOwner.isEmpty())
        return; // the service has just started, perhaps for our call, which it will answer
    forgetNumbers();
}

void DesktopNotifications::forgetNumbers() {
    ++resignations_;
    capabilities_.reset();
    for (Posted& posted : posted_)
        posted.id = 0;
}

void DesktopNotifications::requestAuthorization(std::function<void(bool)> answer) {
    askBus(QStringLiteral("NameHasOwner"), {serviceName},
           [this, answer = std::move(answer)](const QDBusMessage& reply) {
               if (answerOf<bool>(reply, u"b").value_or(false))
                   return answer(true);
               askBus(QStringLiteral("ListActivatableNames"), {}, [answer](const QDBusMessage& names) {
                   answer(answerOf<QStringList>(names, u"as").value_or(QStringList()).contains(serviceName));
               });
           });
}

void DesktopNotifications::askBus(const QString& method, const QVariantList& arguments,
                                  std::function<void(const QDBusMessage&)> take) {
    auto message = QDBusMessage::createMethodCall(busName, busPath, busName, method);
    message.setArguments(arguments);
    call(message, std::move(take));
}

void DesktopNotifications::call(const QDBusMessage& message, std::function<void(const QDBusMessage&)> take) {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr) {
        QTimer::singleShot(0, this, [take = std::move(take)] { take(QDBusMessage()); });
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [take = std::move(take)](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        take(done->reply());
    });
}

std::unique_ptr<NotificationCenter> makeNotificationCenter() {
    return std::make_unique<DesktopNotifications>(sharedSessionBus());
}

} // namespace vantrix
