#include "platform/desktop_services.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <QLibraryInfo>

#include "linux/status_area/xcb_support.h"

namespace vantrix {
namespace {

bool userChosePlatform(int argc, char** argv) {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || std::any_of(argv + 1, argv + argc, [](const char* a) {
               return !std::strcmp(a, "-platform") || !std::strcmp(a, "--platform");
           });
}

/// A connection to the X server; null when none answers.
std::shared_ptr<void> connectToX11() {
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        return nullptr;
    std::shared_ptr<xcb_connection_t> connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0 ? connection : nullptr;
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

} // namespace

std::shared_ptr<void> prepareDisplay(int argc, char** argv) {
    const auto nothingToKeep = std::make_shared<bool>(true);
    if (userChosePlatform(argc, argv))
        return nothingToKeep;
    // X11 first, even under Wayland, where a program can neither place its windows nor dock them.
    if (auto connection = connectToX11()) {
        qputenv("QT_QPA_PLATFORM", "xcb");
        return connection;
    }
    if (!waylandIsUsable())
        return nullptr;
    qputenv("QT_QPA_PLATFORM", "wayland");
    return nothingToKeep;
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
    return connection != nullptr && xcbIsMousePressed(connection);
}

bool windowsCanFade() {
    return xcbConnection() != nullptr && windowsAreBlended();
}

} // namespace vantrix
