#pragma once

#include <map>
#include <memory>

#include <QFont>
#include <QObject>
#include <QPalette>

#include "menubar/monospaced_font.h"
#include "platform/appearance.h"
#include "views/text_measure.h"
#include "views/theme_colors.h"

namespace vantrix {

/// The one place for the colours and fonts of everything but the status item. Follows the desktop's appearance and its
/// text size while the program runs. Main thread only.
class Theme : public QObject {
    Q_OBJECT
  public:
    /// `source` outlives the theme.
    explicit Theme(const AppearanceSource& source);

    const ThemeColors& colors() const { return colors_; }
    bool isDark() const { return appearance_.dark; }
    bool reducesMotion() const { return appearance_.reducesMotion; }

    /// How much larger than usual the desktop's text is: 1 to 3.
    double textScale() const { return textScale_; }
    /// A length that goes with the text, in points.
    double scaled(double points) const { return points * textScale_; }

    /// The colours for what the toolkit draws itself: menus, tool tips.
    QPalette palette() const;

    /// The system font; `points` at the usual text size.
    QFont font(double points, QFont::Weight weight = QFont::Normal) const { return measure(points, weight).font(); }
    /// How large texts are in it. Stays valid until `changed`.
    const TextMeasure& measure(double points, QFont::Weight weight = QFont::Normal) const;
    /// The same with digits of equal advance. Stays valid until `changed`.
    const MonospacedFont& digits(double points, QFont::Weight weight = QFont::Normal) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void changed();

  private:
    void refresh();

    const AppearanceSource& source_;
    Appearance appearance_;
    ThemeColors colors_;
    QString family_;
    double textScale_ = 1.0;
    using Kind = std::pair<double, QFont::Weight>; // points at the usual text size
    mutable std::map<Kind, std::unique_ptr<TextMeasure>> measures_;
    mutable std::map<Kind, std::unique_ptr<MonospacedFont>> digits_;
};

} // namespace vantrix
