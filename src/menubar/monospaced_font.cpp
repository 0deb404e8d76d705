#include "menubar/monospaced_font.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextLayout>

namespace vantrix {
namespace {

constexpr std::size_t mostLines = 512; // rates take many forms in a week; start over rather than grow

// The toolkit rounds sizes and metrics to whole pixels. Type is therefore shaped several times too large and scaled
// down, which keeps fractions of a point.
constexpr double magnification = 8.0;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

void append(MonospacedFont::Line& line, const MonospacedFont::Line& part, double x) {
    for (QGlyphRun run : part.runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions)
            position.rx() += x;
        run.setPositions(positions);
        line.runs.append(run);
    }
}

} // namespace

MonospacedFont::MonospacedFont(double size, QFont::Weight weight)
    : MonospacedFont(QGuiApplication::font(), size, weight) {}

MonospacedFont::MonospacedFont(const QFont& base, double size, QFont::Weight weight) : font_(base) {
    font_.setPixelSize(static_cast<int>(std::lround(size * magnification)));
    font_.setWeight(weight);
    font_.setKerning(false);
    // Hinted widths differ from scale to scale; a row must have the same proportions on every screen.
    font_.setHintingPreference(QFont::PreferNoHinting);
    capHeight_ = QFontMetricsF(font_).capHeight() / magnification;
    for (std::size_t digit = 0; digit < digits_.size(); ++digit) {
        digits_[digit] = shapeNaturally(QString::number(digit));
        digitWidth_ = std::max(digitWidth_, digits_[digit].width);
    }
}

QRawFont MonospacedFont::reduced(const QRawFont& magnified) const {
    for (const auto& [known, small] : reducedFonts_)
        if (known == magnified)
            return small;
    QRawFont small = magnified;
    small.setPixelSize(magnified.pixelSize() / magnification);
    reducedFonts_.append({magnified, small});
    return small;
}

MonospacedFont::Line MonospacedFont::shapeNaturally(const QString& text) const {
    QTextLayout layout(text, font_);
    layout.beginLayout();
    const QTextLine textLine = layout.createLine();
    layout.endLayout();
    // Glyph positions count from the top of the line; ours from the baseline.
    const QPointF baseline(0.0, textLine.ascent());
    Line line;
    line.width = textLine.horizontalAdvance() / magnification;
    line.runs = layout.glyphRuns();
    for (QGlyphRun& run : line.runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions)
            position = (position - baseline) / magnification;
        run.setPositions(positions);
        run.setRawFont(reduced(run.rawFont()));
    }
    return line;
}

MonospacedFont::Line MonospacedFont::shape(const QString& text) const {
    Line line;
    for (qsizetype i = 0; i < text.size();) {
        if (isDigit(text[i])) {
            const Line& digit = digits_[text[i].unicode() - u'0'];
            append(line, digit, line.width + (digitWidth_ - digit.width) / 2.0);
            line.width += digitWidth_;
            ++i;
            continue;
        }
        qsizetype end = i;
        while (end < text.size() && !isDigit(text[end]))
            ++end;
        const Line words = shapeNaturally(text.mid(i, end - i));
        append(line, words, line.width);
        line.width += words.width;
        i = end;
    }
    return line;
}

const MonospacedFont::Line& MonospacedFont::line(const std::string& text) const {
    const auto known = lines_.find(text);
    if (known != lines_.end())
        return known->second;
    if (lines_.size() >= mostLines)
        lines_.clear();
    return lines_.emplace(text, shape(QString::fromStdString(text))).first->second;
}

void MonospacedFont::draw(QPainter& painter, QPointF origin, const std::string& text, const QColor& color) const {
    painter.setPen(color);
    for (const QGlyphRun& run : line(text).runs)
        painter.drawGlyphRun(origin, run);
}

} // namespace vantrix
