#pragma once

#include <optional>

#include <QColor>
#include <QStringList>
#include <QVariant>

namespace vantrix {

/// What the settings portal (org.freedesktop.portal.Settings) has told of the user's wishes. A value of another type
/// or range than agreed counts as not told.
class DesktopWishes {
  public:
    /// The groups whose settings are understood.
    static QStringList groups();

    /// Takes one setting; any other than those understood is ignored.
    void take(const QString& group, const QString& key, const QVariant& value);

    /// color-scheme; absent: no preference.
    std::optional<bool> dark() const { return dark_; }
    /// accent-color, in sRGB.
    std::optional<QColor> accent() const { return accent_; }
    /// Asked of all desktops' settings, then of GNOME's, then of KDE's.
    bool reducesMotion() const;

  private:
    std::optional<bool> dark_;
    std::optional<QColor> accent_;
    std::optional<bool> reducedMotion_;
    std::optional<bool> gnomeAnimations_;
    std::optional<double> kdeDurationFactor_;
};

} // namespace vantrix
