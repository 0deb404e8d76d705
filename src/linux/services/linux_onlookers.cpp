#include "linux/services/linux_onlookers.h"

#include <algorithm>
#include <utility>

namespace vantrix {
namespace {

/// The name of a screen saver is its interface, too.
BlankService screenSaver(const QString& name, const QString& path) {
    return {name, path, name, QStringLiteral("ActiveChanged"), QStringLiteral("GetActive")};
}

/// The displays of a compositor: a number above 0 where they save power.
BlankService displays(const QString& name, const QString& path) {
    return {name, path, name, {}, {}, QStringLiteral("PowerSaveMode")};
}

std::vector<BlankService> services() {
    return {
        screenSaver(QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver")),
        screenSaver(QStringLiteral("org.gnome.ScreenSaver"), QStringLiteral("/org/gnome/ScreenSaver")),
        screenSaver(QStringLiteral("org.cinnamon.ScreenSaver"), QStringLiteral("/org/cinnamon/ScreenSaver")),
        screenSaver(QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("/org/mate/ScreenSaver")),
        screenSaver(QStringLiteral("org.xfce.ScreenSaver"), QStringLiteral("/org/xfce/ScreenSaver")),
        displays(QStringLiteral("org.gnome.Mutter.DisplayConfig"), QStringLiteral("/org/gnome/Mutter/DisplayConfig")),
        displays(QStringLiteral("org.cinnamon.Muffin.DisplayConfig"),
                 QStringLiteral("/org/cinnamon/Muffin/DisplayConfig")),
    };
}

} // namespace

LinuxOnlookers::LinuxOnlookers(const std::shared_ptr<BusLink>& sessionBus, const std::shared_ptr<BusLink>& systemBus)
    : lock_(systemBus), somebodyLooks_(!screen_.isBlank()) {
    connect(&screen_, &X11Blanking::changed, this, &LinuxOnlookers::announce);
    connect(&lock_, &SessionLock::changed, this, &LinuxOnlookers::announce);
    for (BlankService& service : services()) {
        tellers_.push_back(std::make_unique<BlankTeller>(sessionBus, std::move(service)));
        connect(tellers_.back().get(), &BlankTeller::changed, this, &LinuxOnlookers::announce);
    }
}

void LinuxOnlookers::announce() {
    const bool isBlank = screen_.isBlank() || lock_.isLocked() ||
                         std::any_of(tellers_.begin(), tellers_.end(), [](const auto& t) { return t->isBlank(); });
    if (std::exchange(somebodyLooks_, !isBlank) == isBlank)
        Q_EMIT changed();
}

std::unique_ptr<Onlookers> makeOnlookers() {
    return std::make_unique<LinuxOnlookers>(sharedSessionBus(), sharedSystemBus());
}

} // namespace vantrix
