"""A day of use in minutes: one life of Kelvo with a tray, and everything that a user does in it.

The program is the one that is shipped. libfaketime speeds up its clock, so that between two samples all its timers come
as often as in a day. A sample is the kernel's report, as for any user; here the program finds a file of ours mounted
over /proc/meminfo, whose every reading is counted and puts other figures there. Both can be had more cheaply, but then
what is soaked is something else: a fake vm_stat makes a process of each sample, and in a loop around
MainDialog::UpdateStats() no time passes for menu, result and reminder.
"""
import os
import re
import struct
import threading
import time
from pathlib import Path

import accounting
from bench import Panel
from bus import Bus, wait_for
from desktop import Desktop, libc
from kelvo import Kelvo

SPEED = 250
TOGGLE_EVERY = 4
IN_CLOSE_NOWRITE, IN_OPEN = 0x10, 0x20
MEMINFO = """MemTotal: 16000000 kB
MemFree: {free:9} kB
Active(anon): 3000000 kB
Inactive(anon): 100000 kB
Active(file): 1000000 kB
Inactive(file): {inactive:9} kB
"""
CHOSEN = {"WindowStyle": 0, "NoTitleBar": False, "UpdateFrequency": 0, "StayOnTop": True, "PieChartIcon": True,
          "MonoColor": False, "AutoLaunch": False, "HideAtStartUp": True, "AutoHide": False, "Remind": True,
          "RemindThreshold": 2.0}
STORED = {"Application/Settings": CHOSEN, "Application/Feedback": True, "MainWindow/Warning": True,
          "MainWindow/Position": [600, 400]}
# Where each control stands in the panel, and the mouse's button that changes it: 4 and 5 are the wheel.
CONTROLS = {"style": (160, 50, 1), "title bar": (100, 76, 1), "period": (160, 121, 5), "on top": (100, 154, 1),
            "pie": (100, 186, 1), "pie again": (100, 186, 1), "pie's colour": (280, 186, 1),
            "start with the session": (100, 218, 1), "start hidden": (100, 250, 1), "hide after a run": (100, 282, 1),
            "remind": (100, 314, 1), "remind again": (100, 314, 1), "threshold": (130, 346, 4)}
BACK = CONTROLS | {"style": (60, 50, 1), "period": (160, 121, 4), "threshold": (130, 346, 5)}
# The menu's entries, and their places among those that can be chosen.
FREE, PREFERENCES, ABOUT = ("Free Memory Now!", 5), ("Kelvo Preferences", 6), ("About Kelvo", 7)


class Life:
    def __init__(self, built):
        self.desktop = Desktop("1024x768", "openbox")
        # Nobody reads the screen aloud here.
        del self.desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        self.bus = Bus(self.desktop.env["DBUS_SESSION_BUS_ADDRESS"])
        self.kelvo = Kelvo(self.desktop, built / "bin/kelvo")
        self.kelvo.install("memfree", 'echo >>"$0.runs"; echo freed')
        self.freed = self.kelvo.resources / "memfree.runs"
        self.freed.touch()
        self.kelvo.settings(**STORED)
        self.samples, self.moving, self.much = 0, True, False
        self.meminfo = self.desktop.home / "meminfo"
        self.meminfo.write_text(self.figures())
        threading.Thread(target=self.follow, daemon=True).start()

    def start(self):
        self.kelvo.move_clock(0)
        mount = ["unshare", "--mount", "sh", "-c", 'mount --bind "$0" /proc/meminfo && exec "$@"', self.meminfo]
        self.process = self.desktop.spawn(*mount, self.kelvo.program, env=self.desktop.env | self.kelvo.environment)
        self.kelvo.processes.append(self.process)
        self.find_icon()
        # All of it once at the clock's own speed: what the host is asked about icons has a tenth of a second.
        self.use(True)
        self.kelvo.put(self.kelvo.directory / "clock", f"+0 x{SPEED}\n")

    def figures(self):
        """Other ones after every sample, with more inactive memory than the reminder's threshold or with less."""
        step = self.samples if self.moving else 0
        return MEMINFO.format(free=4_000_000 + step % 97 * 20_000,
                              inactive=(3_000_000 if self.much else 1_000_000) + step % 89 * 5_000)

    def follow(self):
        """Counts how often the program has read the figures, and changes them."""
        events = libc.inotify_init()
        libc.inotify_add_watch(events, bytes(self.meminfo), IN_OPEN | IN_CLOSE_NOWRITE)
        with open(self.meminfo, "r+b", buffering=0) as file:
            while read := os.read(events, 1 << 16):
                masks = [mask for _, mask, _, _ in struct.iter_unpack("iIII", read)]
                if self.moving:
                    self.samples += masks.count(IN_CLOSE_NOWRITE)
                os.pwrite(file.fileno(), self.figures().encode(), 0)

    def until(self, act, seen, what):
        """Acts, if need be again, like a user whose click was lost."""
        for _ in range(5):
            act()
            if found := wait_for(seen, 3):
                return found
        raise RuntimeError(f"Kelvo does not do what it is asked: {what}")

    def wait_for_samples(self, count):
        if not wait_for(lambda: self.samples >= count, 60):
            raise RuntimeError("no sample is taken")

    def window(self, name="^Kelvo$"):
        return self.kelvo.window(0, name)

    def close(self, name="^Kelvo$"):
        def alt_f4():
            self.desktop.run("xdotool", "windowactivate", "--sync", self.window(name), "key", "alt+F4", check=False)
        self.until(alt_f4, lambda: not self.window(name), f"close {name}")

    def runs(self):
        return self.freed.stat().st_size

    def toggle(self):
        """Every setting there and back, while the main window is shown."""
        panel = self.until(lambda: self.choose(PREFERENCES), lambda: self.window("Preferences"), "open the panel")
        entry = self.desktop.home / ".config/autostart/Kelvo.desktop"
        for controls, wanted in (CONTROLS, True), (BACK, False):
            self.desktop.run("xdotool", *(word for x, y, button in controls.values() for word in (
                "mousemove", "--window", panel, x, y, "sleep", 0.02, "click", button)))
            if not wait_for(lambda: entry.exists() == wanted):  # noqa: B023
                raise RuntimeError("the settings are not toggled")
            self.wait_for_samples(self.samples + 2)
        self.close("Preferences")

    def use(self, toggle):
        """What is repeated all day: every window, one run, the menu, the reminder."""
        self.until(self.click, self.window, "show the window")
        if toggle:
            self.toggle()
        self.until(lambda: self.choose(ABOUT), lambda: self.window("About"), "show About")
        self.close("About")
        runs = self.runs()
        self.until(lambda: self.choose(FREE), lambda: self.runs() > runs, "free memory")
        self.close()
        self.open_menu()
        self.much = True
        wait_for(self.window)
        self.much = False
        self.close()

    def held(self):
        """All that the program holds, here and in the servers, while its figures rest."""
        self.moving = False
        time.sleep(1)
        proc = Path(f"/proc/{self.process.pid}")
        clients = re.split(r"^\d+ - ", self.desktop.run("xrestop", "-b", "-m", 1), flags=re.MULTILINE)
        [client] = [text for text in clients if "kelvo" in text.partition("(")[0].lower()]
        resources = {key: int(number) for key, number in re.findall(r"^\s(\S.*\S)\s+: (\d+)$", client, re.MULTILINE)}
        connections = [statistics for name in self.ask("ListNames")[0] if name[0] == ":"
                       if self.ask("GetConnectionUnixProcessID", "(s)", name)[0] == self.process.pid
                       for statistics in self.ask("Debug.Stats.GetConnectionStats", "(s)", name)]
        self.moving = True
        return {"anonymous memory, KiB": round(accounting.memory_mib(self.process.pid)[0] * 1024),
                "descriptors": len(list((proc / "fd").iterdir())),
                "threads": len(list((proc / "task").iterdir())),
                "X pixmaps, KiB": resources.pop("pixmap bytes") // 1024,
                "X resources": sum(resources.values()),
                "bus connections": len(connections),
                "bus names": sum(connection["BusNames"] for connection in connections),
                "bus match rules": sum(connection["MatchRules"] for connection in connections)}

    def ask(self, method, *arguments):
        interface, _, method = f"org.freedesktop.DBus.{method}".rpartition(".")
        return self.bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", interface, method, *arguments)


class XEmbed(Life):
    def __init__(self, built):
        super().__init__(built)
        self.desktop.tray()

    def find_icon(self):
        x, y, width, height = self.desktop.place(self.kelvo.tray_window())
        self.at = "mousemove", x + width // 2, y + height // 2

    def click(self):
        self.desktop.run("xdotool", *self.at, "click", 1)

    def choose(self, entry):
        # The menu is there some time after the click.
        self.desktop.run("xdotool", *self.at, "click", 3, "sleep", 0.2, "key", *["Down"] * entry[1], "Return")

    def open_menu(self):
        self.desktop.run("xdotool", *self.at, "click", 3, "sleep", 0.2, "key", "Escape")


class StatusNotifierItem(Life):
    def __init__(self, built):
        super().__init__(built)
        self.tray = Panel(self.desktop, built)

    def find_icon(self):
        self.item = self.tray.item()

    def click(self):
        self.item.activate()

    def choose(self, entry):
        self.item.click(entry[0])

    def open_menu(self):
        self.item.menu()


def live(tray, built, samples, runs):
    """One life: (samples, runs, what is held) after a tenth, half way, and at the end."""
    life = {"XEmbed": XEmbed, "StatusNotifierItem": StatusNotifierItem}[tray](built)
    states = []
    try:
        life.start()
        for number in range(1, runs + 1):
            if number > 1:  # the first has been in the start
                life.use(number % TOGGLE_EVERY == 0)
            life.wait_for_samples(samples * number // runs)
            if number in (runs // 10, runs // 2, runs):
                states.append((life.samples, life.runs(), life.held()))
        status, stored = life.kelvo.stop(), life.kelvo.settings()["Application/Settings"]
        if status != 0 or not CHOSEN.items() <= stored.items():
            raise RuntimeError(f"Kelvo ends with {status}, and has stored {stored}")
    finally:
        life.desktop.close()
    return states
