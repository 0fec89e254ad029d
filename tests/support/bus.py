"""Message buses, and what the tests want of them: calls, properties, and patience."""
import threading
import time

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

# Every signal and every call that reaches us is handled here, while a test waits for something.
threading.Thread(target=GLib.MainLoop().run, daemon=True).start()


def wait_for(what, seconds=20.0):
    """Returns the first true value of what(), or its last one once the time is over."""
    end = time.monotonic() + seconds
    while not (value := what()) and time.monotonic() < end:
        time.sleep(0.02)
    return value


class Bus:
    """A connection to a message bus."""

    def __init__(self, address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.connection.set_exit_on_close(False)

    def call(self, name, path, interface, method, signature="()", *arguments):
        """Calls a method; the reply as Python values."""
        reply = self.connection.call_sync(name, path, interface, method, GLib.Variant(signature, arguments), None,
                                          Gio.DBusCallFlags.NONE, 10000, None)
        return reply.unpack()

    def get(self, name, path, interface, prop):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get", "(ss)", interface, prop)[0]
