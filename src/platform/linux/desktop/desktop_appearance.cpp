#include "platform/linux/desktop/desktop_appearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace vantrix {

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

// The portal's answer to Read is wrapped in one variant more than the signal's value.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopAppearance::DesktopAppearance(const std::optional<QDBusConnection>& bus) : bus_(bus), announced_(dark()) {
    qGuiApp->installEventFilter(this);
    if (!bus_)
        return;
    bus_->connect(QString(), portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    // The portal often starts later than a program of the session.
    bus_->connect(QString(), QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                  QStringLiteral("NameOwnerChanged"), {portalName}, QString(), this,
                  SLOT(portalOwnerChanged(QString, QString, QString)));
    readScheme();
}

bool DesktopAppearance::dark() const {
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    return preferred_.value_or(window.lightness() < 128);
}

bool DesktopAppearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        QMetaObject::invokeMethod(
            this, [this] { take({}); }, Qt::QueuedConnection);
    return false;
}

void DesktopAppearance::portalOwnerChanged(const QString&, const QString&, const QString& newOwner) {
    if (!newOwner.isEmpty())
        readScheme();
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == appearanceGroup && key == schemeKey)
        take(value.variant());
}

void DesktopAppearance::readScheme() {
    auto message = QDBusMessage::createMethodCall(portalName, portalPath, settingsInterface, QStringLiteral("Read"));
    message << appearanceGroup << schemeKey;
    // Where no portal runs the palette does; starting one costs far more than it tells.
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus_->asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusMessage reply = done->reply();
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
            take(reply.arguments().constFirst());
    });
}

void DesktopAppearance::take(const QVariant& value) {
    if (value.isValid()) {
        const uint scheme = unwrapped(value).toUInt(); // 1 dark, 2 light, else no preference
        preferred_ = scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
    }
    if (dark() == announced_)
        return;
    announced_ = dark();
    Q_EMIT changed();
}

} // namespace vantrix
