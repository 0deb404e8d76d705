#pragma once

#include <span>
#include <vector>

#include <QRectF>

#include "views/view.h"

namespace vantrix {

class UserDefaults;

/// One bar per core, side by side; many cores make the bars thinner, very many take several rows.
class CoreBars : public View {
  public:
    /// `defaults` outlives the view.
    CoreBars(const Theme& theme, const UserDefaults& defaults);

    /// Loads of the cores, clamped to 0 to 1.
    void setValues(std::span<const double> values);

    /// The track of core `index` in a view `width` points wide.
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
