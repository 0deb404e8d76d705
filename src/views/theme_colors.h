#pragma once

#include <optional>

#include <QColor>

namespace vantrix {

/// The colours of one appearance. The text styles are readable (contrast 4.5 or more, 7 or more where the desktop asks
/// for high contrast) on the window and on a card.
struct ThemeColors {
    QColor window;     ///< the background of windows; opaque
    QColor card;       ///< the background of a card or a group of controls, over the window; translucent
    QColor separator;  ///< hairlines
    QColor outline;    ///< the edges of cards and controls; transparent unless the desktop asks for high contrast
    QColor control;    ///< the background of a button or a field at rest, over a card
    QColor label;      ///< the text style of titles and values
    QColor secondary;  ///< the text style of labels
    QColor tertiary;   ///< the text style of remarks
    QColor disabled;   ///< texts and symbols of what cannot be used now; fainter than any text style
    QColor quaternary; ///< tracks behind bars and rings; too faint for text

    // For shapes. Text in one of these colours needs `readable`.
    QColor accent;
    QColor orange;
    QColor red;
    QColor green;
    QColor purple;

    bool areHighContrast() const { return outline.alpha() > 0; }

    /// `accent` replaces the program's own where the desktop names one.
    static ThemeColors of(bool dark, const std::optional<QColor>& accent, bool highContrast = false);

    /// `color`, darkened or lightened until text in it can be read on a card, or on another opaque background.
    QColor readable(const QColor& color) const;
    static QColor readable(const QColor& color, const QColor& ground);
    /// White, or black where white would be hard to see: for text on a shape filled with `fill`, and for a bold mark on
    /// it.
    static QColor textOn(const QColor& fill);
    static QColor markOn(const QColor& fill);

    bool operator==(const ThemeColors&) const = default;
};

/// One of the theme's colours, whatever the theme.
using ColorRole = QColor ThemeColors::*;

/// The contrast of two opaque colours by their relative luminances: 1 (none) to 21 (black and white).
double contrast(const QColor& a, const QColor& b);

/// `color`, moved towards black or white until its contrast with an opaque `ground` is `least`, 1 to 4.5.
QColor standingOut(const QColor& color, const QColor& ground, double least);

/// `color` with that opacity, 0 to 1.
QColor withAlpha(QColor color, double alpha);

/// What `color` looks like on an opaque `ground`.
QColor over(const QColor& color, const QColor& ground);

} // namespace vantrix
