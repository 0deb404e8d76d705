#pragma once

#include <optional>

#include <QDBusConnection>
#include <QDBusMessage>

#include "linux/services/desktop_wishes.h"
#include "platform/appearance.h"

namespace vantrix {

/// The appearance that org.freedesktop.portal.Settings reports; while nobody answers there, or there is no preference,
/// that of the application's palette. Never waits, and never starts the portal.
class DesktopAppearance : public AppearanceSource {
    Q_OBJECT
  public:
    /// Without a bus the palette alone decides.
    explicit DesktopAppearance(const std::optional<QDBusConnection>& bus);

    Appearance appearance() const override { return appearance_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private Q_SLOTS:
    void portalOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void settingChanged(const QDBusMessage& signal);

  private:
    void readSettings();
    void takeSettings(const QDBusMessage& reply);
    void announce();

    std::optional<QDBusConnection> bus_;
    DesktopWishes wishes_;
    Appearance appearance_;
};

} // namespace vantrix
