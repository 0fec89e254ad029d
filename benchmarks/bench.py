"""A program to be measured, on a desktop of its own with a tray that tells when it has appeared."""
import os
import signal
import time

import accounting
from bus import GLib
from desktop import Desktop
from kelvo import Kelvo
from peers import PEERS
from tray import TrayItem, Watcher

SETTLE_SECONDS = 5
RESUME_SECONDS = 2.5

# A vm_stat of 4.4 GB whose free and inactive memory change by so many pages from one sample to the next.
REPORT = """#!/bin/sh
pages=0
rm "$0.moved" || {{ pages={}; : >"$0.moved"; }}
echo "Pages free: $((287179 + pages))."
echo "Pages inactive: $((289538 - pages))."
echo "Pages active: 288358."
echo "Pages wired down: 288358."
"""


class Bench:
    """One program: "floor", "kelvo", "kelvo, window shown" or one of the peers."""

    def __init__(self, built, subject, tray="XEmbed"):
        self.built, self.desktop = built, Desktop("1280x800")
        # Nobody reads the screen aloud here, and preparing for it costs.
        del self.desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        self.tray = {"XEmbed": XEmbedTray, "StatusNotifierItem": Panel}[tray](self.desktop, built)
        if subject in PEERS:
            peer = PEERS[subject]
            for name, text in peer.files.items():
                path = self.desktop.home / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            self.command, self.desktop.env = peer.command, {**self.desktop.env, **peer.environment}
        elif subject == "floor":
            self.command = [built / "bin/bench_floor", built / "bin/bench_child"]
        else:
            self.command = [built / "bin/kelvo"]
            Kelvo(self.desktop, *self.command).store({"HideAtStartUp": subject != "kelvo, window shown"})

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.desktop.close()

    def start(self, *launcher):
        """Starts the program and returns it once it has settled down."""
        process = self.desktop.spawn(*launcher, *self.command)
        self.tray.first_since(0)
        time.sleep(SETTLE_SECONDS)
        if process.poll() is not None:
            raise RuntimeError(f"{self.command[0]} has ended")
        return process

    def start_ms(self):
        """From exec to the first docked icon or the first window."""
        began = time.monotonic()
        process = self.desktop.spawn(*self.command)
        seconds = self.tray.first_since(began) - began
        time.sleep(0.5)
        process.terminate()
        process.wait()
        return seconds * 1000

    def memory_mib(self):
        """Memory in MiB: anonymous, PSS, RSS."""
        return accounting.memory_mib(self.start().pid)

    def wake_ups(self, seconds):
        """Moments awake in a minute."""
        return accounting.wake_ups(self.start().pid, seconds) * 60 / seconds

    def started(self, seconds):
        """Processes started in a minute."""
        return accounting.started(self.start(*accounting.ALONE).pid, seconds) * 60 / seconds

    def messages(self, pages, seconds):
        """Messages on the session bus in a minute, whoever sends them, while a fake vm_stat moves pages to and fro."""
        programs = self.desktop.home / "programs"
        programs.mkdir()
        (programs / "vm_stat").write_text(REPORT.format(pages))
        (programs / "vm_stat").chmod(0o755)
        self.desktop.env["PATH"] = f"{programs}:{os.environ['PATH']}"
        self.start()
        self.desktop.spawn("dbus-monitor", "--profile", log="messages.log")
        time.sleep(1)
        log = self.desktop.home / "messages.log"
        before = len(log.read_text().splitlines())
        time.sleep(seconds)
        return (len(log.read_text().splitlines()) - before) * 60 / seconds

    def samples(self, count):
        """So many samples at once: median microseconds of one; anonymous KiB and descriptors, each early and late."""
        process = self.desktop.spawn(self.built / "bin/bench_samples", count, log="samples.log")
        process.wait()
        self.tray.first_since(0)
        return tuple(map(float, (self.desktop.home / "samples.log").read_text().split()))


class Appearances:
    """Waits for the first moment at which something has appeared."""

    def first_since(self, began):
        for _ in range(1000):
            for moment in self.moments():
                if moment > began:
                    return moment
            time.sleep(0.02)
        raise RuntimeError("nothing appears on the screen")


class XEmbedTray(Appearances):
    """Our own, which writes a line whenever an icon or a window has come to the screen."""

    def __init__(self, desktop, built):
        self.log = desktop.home / "tray.log"
        desktop.spawn(built / "bin/bench_tray", log=self.log.name)
        while not self.log.read_text():
            time.sleep(0.02)

    def moments(self):
        lines = (line.split() for line in self.log.read_text().splitlines())
        return [float(moment) for what, moment in lines if what != "ready"]


class Panel(Appearances, Watcher):
    """A StatusNotifierItem host that asks for the pixels whenever an icon has changed, as a panel does."""

    def __init__(self, desktop, _built):
        self.registered = []
        super().__init__(desktop.env["DBUS_SESSION_BUS_ADDRESS"], hosted=True)
        desktop.watchers.append(self)

    def _called(self, connection, sender, path, interface, method, arguments, invocation):
        super()._called(connection, sender, path, interface, method, arguments, invocation)
        if method == "RegisterStatusNotifierItem":
            self.registered.append(time.monotonic())
            # Not waited for: the program may just have been stopped.
            ask = ("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                   GLib.Variant("(ss)", (TrayItem.INTERFACE, "IconPixmap")), None, 0, -1, None, None)
            connection.signal_subscribe(sender, TrayItem.INTERFACE, "NewIcon", None, None, 0,
                                        lambda *_: connection.call(sender, *ask))

    def moments(self):
        return self.registered


class Account:
    """The CPU time of a program and its children.

    The program is stopped but while it is watched, so that several can be watched in turns: Qt aligns the timers of all
    programs, and side by side the second would find its caches warmed by the first.
    """

    def __init__(self, bench, group):
        self.group = group
        bench.start(*group.launcher())
        self.group.signal(signal.SIGSTOP)

    def cpu_ms(self, seconds):
        """CPU milliseconds in a minute."""
        self.group.signal(signal.SIGCONT)
        time.sleep(RESUME_SECONDS)
        before = self.group.cpu_ms()
        time.sleep(seconds)
        used = self.group.cpu_ms() - before
        self.group.signal(signal.SIGSTOP)
        return used * 60 / seconds
