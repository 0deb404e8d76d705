#include "popover/popover_frame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "views/rounded_window.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double cornerRadius = 12.0;

} // namespace

PopoverFrame::PopoverFrame(const Theme& theme, std::unique_ptr<QWidget> view) : View(theme), view_(view.release()) {
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(localizedText("Vantrix"));
    setAccessibleName(windowTitle());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // it is placed beside the status item
    layout->addWidget(view_);
    view_->installEventFilter(this);
    setPalette(theme.palette());
    connect(&theme, &Theme::changed, this, [this] { setPalette(this->theme().palette()); });
}

bool PopoverFrame::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && isVisible()) {
        hide();
        Q_EMIT lostFocus();
    }
    return View::event(event);
}

bool PopoverFrame::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        Q_EMIT contentChanged();
    return false;
}

void PopoverFrame::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        return hide();
    View::keyPressEvent(event);
}

void PopoverFrame::mousePressEvent(QMouseEvent* event) {
    const bool outside = !rect().contains(event->position().toPoint());
    View::mousePressEvent(event); // closes it
    if (outside)
        Q_EMIT pressedOutside(event->globalPosition().toPoint(), event->button(), event->modifiers());
}

void PopoverFrame::showEvent(QShowEvent* event) {
    Q_EMIT opening();
    roundWindow(*this, cornerRadius); // a compositor may have come or gone meanwhile
    View::showEvent(event);
}

void PopoverFrame::hideEvent(QHideEvent* event) {
    Q_EMIT closed();
    View::hideEvent(event);
}

void PopoverFrame::resizeEvent(QResizeEvent* event) {
    roundWindow(*this, cornerRadius);
    View::resizeEvent(event);
}

void PopoverFrame::paintEvent(QPaintEvent* event) {
    const ThemeColors& colors = theme().colors();
    QPainter painter(this);
    // A reading that changed inside repaints no edge.
    constexpr int edge = static_cast<int>(cornerRadius);
    if (rect().adjusted(1, edge, -1, -edge).contains(event->rect()))
        return painter.fillRect(event->rect(), colors.window);
    if (!mask().isEmpty())
        painter.fillRect(rect(), colors.window); // or what the mask leaves would be black
    const double hairLine = 1.0 / devicePixelRatioF();
    const double inset = hairLine / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(over(colors.separator, colors.window), hairLine));
    painter.setBrush(colors.window);
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
}

} // namespace vantrix
