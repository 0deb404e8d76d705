#include "platform/desktop_services.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <QLibraryInfo>
#include <xcb/xcb.h>

namespace vantrix {
namespace {

bool userChosePlatform(int argc, char** argv) {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || std::any_of(argv + 1, argv + argc, [](const char* a) {
               return !std::strcmp(a, "-platform") || !std::strcmp(a, "--platform");
           });
}

bool x11Answers() {
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        return false;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

/// A Wayland session is of use only where the toolkit's plug-in for it is installed too; asking the toolkit itself
/// would end the program.
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

bool prepareDisplay(int argc, char** argv) {
    if (userChosePlatform(argc, argv))
        return true;
    // Under Wayland a program cannot place its own windows; through the X11 bridge it can, and it may dock as well.
    if (x11Answers())
        return qputenv("QT_QPA_PLATFORM", "xcb");
    return waylandIsUsable() && qputenv("QT_QPA_PLATFORM", "wayland");
}

} // namespace vantrix
