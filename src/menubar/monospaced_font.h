#pragma once

#include <array>
#include <string>
#include <unordered_map>

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRawFont>

class QColor;
class QPainter;

namespace vantrix {

/// The system font in one size and weight, with digits of equal width whatever the font's own are: each is centred in a
/// cell as wide as the widest one. Sizes and widths are in points, whatever the scale or resolution of the device drawn
/// to. Main thread only.
class MonospacedFont {
  public:
    MonospacedFont(double size, QFont::Weight weight);
    /// The same with a given font family, in `base`'s style.
    MonospacedFont(const QFont& base, double size, QFont::Weight weight);

    double capHeight() const { return capHeight_; }
    double width(const std::string& text) const { return line(text).width; }

    /// Draws `text` (UTF-8) with its baseline starting at `origin`.
    void draw(QPainter& painter, QPointF origin, const std::string& text, const QColor& color) const;

    /// Shaped text; the glyphs' positions are relative to the start of the baseline.
    struct Line {
        QList<QGlyphRun> runs;
        double width = 0.0;
    };
    const Line& line(const std::string& text) const;

  private:
    Line shape(const QString& text) const;
    Line shapeNaturally(const QString& text) const;
    QRawFont reduced(const QRawFont& magnified) const;

    QFont font_; // magnified
    std::array<Line, 10> digits_;
    double capHeight_ = 0.0;
    double digitWidth_ = 0.0;
    mutable QList<std::pair<QRawFont, QRawFont>> reducedFonts_; // one each: every copy would fill a glyph cache
    mutable std::unordered_map<std::string, Line> lines_; // the texts of a row repeat; shaping costs more than drawing
};

} // namespace vantrix
