#include "linux/status_area/floating_strip.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "linux/layer_shell/layer_shell.h"
#include "linux/status_area/click_anchor.h"
#include "linux/status_area/panel_palette.h"
#include "linux/status_area/xcb_support.h"
#include "platform/appearance.h"
#include "support/user_defaults.h"
#include "views/rounded_window.h"

namespace vantrix {

namespace {

constexpr int sidePadding = 10;
constexpr int topPadding = 4;
constexpr int air = 4;    // to panels and the screen's edges at least
constexpr int margin = 8; // to the screen's edges, where nobody has moved the strip
constexpr double cornerRadius = 9.0;

const QString placeX = QStringLiteral("statusStripX");
const QString placeY = QStringLiteral("statusStripY");
const QString placeScreen = QStringLiteral("statusStripScreen");

Qt::WindowFlags stripFlags() {
    Qt::WindowFlags flags =
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;
    // Wayland compositors put managed X11 windows where they like, and leave the others where they are.
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        flags |= Qt::X11BypassWindowManagerHint;
    return flags;
}

std::optional<QPoint> keptPlace(const UserDefaults& defaults) {
    if (!defaults.string(placeX) || !defaults.string(placeY))
        return std::nullopt;
    // Beyond any screen, yet small enough that sums with it do not overflow.
    const auto coordinate = [&](const QString& key) {
        return static_cast<int>(std::lround(std::clamp(defaults.number(key), -1e5, 1e5)));
    };
    return QPoint(coordinate(placeX), coordinate(placeY));
}

QScreen* keptScreen(const UserDefaults& defaults) {
    const QString name = defaults.string(placeScreen).value_or(QString());
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->name() == name)
            return screen;
    return QGuiApplication::primaryScreen();
}

} // namespace

QRect stripPlace(QSize size, const QRect& area, std::optional<QPoint> kept) {
    const QPoint offset = kept.value_or(QPoint(-margin, margin));
    const int right = area.right() + 1 + offset.x();
    const QRect inner = area.adjusted(air, air, -air, -air);
    const auto inside = [](int start, int length, int low, int high) {
        return std::clamp(start, low, std::max(low, high + 1 - length));
    };
    const int x = inside(right - size.width(), size.width(), inner.left(), inner.right());
    const int y = inside(area.top() + offset.y(), size.height(), inner.top(), inner.bottom());
    return {QPoint(x, y), size};
}

FloatingStrip::FloatingStrip(const StatusItem::Handlers& handlers, const AppearanceSource& appearance,
                             UserDefaults& defaults)
    : RowWindow(stripFlags(), handlers), appearance_(appearance), defaults_(defaults) {
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(QStringLiteral("Vantrix"));
    watchScreens();
}

void FloatingStrip::watchScreens() {
    const auto follow = [this](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, &FloatingStrip::place);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this, follow](QScreen* screen) {
        follow(screen);
        place();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &FloatingStrip::place, Qt::QueuedConnection);
}

void FloatingStrip::show(const StatusRow& row) {
    const StatusRow before = std::exchange(row_, row);
    tell(row_.text());
    if (!isVisible() || size() != wantedSize())
        place();
    if (!isVisible()) {
        if (xcbConnection() != nullptr)
            xcbMakeDock(xcbConnection(), static_cast<xcb_window_t>(winId()));
        QWidget::show();
    }
    for (const QRectF& change : row_.changes(before))
        update(change.translated(rowCorner()).toAlignedRect());
    const Look look{appearance_.appearance().dark, QGuiApplication::font()};
    if (std::exchange(shownLook_, look) != look)
        update();
}

QSize FloatingStrip::wantedSize() const {
    return row_.size() + QSize(2 * sidePadding, 2 * topPadding);
}

void FloatingStrip::place() {
    if (dragging_)
        return;
    const QSize size = wantedSize();
    const QScreen* screen = keptScreen(defaults_);
    setFixedSize(size);
    if (screen != nullptr)
        put(stripPlace(size, screen->availableGeometry(), keptPlace(defaults_)));
}

void FloatingStrip::put(const QRect& place) {
    setGeometry(place);
    layer_ = placeInLayer(*this, place) ? std::optional(place) : std::nullopt;
}

void FloatingStrip::remember() {
    const QRect here = anchor();
    // A strip whose centre is on no screen stays with the screen that it was on.
    const QScreen* under = QGuiApplication::screenAt(here.center());
    const QScreen* dropped = under != nullptr ? under : screen();
    const QRect area = dropped->availableGeometry();
    const QRect inside = stripPlace(size(), area, here.topRight() - area.topRight());
    defaults_.set(placeScreen, dropped->name());
    defaults_.set(placeX, static_cast<double>(inside.right() - area.right()));
    defaults_.set(placeY, static_cast<double>(inside.top() - area.top()));
    place();
}

void FloatingStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    roundWindow(*this, cornerRadius);
}

QPoint FloatingStrip::rowCorner() const {
    const QSize spare = (size() - row_.size()) / 2; // whole points keep the row sharp
    return {spare.width(), spare.height()};
}

void FloatingStrip::paintEvent(QPaintEvent* event) {
    const bool dark = appearance_.appearance().dark;
    QPainter painter(this);
    // There is a mask where nothing blends windows; without a solid ground what is translucent would look black there.
    if (!mask().isEmpty())
        painter.fillRect(rect(), dark ? QColor(32, 33, 36) : QColor(250, 250, 250));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(dark ? QColor(255, 255, 255, 38) : QColor(0, 0, 0, 38));
    painter.setBrush(dark ? QColor(32, 33, 36, 235) : QColor(250, 250, 250, 240));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
    painter.translate(rowCorner());
    row_.paint(painter, paletteForPanel(dark), QRectF(event->rect()).translated(-rowCorner()));
}

void FloatingStrip::mousePressEvent(QMouseEvent* event) {
    clicks_.press(*event);
    if (event->button() == Qt::LeftButton)
        grabbed_ = event->position().toPoint();
}

void FloatingStrip::mouseMoveEvent(QMouseEvent* event) {
    if (!grabbed_ || layer_) // while a layer is dragged, compositors differ in where they say the pointer is
        return;
    const QPoint distance = event->position().toPoint() - *grabbed_;
    if (!dragging_ && distance.manhattanLength() < QApplication::startDragDistance())
        return;
    dragging_ = true;
    // On Wayland only the compositor moves windows, and only it knows where they are.
    if (xcbConnection() == nullptr && windowHandle()->startSystemMove()) {
        grabbed_.reset();
        dragging_ = false;
        return;
    }
    move(event->globalPosition().toPoint() - *grabbed_);
}

void FloatingStrip::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasPressed = clicks_.release(*event);
    const bool dropped = event->button() == Qt::LeftButton && dragging_;
    if (event->button() == Qt::LeftButton) {
        grabbed_.reset();
        dragging_ = false;
    }
    if (dropped)
        return remember();
    if (!wasPressed || !rect().contains(event->position().toPoint()))
        return;
    StatusClick told = clickOf(*event);
    told.module = row_.moduleAt(event->position().x() - rowCorner().x());
    click(told);
}

QRect FloatingStrip::anchor() const {
    if (!isVisible())
        return panelCorner(row_.size().width());
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return layer_.value_or(geometry());
    // Not every window manager tells a dock its position.
    const QRect place = xcbRootRect(connection, static_cast<xcb_window_t>(winId()));
    return place.isEmpty() ? geometry() : fromNativeRect(place);
}

} // namespace vantrix
