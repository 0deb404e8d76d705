#pragma once

#include <QWidget>

namespace vantrix {

class ProcessorDescription;
class SystemMonitor;
class UserDefaults;
struct MenuBarPalette;

/// What the popover shows: the program's name, the processor, and the status row at reading size. It follows the
/// monitor while it is visible and costs nothing while it is not.
class PopoverView : public QWidget {
    Q_OBJECT
  public:
    static constexpr int contentWidth = 340;

    /// All outlive the view.
    PopoverView(const SystemMonitor& monitor, const UserDefaults& defaults, const ProcessorDescription& processor);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void paintHeader(QPainter& painter) const;
    void paintRow(QPainter& painter, const MenuBarPalette& palette) const;

    const SystemMonitor& monitor_;
    const UserDefaults& defaults_;
    const ProcessorDescription& processor_;
};

} // namespace vantrix
