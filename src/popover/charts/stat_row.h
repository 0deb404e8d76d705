#pragma once

#include <optional>
#include <string>

#include "views/theme_colors.h"
#include "views/view.h"

namespace vantrix {

/// A label and its value, after a marker in the colour that stands for them elsewhere on the card. What does not fit on
/// one line takes two.
class StatRow : public View {
  public:
    /// What stands before the label.
    struct Lead {
        ColorRole marker = nullptr; ///< a small mark of that colour
        std::string symbol;         ///< or a symbol
        bool indented = true;       ///< or only as much space, so that the labels of several rows line up

        static Lead mark(ColorRole color) { return {color, {}, true}; }
        static Lead picture(std::string symbol) { return {nullptr, std::move(symbol), true}; }
        static Lead room() { return {}; }
        static Lead none() { return {nullptr, {}, false}; }
    };

    StatRow(const Theme& theme, const QString& label, const Lead& lead = Lead::none());

    void setLabel(const QString& label);
    void setValue(const QString& value);
    /// A symbol before the value; empty: none.
    void setSymbol(std::string_view symbol);
    /// The symbol's meaning, for assistive programs; empty: none.
    void setNote(const QString& note) { note_ = note; }
    void setMarker(ColorRole color);
    /// The colour of the value and its symbol, made readable; null: the usual ones.
    void setValueColor(ColorRole color);

    /// Shows `value` as `text` says, or hides the row where there is no value.
    template<typename Value, typename Text>
    void showIfKnown(const std::optional<Value>& value, Text text) {
        setVisible(value.has_value());
        if (value)
            setValue(text(*value));
    }

    QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }
    QString accessibleText() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void updateToolTip();
    double leadWidth() const;
    double symbolWidth() const;
    double labelWidth() const;
    double valueWidth() const;
    bool fitsOneLine(double width) const;
    int wrapFlag(double width) const;
    double labelHeight(double width) const;
    void paintLead(QPainter& painter) const;
    void paintLabel(QPainter& painter, const QRectF& place) const;
    void paintValue(QPainter& painter, const QRectF& place) const;
    QColor valueColor(const QColor& usual) const;
    double baseline(const QRectF& line) const;

    QString label_;
    QString value_;
    Lead lead_;
    std::string symbol_;
    ColorRole valueColor_ = nullptr;
    QString note_;
};

} // namespace vantrix
