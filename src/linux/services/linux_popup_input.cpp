#include "platform/popup_input.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "linux/status_area/xcb_support.h"

namespace vantrix {
namespace {

/// A transparent window over everything: the X server hears of a press on it, and hands that to the pop-up, which has
/// grabbed the mouse.
class MouseField : public QWindow {
  public:
    MouseField() {
        QSurfaceFormat blended = format();
        blended.setAlphaBufferSize(8);
        setFormat(blended);
        setFlags(Qt::ToolTip | Qt::X11BypassWindowManagerHint);
        // Panels hide from a window that fills the screen to its last line: it could be a film.
        setGeometry(QGuiApplication::primaryScreen()->virtualGeometry().adjusted(0, 0, 0, -1));
        show();
    }

  protected:
    /// To a Wayland compositor, a window with nothing drawn on it is not there.
    void exposeEvent(QExposeEvent*) override {
        if (isExposed())
            xcbFill(xcbConnection(), static_cast<xcb_window_t>(winId()), 0);
    }
};

/// A window of one transparent pixel, which compositors give the keyboard, as it is no pop-up. While one is open, the
/// toolkit hands it whatever keys the program gets.
class KeyboardHolder : public QWidget {
  public:
    explicit KeyboardHolder(std::function<void()> lost)
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint), lost_(std::move(lost)) {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_QuitOnClose, false);
        setFixedSize(1, 1);
        setWindowTitle(QStringLiteral("Vantrix")); // what is said to have the focus
        xcbLeaveOutOfLists(xcbConnection(), static_cast<xcb_window_t>(winId()));
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &KeyboardHolder::focusChanged);
        show();
        activateWindow();
    }

  private:
    void focusChanged(const QWindow* now) {
        const bool isOurs = now != nullptr && (now == windowHandle() || now->type() == Qt::Popup);
        if (std::exchange(hasIt_, isOurs) && !isOurs)
            lost_();
    }

    std::function<void()> lost_;
    bool hasIt_ = false;
};

struct PopupInput {
    std::unique_ptr<MouseField> mouse;
    KeyboardHolder* keyboard;

    PopupInput(bool takesMouse, std::function<void()> lost)
        : mouse(takesMouse ? std::make_unique<MouseField>() : nullptr), keyboard(new KeyboardHolder(std::move(lost))) {}
    ~PopupInput() {
        qGuiApp->disconnect(keyboard);
        keyboard->hide();
        keyboard->deleteLater(); // it may be the one who says that it is lost
    }
    Q_DISABLE_COPY_MOVE(PopupInput)
};

/// Grabs the mouse for a pop-up again, as the panel that was clicked may still have it while the pop-up opens.
class MouseGrab {
  public:
    MouseGrab() {
        timer_.setInterval(interval);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { grab(); });
        timer_.start();
    }

  private:
    static constexpr int interval = 100; // milliseconds
    static constexpr int most = 10;

    void grab() {
        const QWidget* popup = QApplication::activePopupWidget();
        QWindow* window = popup ? popup->windowHandle() : nullptr;
        if ((window && window->setMouseGrabEnabled(true)) || ++attempts_ == most)
            timer_.stop();
    }

    QTimer timer_;
    int attempts_ = 0;
};

} // namespace

std::shared_ptr<void> takeInput(bool takesMouse, std::function<void()> lost) {
    if (xcbConnection() == nullptr)
        return nullptr;
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return std::make_shared<MouseGrab>();
    return std::make_shared<PopupInput>(takesMouse, std::move(lost));
}

} // namespace vantrix
