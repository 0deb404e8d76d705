#include "linux/services/blank_teller.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace vantrix {
namespace {

const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

bool saysBlank(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return saysBlank(value.value<QDBusVariant>().variant());
    if (value.metaType() == QMetaType::fromType<int>())
        return value.toInt() > 0;
    return value.metaType() == QMetaType::fromType<bool>() && value.toBool();
}

} // namespace

BlankTeller::BlankTeller(std::shared_ptr<BusLink> link, BlankService service)
    : link_(std::move(link)), service_(std::move(service)) {
    connect(link_.get(), &BusLink::disconnected, this, [this] { follow({}); });
    link_->whenConnected(this, [this](QDBusConnection& bus) { takeBus(bus); });
}

void BlankTeller::takeBus(QDBusConnection& bus) {
    // Without the service's name as the sender: the toolkit would wait for the bus to say who owns it.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus"), busName, QStringLiteral("NameOwnerChanged"),
                {service_.name}, QString(), this, SLOT(ownerChanged(QString, QString, QString)));
    if (service_.property.isEmpty())
        bus.connect(QString(), service_.path, service_.interface, service_.signal, this, SLOT(told(QDBusMessage)));
    else
        bus.connect(QString(), service_.path, propertiesInterface, QStringLiteral("PropertiesChanged"),
                    {service_.interface}, QString(), this, SLOT(propertiesChanged(QDBusMessage)));
    findOwner();
}

/// Another process, or none, is the service.
void BlankTeller::ownerChanged(const QString&, const QString&, const QString& newOwner) {
    follow(newOwner);
}

void BlankTeller::follow(const QString& owner) {
    owner_ = owner;
    take({});
    ask();
}

void BlankTeller::told(const QDBusMessage& signal) {
    if (signal.service() == owner_)
        take(signal.arguments().value(0));
}

void BlankTeller::propertiesChanged(const QDBusMessage& signal) {
    if (signal.service() != owner_ || signal.signature() != u"sa{sv}as")
        return;
    const auto values = qdbus_cast<QVariantMap>(signal.arguments()[1]);
    if (const auto value = values.find(service_.property); value != values.end())
        take(*value);
    else if (signal.arguments()[2].toStringList().contains(service_.property))
        ask();
}

void BlankTeller::call(QDBusMessage question, const std::function<void(const QDBusMessage&)>& answered) {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    question.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [answered](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        answered(done->reply());
    });
}

void BlankTeller::findOwner() {
    auto question = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"), busName,
                                                   QStringLiteral("GetNameOwner"));
    call(question << service_.name, [this](const QDBusMessage& reply) {
        if (owner_.isEmpty() && reply.type() == QDBusMessage::ReplyMessage)
            follow(reply.arguments().value(0).toString());
    });
}

/// What a service answers comes in one order with its signals.
void BlankTeller::ask() {
    if (owner_.isEmpty())
        return;
    const bool isProperty = !service_.property.isEmpty();
    auto question =
        QDBusMessage::createMethodCall(owner_, service_.path, isProperty ? propertiesInterface : service_.interface,
                                       isProperty ? QStringLiteral("Get") : service_.question);
    if (isProperty)
        question << service_.interface << service_.property;
    call(question, [this, owner = owner_](const QDBusMessage& reply) {
        if (owner == owner_)
            take(reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant());
    });
}

void BlankTeller::take(const QVariant& value) {
    if (std::exchange(isBlank_, saysBlank(value)) != isBlank_)
        Q_EMIT changed();
}

} // namespace vantrix
