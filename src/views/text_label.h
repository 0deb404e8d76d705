#pragma once

#include <QFont>

#include "views/theme_colors.h"
#include "views/view.h"

class QFontMetricsF;

namespace vantrix {

class TextMeasure;

/// A text that takes as many lines as it needs or, where it has to stay on one, shrinks a little, then ends in an
/// ellipsis and is shown whole in its tool tip.
class TextLabel : public View {
    Q_OBJECT
  public:
    struct Style {
        double points = 11.0;
        QFont::Weight weight = QFont::Normal;
        ColorRole color = &ThemeColors::label;
        bool wraps = false;                 ///< more lines rather than an ellipsis
        bool monospaced = false;            ///< digits of equal width; one line only
        Qt::Alignment side = Qt::AlignLeft; ///< or AlignRight, AlignHCenter; mirrored for right-to-left languages
    };

    TextLabel(const Theme& theme, const Style& style, const QString& text = {});

    const QString& text() const { return text_; }
    void setText(const QString& text);

    QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }
    QString accessibleText() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return style_.wraps; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    const TextMeasure& measure() const;
    double naturalWidth() const;
    void paintNumber(QPainter& painter, const QColor& color, const QFontMetricsF& metrics) const;
    void updateToolTip();

    Style style_;
    QString text_;
};

} // namespace vantrix
