#include "platform/desktop_services.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <QGuiApplication>
#include <QLibraryInfo>

#include "linux/layer_shell/layer_shell.h"
#include "linux/services/display_choice.h"
#include "linux/services/session_bus.h"
#include "linux/status_area/xcb_support.h"

namespace vantrix {
namespace {

/// How long a desktop may take to bring up its status area; without one there will be a strip, which X11 alone places.
constexpr std::chrono::seconds patienceWithPanel{4};

constexpr std::chrono::seconds patienceWithBus{2};

bool userChosePlatform(int argc, char** argv) {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || std::any_of(argv + 1, argv + argc, [](const char* a) {
               return !std::strcmp(a, "-platform") || !std::strcmp(a, "--platform");
           });
}

bool mayHaveX11() {
    return qEnvironmentVariableIsSet("DISPLAY");
}

/// A connection to the X server; null when none answers.
std::shared_ptr<xcb_connection_t> connectToX11() {
    if (!mayHaveX11())
        return nullptr;
    std::shared_ptr<xcb_connection_t> connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0 ? connection : nullptr;
}

/// True when somebody embeds windows of X11 in a panel.
bool ownsTray(xcb_connection_t* connection) {
    const auto cookie = xcb_get_selection_owner(connection, xcbAtom(connection, "_NET_SYSTEM_TRAY_S0"));
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// Its tray for X11 makes square items of all windows.
bool isPlasma() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QStringLiteral("KDE"));
}

/// A Wayland session is of use only with the toolkit's plug-in for it, which is looked for here because the toolkit
/// ends the program when it is missing.
bool waylandIsUsable() {
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return false;
    const auto folder = QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString() + "/platforms";
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored))
        if (entry.path().filename().string().starts_with("libqwayland"))
            return true;
    return false;
}

/// All that is seen is painted by the program itself: neither a desktop's plug-ins, which bring a hundred libraries,
/// nor a GL context are of use. Some of it is read when first needed, so it stays; this program starts no other.
void keepDesktopFromToolkit() {
    QGuiApplication::setDesktopSettingsAware(false); // no platform theme by the desktop's name
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
}

} // namespace

std::shared_ptr<void> prepareDisplay(int argc, char** argv) {
    keepDesktopFromToolkit();
    keepSilentBusFromToolkit(patienceWithBus);
    const auto nothingToKeep = std::make_shared<bool>(true);
    if (userChosePlatform(argc, argv))
        return nothingToKeep;
    std::shared_ptr<xcb_connection_t> x11;
    const auto answers = [&x11] { return x11 || (x11 = connectToX11()); };
    const auto kind = chooseDisplay({
        .waylandIsUsable = waylandIsUsable,
        .hasLayers = compositorHasLayers,
        .hasX11Tray = [&] { return !isPlasma() && answers() && ownsTray(x11.get()); },
        .expectsNotifierHost = [] { return !mayHaveX11() || notifierWatcherAppears(patienceWithPanel); },
        .x11Answers = answers,
    });
    if (kind == DisplayKind::none)
        return nullptr;
    qputenv("QT_QPA_PLATFORM", kind == DisplayKind::x11 ? "xcb" : "wayland");
    return kind == DisplayKind::x11 ? std::shared_ptr<void>(x11) : nothingToKeep;
}

void drawOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void prepareTerminal() {}

void activateProgram() {} // to activate a window is enough

bool windowsAreBlended() {
    xcb_connection_t* connection = xcbConnection();
    return connection == nullptr || xcbComposited(connection);
}

bool mouseIsPressed() {
    xcb_connection_t* connection = xcbConnection();
    // Under Wayland the X server does not hear of the release when its window has closed at the press.
    return connection != nullptr && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && xcbIsMousePressed(connection);
}

bool popUpSystemMenu(const std::vector<StatusMenuEntry>& /*entries*/, const QWidget& /*widget*/) {
    return false;
}

bool windowsCanFade() {
    return xcbConnection() != nullptr && windowsAreBlended();
}

} // namespace vantrix
