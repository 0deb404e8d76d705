#pragma once

#include <chrono>
#include <optional>

#include <QColor>
#include <QElapsedTimer>
#include <QImage>
#include <QRectF>
#include <QTimer>

#include "linux/status_area/mouse_click.h"
#include "linux/status_area/row_fit.h"
#include "linux/status_area/row_window.h"
#include "linux/status_area/status_backend.h"
#include "linux/status_area/status_row.h"
#include "linux/status_area/x11_picture.h"

namespace vantrix {

class AppearanceSource;
class X11Tray;

/// The row as a window embedded in the X11 system tray. Trays grant more or less room, by resizing the window;
/// `settled` says whether it is enough to read the row. The toolkit paints nothing here: it would wait for the X server
/// before each picture.
class TrayWindow : public RowWindow, public StatusBackend {
    Q_OBJECT
  public:
    TrayWindow(X11Tray& tray, const StatusItem::Handlers& handlers, const AppearanceSource& appearance,
               std::chrono::milliseconds lookInterval, std::chrono::milliseconds patience);

    void show(const StatusRow& row) override;
    void lookAround() override;
    QRect anchor() const override;
    QPaintEngine* paintEngine() const override { return nullptr; }

  Q_SIGNALS:
    /// `readable` is false when the tray did not embed the window, threw it out, or cut it and left it at that for as
    /// long as the patience with it lasts.
    void settled(bool readable);

  protected:
    void paintEvent(QPaintEvent*) override {}
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void dock();
    void reparented(std::uint32_t window, std::uint32_t parent);
    void askForRoom();
    QRectF slot() const;
    QSize pixels() const;
    QRect besides(const QRect& place) const;
    void judge();
    void measureSlot();
    void draw();
    void setGround(QSize size);
    void takeBackground();
    void takeGround();
    void lookSoon();
    MenuBarPalette rowPalette() const;
    std::optional<RowFit> drawnRow() const;

    X11Tray& tray_;
    const AppearanceSource& appearance_;
    std::chrono::milliseconds lookInterval_;
    std::chrono::milliseconds patience_;
    StatusRow row_;
    std::optional<QRectF> seen_; ///< the part that the tray leaves of the window, in points, as last measured
    PressedButtons clicks_;
    RowPicture picture_;
    std::unique_ptr<X11Picture> shown_;     ///< once it is docked
    QImage background_;                     ///< the panel's, where the tray has no alpha channel
    std::optional<QColor> backgroundColor_; ///< of all of that
    QSize groundSize_;                      ///< of the picture's ground, in pixels
    std::optional<QColor> panel_;           ///< the colour beside the row, as last seen
    QRect place_;                           ///< on the root window, in pixels, at the last look
    QElapsedTimer sinceLook_;
    int sameLooks_ = 0; ///< in succession
    /// False under Wayland, where the X server's screen shows nothing but its own clients.
    bool showsScreen_ = !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    QTimer verdict_;
    QElapsedTimer sinceCut_; ///< valid while it cannot be read
    QTimer backgroundTimer_;
    bool alpha_ = false;
    bool docked_ = false;
    bool embedded_ = false;
};

} // namespace vantrix
