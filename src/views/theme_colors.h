#pragma once

#include <optional>

#include <QColor>

namespace vantrix {

/// The colours of one appearance. The text styles are readable (contrast 4.5 or more) on the window and on a card.
struct ThemeColors {
    QColor window;     ///< the ground of windows; opaque
    QColor card;       ///< the ground of a card or a group of controls, over the window; translucent
    QColor separator;  ///< hair lines
    QColor control;    ///< the ground of a button or a field at rest, over a card
    QColor label;      ///< the text style of titles and values
    QColor secondary;  ///< the text style of labels
    QColor tertiary;   ///< the text style of remarks
    QColor quaternary; ///< tracks behind bars and rings; too faint for text

    // For shapes. Where one of them colours a text, ask `readable` for it.
    QColor accent;
    QColor orange;
    QColor red;
    QColor green;
    QColor purple;

    /// `accent` replaces the program's own where the desktop names one.
    static ThemeColors of(bool dark, const std::optional<QColor>& accent);

    /// `color`, darkened or lightened as far as a text in it on a card, or on another opaque ground, needs.
    QColor readable(const QColor& color) const;
    static QColor readable(const QColor& color, const QColor& ground);
    /// White, or black where that is the better one: for a text on a shape filled with `fill`, and for a bold mark.
    static QColor textOn(const QColor& fill);
    static QColor markOn(const QColor& fill);

    bool operator==(const ThemeColors&) const = default;
};

/// One of the theme's colours, whatever the theme.
using ColorRole = QColor ThemeColors::*;

/// How well a text of one opaque colour is seen on another: 1 (not at all) to 21 (black on white), by their relative
/// luminances.
double contrast(const QColor& a, const QColor& b);

/// `color` with that opacity, 0 to 1.
QColor withAlpha(QColor color, double alpha);

/// What `color` looks like over an opaque `ground`.
QColor over(const QColor& color, const QColor& ground);

} // namespace vantrix
