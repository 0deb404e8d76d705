#pragma once

#include <memory>
#include <optional>

#include <QColor>
#include <QObject>

namespace vantrix {

/// Colours that the system defines for all programs.
struct SystemColors {
    QColor orange;
    QColor red;
    QColor green;
    QColor purple;

    bool operator==(const SystemColors&) const = default;
};

/// How programs on this desktop should look.
struct Appearance {
    bool dark = false;
    std::optional<QColor> accent;            ///< the user's highlight colour; absent: the program's own
    bool reducesMotion = false;              ///< the user wants no animations
    bool highContrast = false;               ///< the user wants edges and texts that stand out
    std::optional<SystemColors> colors = {}; ///< of this appearance; absent: the program's own

    bool operator==(const Appearance&) const = default;
};

/// Follows the desktop's appearance. Never waits for the desktop: until it answers, the application's palette does.
class AppearanceSource : public QObject {
    Q_OBJECT
  public:
    virtual Appearance appearance() const = 0;

  Q_SIGNALS:
    void changed();
};

/// The appearance of this desktop. Made after the application object.
std::unique_ptr<AppearanceSource> makeAppearanceSource();

} // namespace vantrix
