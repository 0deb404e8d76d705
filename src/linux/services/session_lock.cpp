#include "linux/services/session_lock.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace vantrix {
namespace {

const QString logind = QStringLiteral("org.freedesktop.login1");

/// Of a session: its identifier, and its path.
QString pathIn(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusVariant>())
        return {};
    const QVariant told = value.value<QDBusVariant>().variant();
    if (told.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    const auto session = told.value<QDBusArgument>();
    if (session.currentSignature() != u"(so)")
        return {};
    QString identifier;
    QDBusObjectPath path;
    session.beginStructure();
    session >> identifier >> path;
    session.endStructure();
    return identifier.isEmpty() ? QString() : path.path();
}

} // namespace

SessionLock::SessionLock(std::shared_ptr<BusLink> systemBus) : link_(std::move(systemBus)) {
    link_->whenConnected(this, [this](QDBusConnection& bus) { findSession(bus); });
}

/// The user's graphical one, as a program that the user's service manager started belongs to none itself.
void SessionLock::findSession(QDBusConnection& bus) {
    if (teller_)
        return;
    auto message =
        QDBusMessage::createMethodCall(logind, QStringLiteral("/org/freedesktop/login1/user/self"),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << QStringLiteral("org.freedesktop.login1.User") << QStringLiteral("Display");
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        follow(pathIn(done->reply().arguments().value(0)));
    });
}

void SessionLock::follow(const QString& session) {
    if (session.isEmpty() || teller_)
        return;
    teller_ = std::make_unique<BlankTeller>(
        link_,
        BlankService{
            logind, session, QStringLiteral("org.freedesktop.login1.Session"), {}, {}, QStringLiteral("LockedHint")});
    connect(teller_.get(), &BlankTeller::changed, this, &SessionLock::changed);
}

} // namespace vantrix
