"""A StatusNotifierItem tray, and the icons and menus in it as a panel sees them."""
from bus import Bus, Gio, GLib, wait_for

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_XML = f"""<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<signal name="StatusNotifierHostRegistered"/>
</interface></node>"""


class Picture:
    """Rows of equally deep pixels, as bytes; pixel(x, y) is a tuple."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data
        self.depth = len(data) // (width * height)

    def pixel(self, x, y):
        at = (int(y) * self.width + int(x)) * self.depth
        return tuple(self.data[at:at + self.depth])

    def pixels(self):
        return list(zip(*[iter(self.data)] * self.depth))


class Watcher:
    """The least that a StatusNotifierItem tray consists of: it remembers the items that register."""

    def __init__(self, address, hosted):
        self.bus = Bus(address)
        self.items = []
        self.hosted = hosted
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER_XML).interfaces[0]
        self.bus.connection.register_object("/StatusNotifierWatcher", interface, self._called, self._read, None)
        self.bus.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName", "(su)", WATCHER, 4)

    def _called(self, _connection, _sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            self.items.append(TrayItem(self.bus, arguments.unpack()[0]))
        invocation.return_value(None)

    def _read(self, *_):
        return GLib.Variant("b", self.hosted)

    def host(self):
        """Something that shows the items begins to work."""
        self.hosted = True
        self.bus.connection.emit_signal(None, "/StatusNotifierWatcher", WATCHER, "StatusNotifierHostRegistered", None)

    def item(self):
        """The first registered item, as soon as there is one; None if none comes."""
        return wait_for(lambda: self.items and self.items[0])

    def close(self):
        self.bus.connection.close_sync(None)


class TrayItem:
    """A status icon and its menu, seen over the bus as a panel sees them."""

    INTERFACE = "org.kde.StatusNotifierItem"

    def __init__(self, bus, name):
        self.bus, self.name = bus, name
        self.signals = []
        bus.connection.signal_subscribe(name, None, None, None, None, Gio.DBusSignalFlags.NONE,
                                        lambda *signal_seen: self.signals.append(signal_seen[4]))

    def get(self, prop):
        return self.bus.get(self.name, "/StatusNotifierItem", self.INTERFACE, prop)

    def tool_tip(self):
        return self.get("ToolTip")[2]

    def icon(self):
        """The icon in its own size: pixels of (alpha, red, green, blue)."""
        width, height, data = self.get("IconPixmap")[0]
        return Picture(width, height, bytes(data))

    def activate(self):
        """The left click."""
        self.bus.call(self.name, "/StatusNotifierItem", self.INTERFACE, "Activate", "(ii)", 0, 0)

    def _menu(self, method, signature, *arguments):
        return self.bus.call(self.name, self.get("Menu"), "com.canonical.dbusmenu", method, signature, *arguments)

    def menu(self):
        """The entries as (id, text) in their order, as a panel opens the menu; a separator's text is "-"."""
        self._menu("AboutToShow", "(i)", 0)
        _, (_, _, children) = self._menu("GetLayout", "(iias)", 0, -1, [])
        return [(entry, "-" if values.get("type") == "separator" else values["label"].replace("_", ""))
                for entry, values, _ in children]

    def texts(self):
        return [text for _, text in self.menu()]

    def figures(self):
        """The four lines of figures: {"Free": "1.00 GB", ...}."""
        return dict(text.split(": ") for text in self.texts() if ": " in text)

    def click(self, beginning):
        """Chooses the entry whose text begins so."""
        entry = next(entry for entry, text in self.menu() if text.startswith(beginning))
        self._menu("Event", "(isvu)", entry, "clicked", GLib.Variant("s", ""), 0)
