#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

namespace vantrix {

/// A font, and how large texts are in it, in points. Widths are remembered: layouts ask for the same ones again and
/// again, and measuring a text costs more than drawing it. Main thread only.
class TextMeasure {
  public:
    explicit TextMeasure(const QFont& font) : font_(font), metrics_(font) {}

    const QFont& font() const { return font_; }
    const QFontMetricsF& metrics() const { return metrics_; }
    double width(const QString& text) const;

  private:
    QFont font_;
    QFontMetricsF metrics_;
    mutable QHash<QString, double> widths_;
};

} // namespace vantrix
