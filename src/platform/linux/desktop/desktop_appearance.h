#pragma once

#include <optional>

#include <QDBusConnection>
#include <QObject>

class QDBusVariant;

namespace vantrix {

/// Whether the desktop is dark or light, after org.freedesktop.portal.Settings (color-scheme) and, while nobody
/// answers there or there is no preference, after the application's palette. Never waits.
class DesktopAppearance : public QObject {
    Q_OBJECT
  public:
    /// Without a bus the palette alone decides.
    explicit DesktopAppearance(const std::optional<QDBusConnection>& bus);

    bool dark() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void portalOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void readScheme();
    void take(const QVariant& value);

    std::optional<QDBusConnection> bus_;
    std::optional<bool> preferred_;
    bool announced_;
};

} // namespace vantrix
