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
    ask();
}

/// Another process, or none, is the service.
void BlankTeller::ownerChanged(const QString&, const QString&, const QString& newOwner) {
    follow(newOwner);
    if (!newOwner.isEmpty())
        ask();
}

void BlankTeller::follow(const QString& owner) {
    owner_ = owner;
    take({});
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

void BlankTeller::ask() {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    const bool isProperty = !service_.property.isEmpty();
    auto message = QDBusMessage::createMethodCall(service_.name, service_.path,
                                                  isProperty ? propertiesInterface : service_.interface,
                                                  isProperty ? QStringLiteral("Get") : service_.question);
    if (isProperty)
        message << service_.interface << service_.property;
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        takeAnswer(done->reply());
    });
}

/// What a service answers comes in one order with its signals. The bus answers for one that does not run.
void BlankTeller::takeAnswer(const QDBusMessage& reply) {
    if (reply.service().isEmpty() || reply.service() == busName || (!owner_.isEmpty() && reply.service() != owner_))
        return;
    owner_ = reply.service();
    take(reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant());
}

void BlankTeller::take(const QVariant& value) {
    if (std::exchange(isBlank_, saysBlank(value)) != isBlank_)
        Q_EMIT changed();
}

} // namespace vantrix
