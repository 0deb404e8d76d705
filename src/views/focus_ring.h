#pragma once

#include <QObject>
#include <QRectF>
#include <QSize>

class QPainter;
class QWidget;

namespace vantrix {

class Theme;

/// Room that a control leaves around its drawing for the ring, in points.
inline constexpr int focusMargin = 3;

/// The part of the control inside that room: what it draws in.
QRectF insideRing(const QWidget& control);
/// The size of a control whose drawing is that large.
QSize withRing(const QSize& drawing);

/// The ring around the control that has the keyboard focus. It shows for people who use the keyboard, not for those who
/// click. Also makes the control follow the theme. Owned by the control.
class FocusRing : public QObject {
  public:
    FocusRing(QWidget& control, const Theme& theme);

    /// Around `rect`, whose corners have that radius, all in points.
    void paint(QPainter& painter, const QRectF& rect, double radius) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& control_;
    const Theme& theme_;
    bool usesKeyboard_ = false;
};

} // namespace vantrix
