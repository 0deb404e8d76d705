#include "linux/status_area/linux_status_item.h"

#include <cstdio>
#include <utility>

#include "linux/status_area/click_anchor.h"
#include "linux/status_area/floating_strip.h"
#include "linux/status_area/status_notifier.h"
#include "linux/status_area/tray_window.h"
#include "linux/status_area/x11_tray.h"
#include "linux/status_area/xcb_support.h"
#include "platform/appearance.h"

namespace vantrix {

LinuxStatusItem::LinuxStatusItem(Handlers handlers, UserDefaults& defaults, const AppearanceSource& appearance,
                                 const StatusSurroundings& surroundings)
    : handlers_(std::move(handlers)), defaults_(defaults), appearance_(appearance), surroundings_(surroundings),
      watch_(surroundings_.bus, surroundings_.hostOfProcess) {
    connect(&appearance_, &AppearanceSource::changed, this, &LinuxStatusItem::redraw);
    connect(&watch_, &NotifierWatch::changed, this, [this] {
        if (kind_ == Kind::notifier)
            hide(); // its host is gone, or another one took over
        choose();
    });
    if (xcbConnection() != nullptr) {
        tray_ = std::make_unique<X11Tray>();
        // Queued, because Qt is still handling the event that caused this.
        connect(tray_.get(), &X11Tray::ownerChanged, this, &LinuxStatusItem::trayChanged, Qt::QueuedConnection);
        connect(tray_.get(), &X11Tray::looksChanged, this, &LinuxStatusItem::redraw);
    }
    stripTimer_.setSingleShot(true);
    connect(&stripTimer_, &QTimer::timeout, this, [this] {
        if (kind_ != Kind::none || candidate_ || !row_)
            return; // something is shown, or a tray is being tried
        std::fputs("vantrix: no status area answers on this desktop; showing a strip instead\n", stderr);
        use(Kind::strip, std::make_unique<FloatingStrip>(handlers_, appearance_, defaults_));
    });
}

LinuxStatusItem::~LinuxStatusItem() = default;

void LinuxStatusItem::show(const StatusContent& content) {
    if (backend_)
        backend_->lookAround();
    StatusRow row(content);
    if (row_ && row_->looksLike(row))
        return;
    const bool first = !row_;
    row_ = std::move(row);
    if (first)
        return choose();
    if (candidate_)
        candidate_->show(*row_);
    if (backend_)
        backend_->show(*row_);
}

void LinuxStatusItem::redraw() {
    if (backend_)
        backend_->show(*row_);
}

/// Takes the best kind there is now. A better one that turns up later replaces what is shown; a worse one never does.
void LinuxStatusItem::choose() {
    if (!row_ || kind_ == Kind::tray || candidate_)
        return;
    if (tray_ && tray_->owner() != 0 && tray_->owner() != rejectedTray_)
        tryTray();
    if (kind_ == Kind::notifier || (candidate_ && kind_ == Kind::none))
        return;
    if (watch_.host())
        use(Kind::notifier,
            std::make_unique<StatusNotifier>(
                surroundings_.bus->address(), *watch_.host(), handlers_, appearance_,
                [this] { return tray_ ? tray_->foreground() : std::nullopt; }, surroundings_.lookInterval));
    else if (kind_ == Kind::none && !stripTimer_.isActive())
        stripTimer_.start(surroundings_.stripDelay);
}

void LinuxStatusItem::tryTray() {
    candidate_ = std::make_unique<TrayWindow>(*tray_, handlers_, appearance_, surroundings_.lookInterval,
                                              surroundings_.trayPatience);
    connect(candidate_.get(), &TrayWindow::settled, this, &LinuxStatusItem::traySettled, Qt::QueuedConnection);
    candidate_->show(*row_);
}

void LinuxStatusItem::traySettled(bool readable) {
    if (readable) {
        if (candidate_)
            use(Kind::tray, std::move(candidate_));
        return;
    }
    if (!candidate_ && kind_ != Kind::tray)
        return;
    rejectedTray_ = tray_->owner();
    candidate_.reset();
    if (kind_ == Kind::tray)
        hide();
    choose();
}

void LinuxStatusItem::trayChanged() {
    rejectedTray_ = 0;
    candidate_.reset();
    if (kind_ == Kind::tray)
        hide();
    choose();
}

void LinuxStatusItem::use(Kind kind, std::unique_ptr<StatusBackend> backend) {
    stripTimer_.stop();
    backend_ = std::move(backend);
    kind_ = kind;
    backend_->show(*row_);
    if (kind_ != Kind::strip)
        tellWhere();
    if (handlers_.appeared)
        handlers_.appeared();
}

void LinuxStatusItem::tellWhere() {
    if (surroundings_.isOnTerminal && !std::exchange(wasTold_, true))
        std::fputs("vantrix: now in your panel; click it there\n", stderr);
}

std::string LinuxStatusItem::place() const {
    switch (kind_) {
    case Kind::tray:
        return "X11 tray";
    case Kind::notifier: {
        const std::string owner = watch_.ownerName();
        return "StatusNotifier items, host " + (owner.empty() ? "unknown" : owner);
    }
    case Kind::strip:
        return "a strip of its own";
    case Kind::none:
        break;
    }
    return "nowhere yet";
}

void LinuxStatusItem::hide() {
    backend_.reset();
    kind_ = Kind::none;
}

QRect LinuxStatusItem::anchor() const {
    if (backend_)
        return backend_->anchor();
    return candidate_ ? candidate_->anchor() : panelCorner(row_ ? row_->size().width() : 1);
}

bool LinuxStatusItem::placeIsKnown() const {
    return backend_ && backend_->placeIsKnown();
}

void LinuxStatusItem::popoverShown(bool shown) const {
    if (backend_)
        backend_->popoverShown(shown);
}

std::unique_ptr<StatusItem> makeStatusItem(StatusItem::Handlers handlers, UserDefaults& defaults,
                                           const AppearanceSource& appearance) {
    return std::make_unique<LinuxStatusItem>(std::move(handlers), defaults, appearance);
}

} // namespace vantrix
