#include "platform/Activation.h"

#include "platform/linux/Xcb.h"

#include <QWidget>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

namespace {

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

/// The X server's time, as it tells it with an event. On a connection of its own: Qt's events are Qt's.
xcb_timestamp_t ServerTime()
{
    const Connection connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
    if (xcb_connection_has_error(connection.get())) {
        return XCB_CURRENT_TIME;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
    const xcb_window_t window = xcb_generate_id(connection.get());
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(connection.get(), XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        0, nullptr);
    xcb_flush(connection.get());
    const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(
        xcb_wait_for_event(connection.get()), std::free);
    const bool bNotified = event && (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY;
    return bNotified ? reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->time
                     : XCB_CURRENT_TIME;
}

/// A property that is one number; -1 if there is none.
qint64 Number(xcb_window_t window, const char *property)
{
    xcb_connection_t *connection = XcbConnection();
    const auto cookie = xcb_get_property(connection, 0, window, XcbAtom(property), XCB_ATOM_CARDINAL, 0, 1);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(connection, cookie, nullptr), std::free);
    if (!reply || xcb_get_property_value_length(reply.get()) != int{sizeof(uint32_t)}) {
        return -1;
    }
    return *static_cast<const uint32_t *>(xcb_get_property_value(reply.get()));
}

/// Asks the window manager for something that concerns a window.
void Ask(xcb_window_t window, const char *type, std::array<uint32_t, 2> data)
{
    xcb_connection_t *connection = XcbConnection();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = XcbAtom(type);
    std::copy(data.begin(), data.end(), message.data.data32);
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_send_event(connection, 0, screen->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
}

} // namespace

void Activate(QWidget *window)
{
    xcb_connection_t *connection = XcbConnection();
    if (!connection) {
        window->activateWindow();
        return;
    }
    static constexpr uint32_t fromApplication = 1;
    static constexpr qint64 everyWorkspace = 0xFFFFFFFF;
    const auto native = static_cast<xcb_window_t>(window->winId());
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const qint64 current = Number(screen->root, "_NET_CURRENT_DESKTOP");
    const qint64 own = Number(native, "_NET_WM_DESKTOP");
    if (current >= 0 && own >= 0 && own != current && own != everyWorkspace) {
        // Some window managers leave it there, and only mark it in a list of windows.
        Ask(native, "_NET_WM_DESKTOP", {static_cast<uint32_t>(current), fromApplication});
    }
    Ask(native, "_NET_ACTIVE_WINDOW", {fromApplication, ServerTime()});
}
