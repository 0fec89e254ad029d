#include "platform/LaunchFeedback.h"

#include "platform/linux/Xcb.h"

#include <algorithm>

// From the desktop. Read before Qt's platform plug-ins do, which remove them.
static const QByteArray activationToken = qgetenv("XDG_ACTIVATION_TOKEN");
static const QByteArray startupId = qgetenv("DESKTOP_STARTUP_ID");

QByteArray LaunchToken()
{
    return activationToken.isEmpty() ? startupId : activationToken;
}

// The freedesktop.org start-up notification: a text in client messages of 20 bytes to the root window. Qt
// sends it with the first window that it shows. On Wayland the compositor knows by the activation token.
void EndLaunchFeedback()
{
    xcb_connection_t *connection = XcbConnection();
    if (!connection || startupId.isEmpty()) {
        return;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const QByteArray text = "remove: ID=" + startupId + '\0';
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = XcbAtom("_NET_STARTUP_INFO_BEGIN");
    for (qsizetype at = 0; at < text.size(); at += qsizetype{sizeof message.data}) {
        const QByteArray piece = text.mid(at, qsizetype{sizeof message.data});
        std::copy(piece.begin(), piece.end(), message.data.data8);
        xcb_send_event(connection, 0, screen->root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char *>(&message));
        message.type = XcbAtom("_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection, sender);
    xcb_flush(connection);
}
