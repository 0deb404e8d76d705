#include "linux/status_area/notifier_watch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>

namespace vantrix {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString busName = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

QDBusPendingCall askBus(const QDBusConnection& bus, const QString& method, const QString& argument) {
    auto message = QDBusMessage::createMethodCall(busName, busPath, busName, method);
    message << argument;
    return bus.asyncCall(message);
}

} // namespace

std::string processName(uint pid) {
    QFile file(QStringLiteral("/proc/%1/comm").arg(pid));
    return file.open(QIODevice::ReadOnly) ? file.read(64).trimmed().toStdString() : std::string();
}

NotifierHost notifierHostOfProcess(uint pid) {
    NotifierHost host = notifierHostNamed(processName(pid));
    host.process = pid;
    return host;
}

NotifierWatch::NotifierWatch(std::shared_ptr<BusLink> link, HostOfProcess hostOfProcess)
    : link_(std::move(link)), hostOfProcess_(std::move(hostOfProcess)) {
    link_->whenConnected(this, [this](QDBusConnection& bus) { takeBus(bus); });
    connect(link_.get(), &BusLink::disconnected, this, [this] { follow({}); });
}

void NotifierWatch::takeBus(QDBusConnection& bus) {
    bus.connect(QString(), busPath, busName, QStringLiteral("NameOwnerChanged"), {watcherName}, QString(), this,
                SLOT(ownerChanged(QString, QString, QString)));
    auto* watcher = new QDBusPendingCallWatcher(askBus(bus, QStringLiteral("GetNameOwner"), watcherName), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusPendingReply<QString> reply = *done;
        if (reply.isValid() && owner_.isEmpty())
            follow(reply.value());
    });
}

void NotifierWatch::ownerChanged(const QString&, const QString&, const QString& newOwner) {
    if (newOwner != owner_)
        follow(newOwner);
}

void NotifierWatch::follow(const QString& owner) {
    owner_ = owner;
    settle(std::nullopt);
    if (!owner_.isEmpty())
        askProcess();
}

void NotifierWatch::askProcess() {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    auto* watcher =
        new QDBusPendingCallWatcher(askBus(*bus, QStringLiteral("GetConnectionUnixProcessID"), owner_), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, owner = owner_](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusPendingReply<uint> reply = *done;
        if (owner != owner_)
            return;
        process_ = reply.isValid() ? reply.value() : 0;
        settle(reply.isValid() ? hostOfProcess_(reply.value()) : NotifierHost());
    });
}

void NotifierWatch::settle(std::optional<NotifierHost> host) {
    if (!host && !host_)
        return;
    host_ = host;
    Q_EMIT changed();
}

} // namespace vantrix
