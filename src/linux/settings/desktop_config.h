#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QColor>
#include <QSettings>
#include <QString>
#include <QVariant>

namespace vantrix {

/// A desktop's configuration file (`kdeglobals`, `lxqt/lxqt.conf`): the user's, and those of the session and the
/// system, which say what counts by default.
class DesktopConfig {
  public:
    /// `name`: below the folders for configuration (XDG_CONFIG_HOME, XDG_CONFIG_DIRS). A key may be in none of them.
    explicit DesktopConfig(const QString& name);

    /// Of the first file that says something under "Group/key"; invalid where none does.
    QVariant value(const QString& key) const;
    /// A value with commas in it, whole; empty where there is none.
    QString text(const QString& key) const;
    /// A colour as KDE writes it ("49,54,59").
    std::optional<QColor> color(const QString& key) const;
    /// A number of at least 1.
    std::optional<int> number(const QString& key) const;

    static std::optional<QColor> colorOf(const QVariant& value);

  private:
    std::vector<std::unique_ptr<QSettings>> files_;
};

} // namespace vantrix
