#pragma once

#include <optional>

#include <QColor>
#include <QFont>
#include <QStringList>
#include <QVariant>

namespace vantrix {

/// The user's preferences as the settings portal (org.freedesktop.portal.Settings) reports them. A value of the wrong
/// type or out of range counts as not reported.
class DesktopWishes {
  public:
    /// The groups that hold the settings below.
    static QStringList groups();

    /// Takes over one setting; unknown ones are ignored.
    void take(const QString& group, const QString& key, const QVariant& value);

    /// color-scheme; absent: no preference.
    std::optional<bool> dark() const { return dark_; }
    /// accent-color, in sRGB.
    std::optional<QColor> accent() const { return accent_; }
    /// From the setting that all desktops share, else from GNOME's, else from KDE's.
    bool reducesMotion() const;
    /// GNOME's font-name, on Wayland enlarged by text-scaling-factor; the X server's resolution has that in it.
    std::optional<QFont> gnomeFont(bool onWayland) const;
    /// GNOME's icon-theme; empty where it is not told.
    QString gnomeIcons() const { return gnomeIcons_; }
    /// contrast, else GNOME's older setting.
    bool highContrast() const { return contrast_.value_or(gnomeContrast_.value_or(false)); }

  private:
    std::optional<bool> dark_;
    std::optional<QColor> accent_;
    std::optional<bool> reducedMotion_;
    std::optional<bool> contrast_;
    std::optional<bool> gnomeContrast_;
    std::optional<bool> gnomeAnimations_;
    std::optional<QFont> gnomeFont_;
    std::optional<double> gnomeTextScale_;
    QString gnomeIcons_;
    std::optional<double> kdeDurationFactor_;
};

} // namespace vantrix
