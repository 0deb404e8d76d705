#include "linux/services/bus_link.h"

#include <algorithm>
#include <utility>

#include <QRegularExpression>

#include "linux/services/bus_probe.h"

namespace vantrix {
namespace {

constexpr std::chrono::seconds busPatience{2};
constexpr int mostDoublings = 6;

/// The address of whatever bus is at that place: each daemon has an identifier of its own, and a client that was told
/// one refuses the daemon's successor.
QString ofAnyDaemon(QString address) {
    static const QRegularExpression identifier(QStringLiteral(",guid=[^,;]*"));
    return address.remove(identifier);
}

std::shared_ptr<BusLink> sharedLink(std::weak_ptr<BusLink>& shared, std::optional<QString> (*address)()) {
    auto link = shared.lock();
    if (!link)
        shared = link = std::make_shared<BusLink>(address());
    return link;
}

} // namespace

BusLink::BusLink(const std::optional<QString>& address, std::chrono::milliseconds pause)
    : address_(address), pause_(pause) {
    retry_.setSingleShot(true);
    connect(&retry_, &QTimer::timeout, this, &BusLink::tryToConnect);
    if (address_)
        tryToConnect();
}

QDBusConnection* BusLink::bus() {
    return isConnected_ ? &connection_->bus() : nullptr;
}

void BusLink::whenConnected(const QObject* receiver, const std::function<void(QDBusConnection&)>& take) {
    connect(this, &BusLink::connected, receiver, [this, take] { take(connection_->bus()); });
    if (isConnected_)
        take(connection_->bus());
}

void BusLink::tryToConnect() {
    const auto made = std::make_shared<std::unique_ptr<BusConnection>>();
    runner_.run(
        [made, address = ofAnyDaemon(*address_)] {
            if (busAnswers(address, busPatience))
                *made = std::make_unique<BusConnection>(address);
        },
        [this, made] { take(std::move(*made)); });
}

void BusLink::take(std::unique_ptr<BusConnection> made) {
    if (!made)
        return tryAgain();
    made->bus().connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                        SLOT(lose()));
    if (!made->isConnected()) // asked only now: from here on the signal tells
        return tryAgain();
    failures_ = 0;
    isConnected_ = true;
    connection_ = std::move(made);
    Q_EMIT connected();
}

void BusLink::lose() {
    if (std::exchange(isConnected_, false))
        tryAgain();
}

void BusLink::tryAgain() {
    retry_.start(pause_ * (1 << std::min(failures_, mostDoublings)));
    ++failures_;
    Q_EMIT disconnected();
}

std::shared_ptr<BusLink> sharedSessionBus() {
    static std::weak_ptr<BusLink> shared;
    return sharedLink(shared, sessionBusAddress);
}

std::shared_ptr<BusLink> sharedSystemBus() {
    static std::weak_ptr<BusLink> shared;
    return sharedLink(shared, systemBusAddress);
}

} // namespace vantrix
