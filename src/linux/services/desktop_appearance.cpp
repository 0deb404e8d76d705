#include "linux/services/desktop_appearance.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QPalette>

namespace vantrix {

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kdeGroups = QStringLiteral("org.kde.kdeglobals.");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

Appearance appearanceAfter(const DesktopWishes& wishes, const DesktopSettings& settings) {
    const QColor window = settings.window.value_or(QGuiApplication::palette().color(QPalette::Window));
    // Only a highlight colour that a theme has set: the toolkit's default says nothing about the user.
    const QPalette palette = QGuiApplication::palette();
    const bool themed = palette.isBrushSet(QPalette::Active, QPalette::Highlight);
    const auto highlight = themed ? std::optional(palette.color(QPalette::Highlight)) : settings.highlight;
    return {.dark = wishes.dark().value_or(window.lightness() < 128),
            .accent = wishes.accent() ? wishes.accent() : highlight,
            .reducesMotion = wishes.reducesMotion(),
            .highContrast = wishes.highContrast()};
}

} // namespace

DesktopAppearance::DesktopAppearance(std::shared_ptr<BusLink> link)
    : link_(std::move(link)), appearance_(appearanceAfter(wishes_, settings_)) {
    qGuiApp->installEventFilter(this);
    connect(&files_, &QFileSystemWatcher::fileChanged, this, &DesktopAppearance::readFiles);
    connect(&files_, &QFileSystemWatcher::directoryChanged, this, &DesktopAppearance::readFiles);
    watchFiles();
    equipToolkit();
    link_->whenConnected(this, [this](QDBusConnection& bus) { takeBus(bus); });
}

void DesktopAppearance::takeBus(QDBusConnection& bus) {
    bus.connect(QString(), portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    // The portal often starts later than a program of the session.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("NameOwnerChanged"), {portalName}, QString(), this,
                SLOT(portalOwnerChanged(QString, QString, QString)));
    readSettings();
}

bool DesktopAppearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        QMetaObject::invokeMethod(this, &DesktopAppearance::announce, Qt::QueuedConnection);
    return false;
}

void DesktopAppearance::portalOwnerChanged(const QString&, const QString&, const QString& newOwner) {
    if (!newOwner.isEmpty())
        return readSettings();
    wishes_ = {};
    announce();
}

void DesktopAppearance::settingChanged(const QDBusMessage& signal) {
    if (signal.signature() != u"ssv")
        return;
    const QVariantList arguments = signal.arguments();
    const QString group = arguments[0].toString();
    wishes_.take(group, arguments[1].toString(), arguments[2]);
    if (group.startsWith(kdeGroups)) // of a file that may not have been there before
        return readFiles();
    equipToolkit();
    announce();
}

void DesktopAppearance::readSettings() {
    QDBusConnection* bus = link_->bus();
    if (bus == nullptr)
        return;
    auto message = QDBusMessage::createMethodCall(portalName, portalPath, settingsInterface, QStringLiteral("ReadAll"));
    message << DesktopWishes::groups();
    // Without a portal the palette is good enough; starting one would cost too much.
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        takeSettings(done->reply());
    });
}

void DesktopAppearance::takeSettings(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != u"a{sa{sv}}")
        return;
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
    wishes_ = {};
    for (auto group = groups.begin(); group != groups.end(); ++group)
        for (auto setting = group->begin(); setting != group->end(); ++setting)
            wishes_.take(group.key(), setting.key(), setting.value());
    equipToolkit();
    announce();
}

/// A file that was replaced is watched no more until it is added again; of one that is not there, the folder is
/// watched.
void DesktopAppearance::watchFiles() {
    if (!settings_.files.isEmpty())
        files_.addPaths(settings_.files);
    if (settings_.userFile.isEmpty())
        return;
    const QString folder = QFileInfo(settings_.userFile).path();
    if (settings_.files.contains(settings_.userFile))
        files_.removePath(folder);
    else if (QFileInfo::exists(folder))
        files_.addPath(folder);
}

void DesktopAppearance::readFiles() {
    settings_ = DesktopSettings::read();
    watchFiles();
    equipToolkit();
    announce();
}

void DesktopAppearance::equipToolkit() {
    const bool gnome = followsGnomeSettings();
    const bool onWayland = QGuiApplication::platformName().startsWith(u"wayland");
    const auto font = gnome ? wishes_.gnomeFont(onWayland) : settings_.font;
    if (font && QGuiApplication::font() != *font) {
        QApplication::setFont(*font);
        Q_EMIT changed(); // for what is drawn in it elsewhere than in windows
    }
    const QString told = gnome ? wishes_.gnomeIcons() : settings_.iconTheme;
    const QString icons = told.isEmpty() ? QStringLiteral("Adwaita") : told;
    if (QIcon::themeName() != icons)
        QIcon::setThemeName(icons);
    if (settings_.dragDistance)
        QApplication::setStartDragDistance(*settings_.dragDistance);
}

void DesktopAppearance::announce() {
    const Appearance now = appearanceAfter(wishes_, settings_);
    if (now == appearance_)
        return;
    appearance_ = now;
    Q_EMIT changed();
}

std::unique_ptr<AppearanceSource> makeAppearanceSource() {
    return std::make_unique<DesktopAppearance>(sharedSessionBus());
}

} // namespace vantrix
