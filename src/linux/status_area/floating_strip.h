#pragma once

#include <functional>
#include <optional>

#include "linux/status_area/mouse_click.h"
#include "linux/status_area/row_window.h"
#include "linux/status_area/status_backend.h"
#include "linux/status_area/status_row.h"

namespace vantrix {

class AppearanceSource;
class UserDefaults;

/// The row in a small window of its own for desktops without a status area. Always on top, without an entry in the
/// task bar, never focused; dragged with the left button to a place that it keeps.
class FloatingStrip : public RowWindow, public StatusBackend {
    Q_OBJECT
  public:
    FloatingStrip(const StatusItem::Handlers& handlers, const AppearanceSource& appearance, UserDefaults& defaults);

    void show(const StatusRow& row) override;
    QRect anchor() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    struct Look {
        bool isDark = false;
        QFont font;

        bool operator==(const Look&) const = default;
    };

    QSize wantedSize() const;
    void place();
    void put(const QRect& place);
    void remember();
    QPoint rowCorner() const;
    void watchScreens();

    const AppearanceSource& appearance_;
    UserDefaults& defaults_;
    StatusRow row_;
    std::optional<QPoint> grabbed_; ///< within the strip, while the left button is down
    PressedButtons clicks_;
    bool dragging_ = false;
    Look shownLook_;
    std::optional<QRect> layer_; ///< its place, where a Wayland compositor was told of it
};

/// Where a strip of `size` goes on a screen whose free area is `area`: `kept` is the remembered offset of its top
/// right corner from the area's own (x at most 0), absent when nothing is remembered. Always inside the area.
QRect stripPlace(QSize size, const QRect& area, std::optional<QPoint> kept);

} // namespace vantrix
