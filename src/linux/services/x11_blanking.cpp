#include "linux/services/x11_blanking.h"

#include <utility>

#include <QGuiApplication>
#include <sys/uio.h>
#include <xcb/xcbext.h>

namespace vantrix {
namespace {

// The extension's protocol, version 1.0. All numbers are in the order of this machine.
constexpr std::uint8_t queryInfo = 1;
constexpr std::uint8_t selectInput = 2;
constexpr std::uint32_t notifyMask = 1;
constexpr std::uint8_t off = 0;
constexpr std::uint8_t disabled = 3;

struct Request {
    std::uint8_t major = 0; // both are filled in when it is sent
    std::uint8_t minor = 0;
    std::uint16_t length = 0;
    std::uint32_t drawable = 0;
    std::uint32_t eventMask = 0; // not sent with a question
};

struct Told { // the beginning of a reply and of an event
    std::uint8_t type;
    std::uint8_t state;
};

bool isBlanking(const Told& told) {
    return told.state != off && told.state != disabled;
}

xcb_extension_t screenSaverExtension{"MIT-SCREEN-SAVER", 0};

unsigned send(xcb_connection_t* connection, std::uint8_t opcode, std::uint32_t window) {
    Request request{.drawable = window, .eventMask = notifyMask};
    const bool isQuestion = opcode == queryInfo;
    iovec parts[4]{}; // the first two are the library's
    parts[2] = {&request, isQuestion ? offsetof(Request, eventMask) : sizeof request};
    parts[3] = {nullptr, 0};
    const xcb_protocol_request_t description{1, &screenSaverExtension, opcode,
                                             static_cast<std::uint8_t>(isQuestion ? 0 : 1)};
    return xcb_send_request(connection, 0, parts + 2, &description);
}

} // namespace

X11Blanking::X11Blanking(xcb_connection_t* connection) {
    if (connection == nullptr)
        return;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &screenSaverExtension);
    if (extension == nullptr || extension->present == 0)
        return;
    event_ = extension->first_event;
    qGuiApp->installNativeEventFilter(this);
    const xcb_window_t root = xcbScreen(connection)->root;
    send(connection, selectInput, root);
    const XcbReply<Told> reply(
        static_cast<Told*>(xcb_wait_for_reply(connection, send(connection, queryInfo, root), nullptr)));
    isBlank_ = reply && isBlanking(*reply);
}

X11Blanking::~X11Blanking() {
    if (event_ >= 0)
        qGuiApp->removeNativeEventFilter(this);
}

bool X11Blanking::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* told = static_cast<const Told*>(message);
    if ((told->type & 0x7f) == event_ && std::exchange(isBlank_, isBlanking(*told)) != isBlank_)
        Q_EMIT changed();
    return false;
}

} // namespace vantrix
