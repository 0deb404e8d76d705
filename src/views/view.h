#pragma once

#include <optional>
#include <string_view>

#include <QAccessible>
#include <QWidget>

namespace vantrix {

class Theme;

/// A widget that paints itself in the theme's colours and tells assistive programs what it shows. Redraws and
/// remeasures itself when the theme changes.
class View : public QWidget {
    Q_OBJECT
  public:
    /// `theme` outlives the view.
    explicit View(const Theme& theme, QWidget* parent = nullptr);

    const Theme& theme() const { return theme_; }

    virtual QAccessible::Role accessibleRole() const { return QAccessible::Grouping; }
    /// What is read out; by default the accessible name. Called only while somebody listens.
    virtual QString accessibleText() const { return accessibleName(); }
    /// The value of a gauge or a bar, 0 to 1; absent where there is none.
    virtual std::optional<double> accessibleFraction() const { return std::nullopt; }

  protected:
    /// Shows `text` as it is in the tool tip, even where the toolkit would take it for markup and open what that names:
    /// a network's name may hold anything. Costs little while the text stays the same.
    void tellInToolTip(const QString& text);
    /// To be called when `accessibleText` or `accessibleFraction` has changed. Costs nothing while nobody listens.
    void announceChange();

  private:
    const Theme& theme_;
};

/// `english` in the user's language.
QString localizedText(std::string_view english);
/// The same with `value` in the place of its mark "%@".
QString localizedText(std::string_view english, const QString& value);

} // namespace vantrix
