#pragma once

#include <QScrollArea>

namespace vantrix {

class ScrollIndicator;
class Theme;

/// Scrolls a column that is taller than the space it has. The indicator lies over the column's margin and takes up no
/// space.
class ScrollColumn : public QScrollArea {
    Q_OBJECT
  public:
    /// Takes ownership of `column`.
    ScrollColumn(const Theme& theme, QWidget* column);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void place();

    ScrollIndicator* indicator_;
};

} // namespace vantrix
