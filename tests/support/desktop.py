"""A private desktop: X server, session bus, tray, home directory.

For the end-to-end tests and for `scripts/run` where there is no display. Everything that is started here ends with the
Desktop, also what has detached itself; nothing outside its own temporary directory is touched.
"""
import ctypes
import os
import re
import shutil
import signal
import subprocess
import tempfile
from contextlib import AbstractContextManager
from functools import cached_property
from pathlib import Path

from bus import Bus, wait_for
from tray import Picture, Watcher

PR_SET_PDEATHSIG, PR_SET_CHILD_SUBREAPER = 1, 36
libc = ctypes.CDLL(None)


class Desktop(AbstractContextManager):
    """A session of its own, with the parts named: "watcher", "openbox" and so on, methods below."""

    def __init__(self, size, *programs):
        libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        self.home = Path(tempfile.mkdtemp(prefix="kelvo-"))
        self.watchers, self.spawned = [], []
        runtime = self.home / "run"
        runtime.mkdir(mode=0o700)
        foreign = re.compile("XDG_|DBUS_|WAYLAND_|QT_|DISPLAY|LC_|LANG|SWAYSOCK|SESSION_")
        self.env = {key: value for key, value in os.environ.items() if not foreign.match(key)}
        self.env |= {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(runtime), "LC_ALL": "C.UTF-8",
                     "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        try:
            self.env["DISPLAY"] = ":" + self._announced(
                "Xvfb", "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-ac", "-noreset", "-displayfd", "1")
            self.env["DBUS_SESSION_BUS_ADDRESS"] = self._announced(
                "dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={runtime}/bus",
                "--print-address")
            for program in programs:
                getattr(self, program)()
        except BaseException:
            self.close()
            raise

    def __exit__(self, *_):
        self.close()

    def spawn(self, *command, log="desktop.log", **options):
        """Starts a program that dies with us, whatever becomes of us; what it prints goes to a log in the home."""
        with open(self.home / log, "ab") as output:
            self.spawned.append(subprocess.Popen(
                [str(word) for word in command], stdin=subprocess.DEVNULL, stderr=output, start_new_session=True,
                preexec_fn=lambda: libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL),
                **{"env": self.env, "stdout": output, **options}))
        return self.spawned[-1]

    def run(self, *command, check=True):
        """Runs a program to its end: its standard output."""
        return subprocess.run([str(word) for word in command], env=self.env, stdin=subprocess.DEVNULL, timeout=60,
                              check=check, stdout=subprocess.PIPE, stderr=None if check else subprocess.DEVNULL,
                              encoding="utf-8", errors="replace").stdout

    def _announced(self, *command):
        """Starts a server that announces its address on its standard output: the address."""
        with self.spawn(*command, stdout=subprocess.PIPE).stdout as announcement:
            line = announcement.readline().decode().strip()
        if not line:
            raise RuntimeError(f"{command[0]} does not start")
        return line

    # Parts of a desktop that a test may ask for.

    def watcher(self, hosted=True):
        """A StatusNotifierItem tray."""
        self.watchers.append(Watcher(self.env["DBUS_SESSION_BUS_ADDRESS"], hosted))
        return self.watchers[-1]

    def openbox(self):
        self.spawn("openbox")
        # What it sets last: a window shown before that may stay unmapped for good.
        wait_for(lambda: "window id" in self.run("xprop", "-root", "_NET_CLIENT_LIST"))
        # The first key of all brings a keyboard with it, for which openbox grabs its keys anew: it would miss alt+F4.
        self.run("xdotool", "key", "Control_L")

    def picom(self):
        """A compositor."""
        self.run("picom", "-b", "--config", "/dev/null", "--backend", "xrender")

    def wallpaper(self):
        """Something to see through a window."""
        self.run("hsetroot", "-add", "#1b3a57", "-add", "#8fb3cc", "-gradient", "180")

    def tint2(self):
        """A panel with an XEmbed tray."""
        self.spawn("tint2")
        wait_for(lambda: self.run("xdotool", "search", "--onlyvisible", "--class", "tint2", check=False))

    def tray(self):
        """An XEmbed tray alone: the one of these that is installed."""
        command = ["stalonetray", "--geometry", "4x1-0+0", "-i", "24"]
        if shutil.which("trayer"):
            command = ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24"]
        tray = self.spawn(*command)
        wait_for(lambda: self.run("xdotool", "search", "--class", command[0], check=False))
        return tray

    def sway(self):
        """A Wayland session in a window of the X server, whose mouse is therefore its mouse too."""
        runtime = self.home / "sway"
        runtime.mkdir(mode=0o700)
        config = runtime / "config"
        config.write_text("xwayland disable\noutput * position 0 0\n"
                          'for_window [app_id="kelvo"] floating enable\nfloating_modifier none\n')
        command = ["sway", "--config", config]
        if os.geteuid() == 0:  # sway does not run as root
            command = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", *command]
            self.home.chmod(0o711)
            shutil.chown(runtime, 65534, 65534)
        self.spawn(*command, env={**self.env, "XDG_RUNTIME_DIR": str(runtime), "HOME": str(runtime),
                                  "WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"})
        self.env |= {"SWAYSOCK": str(wait_for(lambda: list(runtime.glob("sway-ipc*")))[0]),
                     "WAYLAND_DISPLAY": str(wait_for(lambda: list(runtime.glob("wayland-?")))[0]),
                     "QT_QPA_PLATFORM": "wayland"}

    @cached_property
    def accessibility(self):
        """The bus on which programs tell what they show, and also when they begin to show something."""
        session = Bus(self.env["DBUS_SESSION_BUS_ADDRESS"])
        bus = Bus(session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0])
        registry = "org.a11y.atspi.Registry"
        bus.call(registry, "/org/a11y/atspi/registry", registry, "RegisterEvent", "(s)", "object:state-changed:showing")
        return bus

    def screenshot(self, window="root"):
        """The screen, or a window, as pixels of (red, green, blue)."""
        data = subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"], env=self.env, check=True,
                              stdout=subprocess.PIPE).stdout
        _, size, _, pixels = data.split(b"\n", 3)
        return Picture(*map(int, size.split()), pixels)

    def click(self, window, button=1):
        """Clicks into the middle of a window."""
        x, y, width, height = self.place(window)
        self.run("xdotool", "mousemove", x + width // 2, y + height // 2, "sleep", 0.1, "click", button)

    def place(self, window):
        """A window's frame as (x, y, width, height) on the screen."""
        text = self.run("xwininfo", "-id", window)
        x, y, width, height = (int(re.search(rf"{key}:\s+(-?\d+)", text)[1])
                               for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = re.findall(r"\d+", self.run("xprop", "-id", window, "_NET_FRAME_EXTENTS").partition("=")[2])
        left, right, top, bottom = map(int, extents or [0, 0, 0, 0])
        return x - left, y - top, width + left + right, height + top + bottom

    def on_screen(self, window):
        x, y, width, height = self.place(window)
        return x >= 0 and y >= 0 and x + width <= 1024 and y + height <= 768

    def drag(self, *place):
        """Drags from a place, as xdotool knows it, by a hundred pixels to the right and down, in small steps."""
        self.run("xdotool", "mousemove", *place, "sleep", 0.2, "mousedown", 1, "sleep", 0.2,
                 *10 * ("mousemove_relative", 10, 10, "sleep", 0.02), "mouseup", 1)

    def close(self):
        """Ends everything that was started here, also what has detached itself, and removes the home."""
        for watcher in self.watchers:
            if not watcher.bus.connection.is_closed():
                watcher.close()
        # Adopted children too.
        while children := subprocess.run(["pgrep", "-P", str(os.getpid())], capture_output=True).stdout.split():
            for child in map(int, children):
                os.kill(child, signal.SIGKILL)
                os.waitpid(child, 0)
        for process in self.spawned:
            process.poll()
        shutil.rmtree(self.home, ignore_errors=True)
