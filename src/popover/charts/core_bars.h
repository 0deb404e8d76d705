#pragma once

#include <span>
#include <vector>

#include <QRectF>

#include "views/view.h"

namespace vantrix {

class UserDefaults;

/// One bar per core, side by side; many cores make thinner bars, very many several rows.
class CoreBars : public View {
  public:
    /// `defaults` outlives the view.
    CoreBars(const Theme& theme, const UserDefaults& defaults);

    /// Loads of the cores, 0 to 1; what lies beyond counts as the end of the range.
    void setValues(std::span<const double> values);

    /// The place of core `index` (its track) in a view `width` points wide.
    QRectF track(std::size_t index, double width) const;
    /// The filled part of that track.
    QRectF bar(std::size_t index, double width) const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    /// Every core's load, in order.
    QString accessibleText() const override;

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const UserDefaults& defaults_;
    std::vector<double> values_;
};

} // namespace vantrix
