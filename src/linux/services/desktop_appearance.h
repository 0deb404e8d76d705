#pragma once

#include <memory>

#include <QDBusMessage>
#include <QFileSystemWatcher>

#include "linux/services/bus_link.h"
#include "linux/services/desktop_settings.h"
#include "linux/services/desktop_wishes.h"
#include "platform/appearance.h"

namespace vantrix {

/// The appearance that org.freedesktop.portal.Settings reports; while nobody answers there, or there is no preference,
/// that of the desktop's files, else of the application's palette. Never waits, and never starts the portal. Gives the
/// toolkit the desktop's font and icons, as the toolkit's own plug-ins for desktops stay out.
class DesktopAppearance : public AppearanceSource {
    Q_OBJECT
  public:
    /// Without a bus the palette alone decides. While a bus is gone, what was told on it stands.
    explicit DesktopAppearance(std::shared_ptr<BusLink> link);

    Appearance appearance() const override { return appearance_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private Q_SLOTS:
    void portalOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void settingChanged(const QDBusMessage& signal);

  private:
    void takeBus(QDBusConnection& bus);
    void readSettings();
    void takeSettings(const QDBusMessage& reply);
    void readFiles();
    void watchFiles();
    void equipToolkit();
    void announce();

    std::shared_ptr<BusLink> link_;
    DesktopWishes wishes_;
    DesktopSettings settings_ = DesktopSettings::read();
    QFileSystemWatcher files_;
    Appearance appearance_;
};

} // namespace vantrix
