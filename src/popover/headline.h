#pragma once

#include <vector>

#include "views/theme_colors.h"
#include "views/view.h"

namespace vantrix {

/// The number that a card is about, in large type, with what goes with it in small type on the same baseline. Shrinks
/// where the card is too narrow.
class Headline : public View {
  public:
    explicit Headline(const Theme& theme);

    /// `pattern` is a localised text around "%@"; `value` takes its place in the large type.
    void setText(const QString& value, const QString& pattern = QStringLiteral("%@"));
    /// The colour of the value, made readable; null: the colour of titles.
    void setColor(ColorRole color);

    QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }
    QString accessibleText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Piece {
        std::string text;
        bool large = false;
        bool operator==(const Piece&) const = default;
    };

    double width(const Piece& piece) const;
    double naturalWidth() const;

    std::vector<Piece> pieces_;
    ColorRole color_ = nullptr;
};

} // namespace vantrix
