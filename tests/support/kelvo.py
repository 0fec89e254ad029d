"""Kelvo as a user meets it: its windows, its settings, and the programs that it finds."""
import json
import os
import shutil
import signal
from pathlib import Path

from bus import Gio, wait_for

ACCESSIBLE = "org.a11y.atspi.Accessible"
STATE_CHECKED, STATE_ENABLED, STATE_FOCUSED, STATE_SHOWING = 4, 8, 12, 25  # bit numbers


class Kelvo:
    """A Kelvo installed on its own: DIR/bin/kelvo, DIR/Resources with the helper, DIR/path first in its PATH."""

    def __init__(self, desktop, built):
        self.desktop = desktop
        self.directory = desktop.home / "app"
        self.program = self.directory / "bin" / "kelvo"
        self.resources = self.directory / "Resources"
        self.path = self.directory / "path"
        self.settings_file = desktop.home / ".config/Orvanta/Kelvo.conf"
        for folder in self.program.parent, self.resources, self.path:
            folder.mkdir(parents=True)
        shutil.copy2(built, self.program)
        self.built_resources = Path(built).parent.parent / "Resources"
        self.processes, self.reports = [], 0
        self.environment = {"PATH": f"{self.path}:{desktop.env['PATH']}"}

    def use_built_resources(self):
        """The real helper and the catalogues, as built."""
        shutil.copytree(self.built_resources, self.resources, dirs_exist_ok=True)

    @staticmethod
    def put(path, data):
        """Writes a program or a file; beside and renamed, since an old one may be in use."""
        fresh = path.with_name(path.name + ".new")
        fresh.write_bytes(data if isinstance(data, bytes) else data.encode())
        fresh.chmod(0o755)
        fresh.replace(path)

    def install(self, name, script):
        """Puts a shell script where Kelvo finds this program."""
        self.put((self.resources if name == "memfree" else self.path) / name, f"#!/bin/sh\n{script}\n")

    def report(self, text, then=""):
        """From here on vm_stat prints this text, and then does what is asked; Kelvo must have found it at its start."""
        self.reports += 1  # each in a file of its own: a vm_stat that runs already goes on printing its own
        self.put(file := self.directory / f"report-{self.reports}", text)
        self.install("vm_stat", f"echo >>'{self.directory}/asked'; cat '{file}'; {then}")

    def asked(self):
        """How often vm_stat has been asked."""
        return (self.directory / "asked").stat().st_size

    def wait_for_sample(self, times=2):
        """Returns when vm_stat has been asked again; if twice, Kelvo has certainly shown the first answer."""
        before = self.asked()
        assert wait_for(lambda: self.asked() >= before + times), "no sample is taken"

    def start(self, *arguments, **environment):
        _ = self.desktop.accessibility  # there first, so that this Kelvo knows from the start what we listen to
        process = self.desktop.spawn(self.program, *arguments, log="kelvo.log",
                                     env=self.desktop.env | self.environment | environment)
        self.processes.append(process)
        return process

    def move_clock(self, seconds):
        """Puts the clock of every Kelvo started after the first such call so far ahead; its timers notice at once."""
        clock = self.directory / "clock"
        self.put(clock, f"+{seconds}s\n")
        self.environment |= {"LD_PRELOAD": "/usr/$LIB/faketime/libfaketimeMT.so.1", "FAKETIME_NO_CACHE": "1",
                             "FAKETIME_DISABLE_SHM": "1", "FAKETIME_TIMESTAMP_FILE": str(clock),
                             "ASAN_OPTIONS": "detect_leaks=0:verify_asan_link_order=0"}

    def run(self, *arguments, seconds=20):
        """A launch that is expected to end by itself: its exit status."""
        return self.start(*arguments).wait(seconds)

    def stop(self, how=signal.SIGTERM):
        """Ends the copy started last: its exit status."""
        self.processes[-1].send_signal(how)
        return self.processes[-1].wait(20)

    def children(self, name="."):
        """The processes, living ones, that the copy started last has started itself, by a piece of their command."""
        own = str(self.processes[-1].pid)  # and its session's number
        found = self.desktop.run("pgrep", "-s", own, "-r", "DRST", "-f", name, check=False).split()
        return [pid for pid in found if pid != own]

    def settings(self, **given):
        """Stores these keys, and returns everything stored: {"Application/Settings": {...}, "MainWindow/...": ...}."""
        return json.loads(self.desktop.run(os.environ["SETTINGS_TOOL"], self.settings_file, json.dumps(given)))

    def store(self, record=None, **others):
        """Stores the settings record and other keys ("MainWindow/Position": [x, y]), as the program would."""
        self.settings(**{"Application/Settings": record or {}, **others})

    def window(self, seconds=20.0, name="^Kelvo$"):
        """The main window's X number, or "" if it is not shown within the time."""
        find = ["xdotool", "search", "--onlyvisible", "--all", "--pid", self.processes[-1].pid, "--name", name]
        return wait_for(lambda: self.desktop.run(*find, check=False).strip(), seconds)

    def tray_window(self, seconds=20.0):
        """The same of the icon in an XEmbed tray."""
        return self.window(seconds, name="^$")

    def window_goes(self):
        """True as soon as the main window is hidden; False if it stays."""
        return wait_for(lambda: not self.window(0))

    def texts(self):
        return [name for _, name, _ in self.widgets()]

    def labels(self):
        """The window's figures: {"Free": "1.00 GB", ..., "Used": ..., "Total": ...}."""
        texts = [name for role, name, _ in self.widgets() if role == "label" and name]
        figures = {name[:-1]: text for name, text in zip(texts, texts[1:]) if name.endswith(":")}
        return {**figures, "Total": texts[texts.index(figures["Used"], 9) + 1]}

    def popup(self, open_it):
        """The texts of the menu that open_it() brings up on the screen."""
        bus, shown = self.desktop.accessibility, []
        bus.connection.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                                        Gio.DBusSignalFlags.NONE, lambda _, *sender: shown.append(sender[:2]))
        open_it()
        menu = wait_for(lambda: shown and shown[0])
        return [bus.get(*child, ACCESSIBLE, "Name") for child in bus.call(*menu, ACCESSIBLE, "GetChildren")[0]]

    def press(self, text):
        """Presses the button, or ticks the box, with this text."""
        at = next(at for role, name, at in self.widgets() if name == text and ("button" in role or "check" in role))
        self.desktop.accessibility.call(*at, "org.a11y.atspi.Action", "DoAction", "(i)", 0)

    def having(self, state):
        return [name for _, name, at in self.widgets() if self._is(at, state)]

    def _is(self, at, state):
        return self.desktop.accessibility.call(*at, ACCESSIBLE, "GetState")[0][0] >> state & 1

    def widgets(self):
        """Everything shown in Kelvo's windows as (role, name, (bus name, path)), by way of the accessibility bus."""
        bus, root = self.desktop.accessibility, "/org/a11y/atspi/accessible/root"

        def walk(name, path):
            for child in bus.call(name, path, ACCESSIBLE, "GetChildren")[0]:
                if not self._is(child, STATE_SHOWING):
                    continue
                yield bus.call(*child, ACCESSIBLE, "GetRoleName")[0], bus.get(*child, ACCESSIBLE, "Name"), child
                yield from walk(*child)

        applications = wait_for(lambda: bus.call("org.a11y.atspi.Registry", root, ACCESSIBLE, "GetChildren")[0])
        return list(walk(*applications[-1]))
