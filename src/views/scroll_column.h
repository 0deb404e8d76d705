#pragma once

#include <QScrollArea>

namespace vantrix {

class ScrollIndicator;
class Theme;

/// Scrolls a column that is higher than its room. The indicator lies over the column's margin and takes no room.
class ScrollColumn : public QScrollArea {
    Q_OBJECT
  public:
    /// Takes `column` over.
    ScrollColumn(const Theme& theme, QWidget* column);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void place();

    ScrollIndicator* indicator_;
};

} // namespace vantrix
