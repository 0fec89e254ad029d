// A tiny XEmbed tray that tells when something is on the screen. It writes one line for every icon that is
// docked and mapped
// ("icon SECONDS") and for every other window that is mapped on the root ("window SECONDS"), on the monotonic
// clock, and "ready" once it owns the tray. Ends with its display.
//   bench_tray

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <set>

#include <xcb/xcb.h>

namespace {

xcb_atom_t Atom(xcb_connection_t *x, const char *name)
{
    const auto cookie = xcb_intern_atom(x, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(x, cookie, nullptr), std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void Tell(const char *what)
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%s %lld.%06ld\n", what, static_cast<long long>(now.tv_sec), now.tv_nsec / 1000);
    std::fflush(stdout);
}

} // namespace

int main()
{
    xcb_connection_t *x = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(x) != 0) {
        std::fputs("bench_tray: no display\n", stderr);
        return 1;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
    const uint32_t rootEvents = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x, screen->root, XCB_CW_EVENT_MASK, &rootEvents);

    const xcb_window_t bar = xcb_generate_id(x);
    const uint32_t barValues[] = {1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_create_window(x, XCB_COPY_FROM_PARENT, bar, screen->root, 0, 0, 240, 24, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, barValues);
    xcb_map_window(x, bar);

    const xcb_atom_t selection = Atom(x, "_NET_SYSTEM_TRAY_S0");
    const xcb_atom_t opcode = Atom(x, "_NET_SYSTEM_TRAY_OPCODE");
    xcb_set_selection_owner(x, bar, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t manager{};
    manager.response_type = XCB_CLIENT_MESSAGE;
    manager.format = 32;
    manager.window = screen->root;
    manager.type = Atom(x, "MANAGER");
    manager.data.data32[1] = selection;
    manager.data.data32[2] = bar;
    xcb_send_event(x, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&manager));
    xcb_flush(x);
    Tell("ready");

    int nIcons = 0;
    std::set<xcb_window_t> icons;
    for (;;) {
        const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(xcb_wait_for_event(x),
                                                                               std::free);
        if (!event) {
            return 0;
        }
        const int type = event->response_type & 0x7f;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
            if (message->type == opcode && message->data.data32[1] == 0) {
                const xcb_window_t icon = message->data.data32[2];
                const auto nPosition = static_cast<int16_t>(24 * (nIcons++ % 10));
                const uint32_t size[] = {24, 24};
                xcb_reparent_window(x, icon, bar, nPosition, 0);
                xcb_configure_window(x, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
                xcb_map_window(x, icon);
                xcb_flush(x);
                icons.insert(icon);
            }
        } else if (type == XCB_MAP_NOTIFY) {
            const auto *map = reinterpret_cast<const xcb_map_notify_event_t *>(event.get());
            if (icons.count(map->window) != 0) {
                Tell("icon");
            } else if (map->event == screen->root && map->window != bar) {
                Tell("window");
            }
        }
    }
}
