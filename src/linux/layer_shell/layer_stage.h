#pragma once

#include <optional>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QScreen>

namespace vantrix {

class LayerCover;

/// A point on a screen.
struct LayerSpot {
    QPointer<QScreen> screen;
    QPoint point; ///< from the screen's corner
    QSize free;   ///< what the screen's panels leave
};

/// Invisible windows over all screens, above which the program then opens a window. In no other way does Wayland tell
/// where the pointer is, nor of a click outside that window.
class LayerStage : public QObject {
    Q_OBJECT
  public:
    LayerStage() = default;
    ~LayerStage() override;

    /// Covers the screens and returns where the item is, so far as that is known: under the pointer where it
    /// `isClicked` just now, else where it last was, else at `guess`. Runs the event loop for the few frames that the
    /// compositor takes for it, a quarter of a second at most.
    LayerSpot raise(bool isClicked, const QPoint& guess);

    /// Uncovers the screens; later, once all buttons are released, where one is held down on them. The rest of a click
    /// that closed a window is nobody else's.
    void strike();

  Q_SIGNALS:
    void pressed(const LayerSpot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

  private:
    void cover(QScreen& screen);
    void uncover();
    LayerSpot spotAt(QScreen* screen, const QPoint& point) const;

    std::vector<LayerCover*> covers_;
    std::optional<LayerSpot> pointer_; ///< when it last came upon the windows
    std::optional<LayerSpot> clicked_; ///< the last place of the item
    bool isPressed_ = false;
    bool isStruck_ = false;
};

} // namespace vantrix
