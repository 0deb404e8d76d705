#pragma once

#include "views/view.h"

namespace vantrix {

/// A hairline between an upper and a lower part.
class Divider : public View {
  public:
    explicit Divider(const Theme& theme);

    QAccessible::Role accessibleRole() const override { return QAccessible::Separator; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantrix
