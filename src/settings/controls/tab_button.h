#pragma once

#include <string>

#include "settings/controls/choice_button.h"

namespace vantrix {

/// One tab of a window: its symbol over its title.
class TabButton : public ChoiceButton {
    Q_OBJECT
  public:
    TabButton(const Theme& theme, std::string_view symbol, const QString& title);

    /// The width that the title takes at `points`, its margins included.
    double widthAt(double points) const;
    /// The size of the title and the width of the tab: the same for all tabs of a window where there is room.
    void setLook(double points, double width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::string symbol_;
    double points_;
    double width_ = 0.0;
};

} // namespace vantrix
