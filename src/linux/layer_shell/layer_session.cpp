#include <atomic>
#include <cstring>
#include <memory>
#include <thread>

#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>

#include <LayerShellQt/Window>
#include <wayland-client.h>

#include "linux/layer_shell/layer_cover.h"
#include "linux/layer_shell/layer_popover.h"
#include "linux/layer_shell/layer_shell.h"
#include "linux/services/bus_probe.h"
#include "linux/services/session_bus.h"
#include "support/finishes_within.h"

namespace vantrix {
namespace {

constexpr std::chrono::milliseconds patienceWithCompositor{500};
constexpr std::chrono::milliseconds lookInterval{100};

using Found = std::atomic<bool>;

void takeGlobal(void* found, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
    if (!std::strcmp(interface, "zwlr_layer_shell_v1"))
        *static_cast<Found*>(found) = true;
}

void loseGlobal(void*, wl_registry*, std::uint32_t) {}

void lookForLayers(Found& found) {
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(wl_display_connect(nullptr),
                                                                                wl_display_disconnect);
    if (!display)
        return;
    static constexpr wl_registry_listener listener{takeGlobal, loseGlobal};
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(wl_display_get_registry(display.get()),
                                                                                wl_registry_destroy);
    wl_registry_add_listener(registry.get(), &listener, &found);
    wl_display_roundtrip(display.get());
}

bool drawsOnLayers() {
    static const bool does =
        QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) && compositorHasLayers();
    return does;
}

} // namespace

bool compositorHasLayers() {
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET")) // a connection for one client only
        return false;
    const auto found = std::make_shared<Found>(false);
    return finishesWithin(patienceWithCompositor, [found] { lookForLayers(*found); }) && *found;
}

bool notifierWatcherAppears(std::chrono::milliseconds patience) {
    const auto address = sessionBusAddress();
    if (!address || !busAnswers(*address, patience))
        return false;
    BusConnection connection(*address);
    QDBusConnectionInterface* bus = connection.bus().interface();
    if (bus == nullptr)
        return false;
    QElapsedTimer waited;
    waited.start();
    while (!bus->isServiceRegistered(QStringLiteral("org.kde.StatusNotifierWatcher"))) {
        if (waited.durationElapsed() >= patience)
            return false;
        std::this_thread::sleep_for(lookInterval);
    }
    return true;
}

bool placeInLayer(QWidget& window, const QRect& place) {
    using Layer = LayerShellQt::Window;
    const QScreen* screen = window.screen();
    if (!drawsOnLayers() || screen == nullptr)
        return false;
    const QRect area = screen->geometry();
    Layer* layer = layerOf(window);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
    layer->setAnchors({Layer::AnchorTop, Layer::AnchorRight});
    layer->setMargins({0, place.top() - area.top(), area.right() - place.right(), 0});
    return true;
}

std::unique_ptr<PopoverWindow> makeLayerPopover(const Theme& theme, const PopoverWindow::MakeView& makeView) {
    if (!drawsOnLayers())
        return nullptr;
    return std::make_unique<LayerPopover>(theme, makeView);
}

} // namespace vantrix
