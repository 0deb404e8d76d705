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
constexpr int air = 4;           // points to the neighbours on both sides
constexpr int mostDoublings = 2; // of the time between looks at a panel that stays as it is

QSize withAir(const StatusRow& row) {
    return row.size() + QSize(2 * air, 0);
}

} // namespace

TrayWindow::TrayWindow(X11Tray& tray, const StatusItem::Handlers& handlers, const AppearanceSource& appearance,
                       std::chrono::milliseconds lookInterval, std::chrono::milliseconds patience)
    : RowWindow(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint, handlers), tray_(tray),
      appearance_(appearance), lookInterval_(lookInterval), patience_(patience), alpha_(tray.wantsAlpha()) {
    setAttribute(Qt::WA_TranslucentBackground, alpha_);
    setAttribute(Qt::WA_PaintOnScreen);
    setAttribute(Qt::WA_NoSystemBackground);
    verdict_.setSingleShot(true);
    backgroundTimer_.setSingleShot(true);
    connect(&verdict_, &QTimer::timeout, this, &TrayWindow::judge);
    connect(&backgroundTimer_, &QTimer::timeout, this, &TrayWindow::takeGround);
    connect(&appearance_, &AppearanceSource::changed, this, &TrayWindow::lookSoon);
    connect(&tray_, &X11Tray::reparented, this, &TrayWindow::reparented);
    connect(&tray_, &X11Tray::slotChanged, this, [this] { verdict_.start(layoutPatience); });
    connect(&tray_, &X11Tray::looksChanged, this, [this] {
        panel_.reset(); // what is told now is the better guide, until the panel has drawn itself anew
        backgroundTimer_.start(backgroundDelay);
        draw();
    });
}

void TrayWindow::show(const StatusRow& row) {
    row_ = row;
    tell(row_.text());
    if (!docked_)
        dock();
    else
        askForRoom();
    draw();
}

void TrayWindow::dock() {
    docked_ = true;
    resize(withAir(row_));
    const auto window = static_cast<xcb_window_t>(winId());
    setMinimumSize(withAir(row_)); // after winId(): trays read this hint from the window when they embed it
    shown_ = std::make_unique<X11Picture>(xcbConnection(), window);
    if (!alpha_)
        shown_->remove();
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
    draw();
}

void TrayWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!embedded_)
        return;
    if (seen_)
        measureSlot();
    askForRoom();
    draw();
    backgroundTimer_.start(backgroundDelay);
    verdict_.start(layoutPatience);
}

void TrayWindow::takeGround() {
    lookSoon();
    takeBackground();
    lookAround();
}

void TrayWindow::takeBackground() {
    if (alpha_ || !embedded_)
        return;
    shown_->remove();
    background_ = xcbParentBackground(xcbConnection(), static_cast<xcb_window_t>(winId()), pixels());
    backgroundColor_.reset();
    if (!background_.isNull())
        backgroundColor_ = background_.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
    groundSize_ = {};
    draw();
}

/// The next look at the panel is taken on the next pass.
void TrayWindow::lookSoon() {
    sinceLook_.invalidate();
    sameLooks_ = 0;
}

/// Panels change their colours without a word, and tell the old ones on: now and then it is looked how they are, the
/// more rarely the longer they stay.
void TrayWindow::lookAround() {
    const auto pause = lookInterval_ * (1 << std::min(sameLooks_, mostDoublings));
    if (!embedded_ || !seen_ || !showsScreen_ || (sinceLook_.isValid() && !sinceLook_.hasExpired(pause.count())))
        return;
    sinceLook_.start();
    std::optional<XcbScreenLook> look(std::in_place, xcbConnection(),
                                      besides(place_)); // where it most likely still is: one wait for both answers
    const QRect place = xcbRootRect(xcbConnection(), static_cast<xcb_window_t>(winId()));
    if (std::exchange(place_, place) != place)
        look.emplace(xcbConnection(), besides(place));
    const auto color = look->color();
    ++sameLooks_;
    if (color == panel_)
        return;
    sameLooks_ = 0;
    panel_ = color;
    if (alpha_)
        draw();
    else
        takeBackground();
}

/// The panel beside the row: through a window with an alpha channel it is seen within, else only outside.
QRect TrayWindow::besides(const QRect& place) const {
    constexpr int columns = 2;
    const int left = alpha_ ? place.x() : place.x() - columns;
    return place.isEmpty() ? QRect()
                           : QRect(std::max(left, 0), place.y(), columns,
                                   static_cast<int>(std::ceil(slot().height() * devicePixelRatioF())));
}

/// In the tray's own text colour, unless that is too close to the panel's background.
MenuBarPalette TrayWindow::rowPalette() const {
    const std::optional<QColor> color = alpha_ ? panel_ : backgroundColor_;
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

QSize TrayWindow::pixels() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

/// What changed since the last time goes to the screen.
void TrayWindow::draw() {
    if (!shown_)
        return;
    const double scale = devicePixelRatioF();
    const QSize size = pixels();
    if (!alpha_ && groundSize_ != size)
        setGround(size);
    std::vector<QRect> parts;
    if (const auto drawn = drawnRow()) {
        const QTransform toPixel = drawn->place(slot(), scale) * QTransform::fromScale(scale, scale);
        parts = drawn->row.draw(picture_, rowPalette(), size, toPixel);
    } else {
        parts = picture_.draw({.size = size}, [](QPainter&) {});
    }
    shown_->show(picture_.image(), parts);
}

/// Where the panel's background is not known yet, the usual colour of windows.
void TrayWindow::setGround(QSize size) {
    QImage ground(size, QImage::Format_RGB32);
    ground.fill(palette().color(QPalette::Window));
    if (!background_.isNull())
        QPainter(&ground).drawImage(0, 0, background_);
    picture_.setGround(std::move(ground));
    groundSize_ = size;
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
