#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QObject>
#include <QRect>

struct xcb_connection_t;

namespace vantrix {

/// The X11 system tray of the default screen: its owner, and what it wants of windows. Talks to the X server over Qt's
/// own connection; a query takes one round trip. To be made on the X11 platform only.
class X11Tray : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT
  public:
    X11Tray();
    ~X11Tray() override;

    /// The tray's window; 0 while there is no tray.
    std::uint32_t owner() const { return owner_; }

    /// True when the tray wants windows with an alpha channel.
    bool wantsAlpha() const;

    /// The colour of the panel's text, where the tray tells it.
    const std::optional<QColor>& foreground() const { return foreground_; }

    /// Asks the tray to embed `window`.
    void dock(std::uint32_t window) const;

    /// Tells by `slotChanged` when one of these windows, which are the tray's, moves or changes its size.
    void watchSlot(std::vector<std::uint32_t> windows);

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

  Q_SIGNALS:
    /// The tray went away, or another one took over.
    void ownerChanged();
    /// The tray's colours may have changed.
    void looksChanged();
    void slotChanged();
    /// `window` has another parent now; `parent` is 0 when that is the root window.
    void reparented(std::uint32_t window, std::uint32_t parent);

  private:
    void findOwner();
    void readForeground();

    xcb_connection_t* connection_;
    std::uint32_t root_;
    std::uint32_t selection_;
    std::uint32_t opcode_;
    std::uint32_t manager_;
    std::uint32_t visualProperty_;
    std::uint32_t colorsProperty_;
    std::uint32_t owner_ = 0;
    std::optional<QColor> foreground_;
    std::vector<std::uint32_t> slot_;
};

} // namespace vantrix
