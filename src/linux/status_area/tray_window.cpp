#include "linux/status_area/tray_window.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>

#include "linux/status_area/click_anchor.h"
#include "linux/status_area/panel_palette.h"
#include "linux/status_area/row_fit.h"
#include "linux/status_area/x11_tray.h"
#include "linux/status_area/xcb_support.h"
#include "platform/appearance.h"

namespace vantrix {

namespace {

using namespace std::chrono_literals;

constexpr auto embeddingPatience = 3s;
// Trays embed a window at its own size and cut it later, when they lay out their contents.
constexpr auto layoutPatience = 500ms;
constexpr auto backgroundDelay = 60ms;
constexpr int air = 4; // points to the neighbours on both sides

QSize withAir(const StatusRow& row) {
    return row.size() + QSize(2 * air, 0);
}

} // namespace

TrayWindow::TrayWindow(X11Tray& tray, const StatusItem::Handlers& handlers, const AppearanceSource& appearance,
                       std::chrono::milliseconds lookInterval, std::chrono::milliseconds patience)
    : RowWindow(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint, handlers), tray_(tray),
      appearance_(appearance), lookInterval_(lookInterval), patience_(patience), alpha_(tray.wantsAlpha()) {
    setAttribute(Qt::WA_TranslucentBackground, alpha_);
    setAttribute(Qt::WA_OpaquePaintEvent, !alpha_);
    verdict_.setSingleShot(true);
    backgroundTimer_.setSingleShot(true);
    connect(&verdict_, &QTimer::timeout, this, &TrayWindow::judge);
    connect(&backgroundTimer_, &QTimer::timeout, this, &TrayWindow::takeGround);
    connect(&tray_, &X11Tray::reparented, this, &TrayWindow::reparented);
    connect(&tray_, &X11Tray::slotChanged, this, [this] { verdict_.start(layoutPatience); });
    connect(&tray_, &X11Tray::looksChanged, this, [this] {
        panel_.reset(); // what is told now is the better guide, until the panel has drawn itself anew
        backgroundTimer_.start(backgroundDelay);
        update();
    });
}

void TrayWindow::show(const StatusRow& row) {
    row_ = row;
    tell(row_.text());
    if (!docked_)
        dock();
    else
        askForRoom();
    update();
}

void TrayWindow::dock() {
    docked_ = true;
    resize(withAir(row_));
    const auto window = static_cast<xcb_window_t>(winId());
    setMinimumSize(withAir(row_)); // after winId(): trays read this hint from the window when they embed it
    if (!alpha_) {
        const std::uint32_t parentRelative = XCB_BACK_PIXMAP_PARENT_RELATIVE;
        xcb_change_window_attributes(xcbConnection(), window, XCB_CW_BACK_PIXMAP, &parentRelative);
    }
    tray_.dock(window);
    verdict_.start(embeddingPatience);
}

void TrayWindow::reparented(std::uint32_t window, std::uint32_t parent) {
    if (!docked_ || window != winId())
        return;
    embedded_ = parent != 0;
    tray_.watchSlot(embedded_ ? xcbAncestors(xcbConnection(), window) : std::vector<xcb_window_t>());
    // Shown only while embedded: any earlier it would flash in a corner of the screen, and GTK's trays would take it
    // for withdrawn; thrown out, it would be left lying on the screen.
    setVisible(embedded_);
    backgroundTimer_.start(backgroundDelay);
    verdict_.start(layoutPatience);
}

/// Some trays go by the window's size hints, others by its size, so both are set; others again give a width in
/// proportion to the height, so that a window higher than its slot would get too little.
void TrayWindow::askForRoom() {
    const auto fit = fitRowInHeight(row_, slot().height(), devicePixelRatioF());
    if (!fit)
        return;
    const int high = std::min(height(), static_cast<int>(std::ceil(slot().height())));
    const QSize least(static_cast<int>(std::ceil(fit->width())) + 2 * air, std::min(high, row_.size().height()));
    if (minimumSize() == least)
        return;
    setMinimumSize(least);
    resize(least.width(), high);
    verdict_.start(layoutPatience);
}

/// The part of the window that can be seen: trays cut it without a word.
QRectF TrayWindow::slot() const {
    return seen_ ? *seen_ & QRectF(rect()) : QRectF(rect());
}

/// Looks at what the tray has made of the window. A busy panel, as all are at login, takes long to lay itself out.
void TrayWindow::judge() {
    if (embedded_)
        measureSlot();
    askForRoom();
    const bool isReadable = embedded_ && fitRow(row_, slot().size(), devicePixelRatioF());
    if (isReadable || !embedded_ || (sinceCut_.isValid() && sinceCut_.hasExpired(patience_.count()))) {
        sinceCut_.invalidate();
        Q_EMIT settled(isReadable);
        return;
    }
    if (!sinceCut_.isValid())
        sinceCut_.start();
    verdict_.start(layoutPatience);
}

void TrayWindow::measureSlot() {
    const auto window = static_cast<xcb_window_t>(winId());
    const QRect pixels = xcbVisibleRect(xcbConnection(), window, xcbAncestors(xcbConnection(), window));
    const double scale = devicePixelRatioF();
    const QRectF seen(QPointF(pixels.topLeft()) / scale, QSizeF(pixels.size()) / scale);
    if (seen_ == seen)
        return;
    seen_ = seen;
    update();
}

void TrayWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!embedded_)
        return;
    if (seen_)
        measureSlot();
    askForRoom();
    backgroundTimer_.start(backgroundDelay);
    verdict_.start(layoutPatience);
}

void TrayWindow::takeGround() {
    sinceLook_.invalidate();
    takeBackground();
    lookAround();
}

void TrayWindow::takeBackground() {
    if (alpha_ || !embedded_)
        return;
    const QSize size = (QSizeF(this->size()) * devicePixelRatioF()).toSize();
    background_ = xcbParentBackground(xcbConnection(), static_cast<xcb_window_t>(winId()), size);
    background_.setDevicePixelRatio(devicePixelRatioF());
    update();
}

/// Panels change their colours without a word, and tell the old ones on: now and then it is looked how they are.
void TrayWindow::lookAround() {
    if (!embedded_ || !seen_ || !showsScreen_ ||
        (sinceLook_.isValid() && !sinceLook_.hasExpired(lookInterval_.count())))
        return;
    sinceLook_.start();
    constexpr int columns = 2;
    const QRect place = xcbRootRect(xcbConnection(), static_cast<xcb_window_t>(winId()));
    // Through a window with an alpha channel the panel itself is seen beside the row, else only outside.
    const int left = alpha_ ? place.x() : place.x() - columns;
    const auto color =
        xcbScreenColor(xcbConnection(), QRect(std::max(left, 0), place.y(), columns,
                                              static_cast<int>(std::ceil(slot().height() * devicePixelRatioF()))));
    if (color == panel_)
        return;
    panel_ = color;
    if (alpha_)
        update();
    else
        takeBackground();
}

/// In the tray's own text colour, unless that is too close to the panel's background.
MenuBarPalette TrayWindow::rowPalette() const {
    std::optional<QColor> color = alpha_ ? panel_ : std::nullopt;
    if (!background_.isNull())
        color = background_.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
    const std::optional<QColor> text = tray_.foreground();
    if (color)
        return paletteOn(*color, text);
    return text ? paletteForText(*text) : paletteForPanel(appearance_.appearance().dark);
}

/// The row as it is drawn, squeezed for as long as the tray has not given it the width that it asked for.
std::optional<RowFit> TrayWindow::drawnRow() const {
    const auto fit = fitRowInHeight(row_, slot().height(), devicePixelRatioF());
    return fit ? std::optional(fit->narrowedTo(slot().width())) : std::nullopt;
}

void TrayWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!alpha_ && background_.isNull())
        painter.fillRect(rect(), palette().window());
    else if (!alpha_)
        painter.drawImage(QPoint(0, 0), background_);
    const auto drawn = drawnRow();
    if (!drawn)
        return;
    painter.setTransform(drawn->place(slot(), devicePixelRatioF()), true);
    drawn->row.paint(painter, rowPalette());
}

void TrayWindow::mousePressEvent(QMouseEvent* event) {
    clicks_.press(*event);
}

void TrayWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (!clicks_.release(*event) || !rect().contains(event->position().toPoint()))
        return;
    StatusClick told = clickOf(*event);
    if (const auto drawn = drawnRow())
        told.module =
            drawn->row.moduleAt(drawn->place(slot(), devicePixelRatioF()).inverted().map(event->position()).x());
    click(told);
}

/// As thick as its panel, which not all panels tell the screen.
QRect TrayWindow::anchor() const {
    const auto window = static_cast<xcb_window_t>(winId());
    const QRect rect = embedded_ ? xcbRootRect(xcbConnection(), window) : QRect();
    if (rect.isEmpty())
        return panelCorner(row_.size().width());
    const auto ancestors = xcbAncestors(xcbConnection(), window);
    const QRect panel = ancestors.empty() ? QRect() : fromNativeRect(xcbRootRect(xcbConnection(), ancestors.back()));
    return acrossPanel(fromNativeRect(rect), panel);
}

} // namespace vantrix
