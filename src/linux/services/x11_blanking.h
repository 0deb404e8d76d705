#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include "linux/status_area/xcb_support.h"

namespace vantrix {

/// Whether the X server blanks the screen, as the extension MIT-SCREEN-SAVER tells: its own screen saver is on, or it
/// has switched the display off (DPMS), which it tells the same way.
class X11Blanking : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT
  public:
    /// Not blank where `connection` is null, or the server has no such extension.
    explicit X11Blanking(xcb_connection_t* connection = xcbConnection());
    ~X11Blanking() override;

    bool isBlank() const { return isBlank_; }

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

  Q_SIGNALS:
    void changed();

  private:
    int event_ = -1; ///< its number; -1 where nobody tells
    bool isBlank_ = false;
};

} // namespace vantrix
