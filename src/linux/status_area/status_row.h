#pragma once

#include <cstddef>

#include <QImage>
#include <QSize>
#include <QString>

#include "menubar/row_picture.h"
#include "platform/status_item.h"

namespace vantrix {

/// The status item's content the way every back end draws it: the row of items or, without any, the gauge.
class StatusRow {
  public:
    StatusRow() = default;
    explicit StatusRow(StatusContent content);

    /// In points; 22 high.
    QSize size() const;

    /// The height of what is drawn, around the row's middle, in points.
    double inkHeight() const;

    /// The smallest size of type in it, in points; that of the gauge is its side.
    double smallestType() const;

    /// The same row with each value beside its caption.
    StatusRow inlined() const;

    /// Draws the row with its top left corner at the painter's origin, or what of it reaches into `within`.
    void paint(QPainter& painter, const MenuBarPalette& palette, const QRectF& within = {}) const;

    /// The parts of it, in points, that look different in `other`; the whole row where these are more than some items.
    std::vector<QRectF> changes(const StatusRow& other) const;

    /// Draws the row into a picture of `size` pixels that is kept for it, and tells which parts of that are new.
    std::vector<QRect> draw(RowPicture& picture, const MenuBarPalette& palette, QSize size,
                            const QTransform& toPixel) const;

    /// The number of squares that replace the row where only squares are shown; at least 1.
    std::size_t tileCount() const;

    /// Square `index` < `tileCount()`, `side` pixels wide.
    QImage tile(std::size_t index, const MenuBarPalette& palette, int side) const;

    /// The name of what square `index` shows: "cpu". Always the same for one module.
    QString tileName(std::size_t index) const;

    /// What square `index` shows, as text: "CPU 12%".
    QString tileText(std::size_t index) const;

    /// The module that square `index` shows, and the one `x` points from the row's left edge; absent without items.
    std::optional<MenuBarModule> tileModule(std::size_t index) const;
    std::optional<MenuBarModule> moduleAt(double x) const;

    /// True when square `index` of both rows looks the same.
    bool sameTile(const StatusRow& other, std::size_t index) const;

    /// The whole row for screen readers and tooltips; never empty.
    const QString& text() const { return text_; }

    /// The row as running text for hosts that show a label; empty without items.
    QString label() const;

    /// The longest `label()` these items normally have, which keeps a label's width steady.
    QString labelGuide() const;

    /// True when picture and text are the same.
    bool looksLike(const StatusRow& other) const;

  private:
    StatusContent content_;
    QString text_ = QStringLiteral("Vantrix");
};

/// The gauge in a square of `side` pixels.
QImage gaugeTile(const MenuBarPalette& palette, int side);

} // namespace vantrix
