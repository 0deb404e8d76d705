#include "linux/services/session_lock.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace vantrix {
namespace {

const QString logind = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");

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
    link_->whenConnected(this, [this](QDBusConnection& bus) { takeBus(bus); });
}

void SessionLock::takeBus(QDBusConnection& bus) {
    bus.connect(QString(), managerPath, managerInterface, QStringLiteral("SessionRemoved"), this,
                SLOT(sessionRemoved(QDBusMessage)));
    if (!teller_)
        findSession();
}

void SessionLock::ask(const QDBusMessage& question, const std::function<void(const QDBusMessage&)>& answered) {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [answered](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        answered(done->reply());
    });
}

void SessionLock::findSession() {
    const QString own = qEnvironmentVariable("XDG_SESSION_ID");
    if (own.isEmpty())
        return findDisplay();
    auto question = QDBusMessage::createMethodCall(logind, managerPath, managerInterface, QStringLiteral("GetSession"));
    question.setAutoStartService(false);
    ask(question << own, [this](const QDBusMessage& reply) {
        const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (path.isEmpty()) // one of before, that the service manager still knows of
            findDisplay();
        else
            follow(path);
    });
}

void SessionLock::findDisplay() {
    auto question =
        QDBusMessage::createMethodCall(logind, QStringLiteral("/org/freedesktop/login1/user/self"),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QStringLiteral("org.freedesktop.login1.User") << QStringLiteral("Display");
    question.setAutoStartService(false);
    ask(question, [this](const QDBusMessage& reply) { follow(pathIn(reply.arguments().value(0))); });
}

void SessionLock::follow(const QString& session) {
    if (session.isEmpty() || teller_)
        return;
    session_ = session;
    teller_ = std::make_unique<BlankTeller>(
        link_,
        BlankService{
            logind, session, QStringLiteral("org.freedesktop.login1.Session"), {}, {}, QStringLiteral("LockedHint")});
    connect(teller_.get(), &BlankTeller::changed, this, &SessionLock::changed);
}

/// Nothing else would ever tell that it is locked no more.
void SessionLock::sessionRemoved(const QDBusMessage& signal) {
    if (!teller_ || signal.arguments().value(1).value<QDBusObjectPath>().path() != session_)
        return;
    teller_.reset();
    findSession();
    Q_EMIT changed();
}

} // namespace vantrix
