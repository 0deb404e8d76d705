#pragma once

#include <QPointer>
#include <QScreen>
#include <QWidget>

namespace LayerShellQt {
class Window;
}

namespace vantrix {

/// An invisible window over all of a screen, panels included. It has learned what these leave free before it covers
/// them.
class LayerCover : public QWidget {
    Q_OBJECT
  public:
    explicit LayerCover(QScreen& screen);

    /// Null once it is gone.
    QScreen* covered() const { return covered_; }
    QSize free() const { return free_; }

    /// A press on it moves the keyboard's focus no more, so that the window above it is told of the press first.
    void refuseFocus();

  Q_SIGNALS:
    void entered(QPoint place);
    void pressed(QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void released();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void coverPanels();

    LayerShellQt::Window* layer_;
    QPointer<QScreen> covered_;
    QSize free_;
    bool refusesFocus_ = false;
};

/// Makes a layer surface of a window that is about to be shown for the first time.
LayerShellQt::Window* layerOf(QWidget& window);

} // namespace vantrix
