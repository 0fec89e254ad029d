"""Whole desktops in a virtual X server, each with its window manager, its panel and a terminal."""
import shutil
import time

from bus import wait_for
from desktop import Desktop

WIDTH, HEIGHT = 1280, 800


class Session(Desktop):
    """A desktop with its window manager and its panel."""
    panel = 0, 32  # rows of the screen
    tray = True
    click = "click", "1"
    next_workspace, first_workspace, minimise = (), (), ()  # keys; none: xdotool can do it
    environment = {}

    def __init__(self):
        super().__init__(f"{WIDTH}x{HEIGHT}")
        # The shells want a system bus to ask, whatever it answers.
        self.env |= {"LIBGL_ALWAYS_SOFTWARE": "1", "XDG_SESSION_TYPE": "x11",
                     "DBUS_SYSTEM_BUS_ADDRESS": self.env["DBUS_SESSION_BUS_ADDRESS"], **self.environment}
        try:
            self.begin()
        except BaseException:
            self.close()
            raise

    def key(self, *keys):
        for key in keys:
            self.run("xdotool", "key", key, "sleep", 0.1)

    def terminal(self, command=None):
        """A maximised terminal that writes every line typed into it to a file: the file."""
        typed = self.home / "typed"
        typed.touch()
        command = command or (["foot", "--maximized"] if "WAYLAND_DISPLAY" in self.env else ["xterm", "-maximized", "-e"])
        self.spawn(*command, "sh", "-c", f"cat >'{typed}'")
        time.sleep(3)
        return typed


class Gnome(Session):
    environment = {"XDG_CURRENT_DESKTOP": "GNOME"}
    click = "click", "--repeat", "2", "--delay", "80", "1"  # a single one opens the menu
    extensions = "['ubuntu-appindicators@ubuntu.com']"
    command = ["gnome-shell", "--x11"]

    def begin(self):
        self.run("gsettings", "set", "org.gnome.shell", "enabled-extensions", self.extensions)
        self.run("gsettings", "set", "org.gnome.desktop.notifications", "show-banners", "false")
        self.shell = self.spawn(*self.command)
        shell = ["busctl", "--user", "{}-property", "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "OverviewActive"]
        order = lambda verb, *value: self.run(*(word.format(verb) for word in shell), *value, check=False)  # noqa: E731
        assert wait_for(lambda: "true" in order("get")), "gnome-shell does not start"
        time.sleep(2)
        order("set", "b", "false")
        time.sleep(2)


class GnomeWithout(Gnome):
    tray = False
    extensions = "[]"


class GnomeWayland(Gnome):
    """In a window as large as the screen, so that everything else is the same."""
    environment = {"XDG_CURRENT_DESKTOP": "GNOME", "XDG_SESSION_TYPE": "wayland",
                   "MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{WIDTH}x{HEIGHT}"}
    command = ["gnome-shell", "--wayland", "--nested"]
    next_workspace, first_workspace, minimise = ["super+Page_Down"], ["super+Page_Up"], ["super+h"]

    def begin(self):
        super().begin()
        self.env |= {"WAYLAND_DISPLAY": "wayland-0", "QT_QPA_PLATFORM": "wayland"}


class Plasma(Session):
    panel = 752, HEIGHT
    environment = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}

    def begin(self):
        self.spawn("kwin_x11")
        self.spawn("kded5")
        time.sleep(2)
        self.shell = self.spawn("plasmashell")
        time.sleep(12)
        self.run("xdotool", "set_num_desktops", 2)


class PlasmaWayland(Plasma):
    environment = Plasma.environment | {"XDG_SESSION_TYPE": "wayland"}
    next_workspace, first_workspace, minimise = ["ctrl+F2"], ["ctrl+F1"], ["super+Page_Down"]

    def begin(self):
        settings = self.home / ".config/kwinrc"
        settings.parent.mkdir(exist_ok=True)
        settings.write_text("[Desktops]\nNumber=2\nRows=1\n")
        # A copy has not the file's capability, which a container may refuse.
        kwin = shutil.copy("/usr/bin/kwin_wayland", self.home)
        self.spawn(kwin, "--x11-display", self.env["DISPLAY"], "--width", WIDTH, "--height", HEIGHT,
                   "--socket", "wayland-0", "--no-lockscreen", "--xwayland", f"sh -c 'echo $DISPLAY >{self.home}/inner'")
        self.spawn("kded5", env=self.env | {"QT_QPA_PLATFORM": "offscreen"})
        time.sleep(4)
        self.env |= {"WAYLAND_DISPLAY": "wayland-0", "QT_QPA_PLATFORM": "wayland"}
        self.shell = self.spawn("plasmashell")
        time.sleep(14)

    def terminal(self):
        """By Xwayland: foot divides by zero on a nested KWin."""
        inner = (self.home / "inner").read_text().strip()
        return super().terminal(["xterm", "-maximized", "-display", inner, "-e"])


class Mate(Session):
    panel = 0, 25
    environment = {"XDG_CURRENT_DESKTOP": "MATE"}

    def begin(self):
        self.spawn("marco")
        time.sleep(2)
        self.shell = self.spawn("mate-panel")
        time.sleep(5)


DESKTOPS = {"GNOME": Gnome, "GNOME Wayland": GnomeWayland, "GNOME without": GnomeWithout, "Plasma": Plasma,
            "Plasma Wayland": PlasmaWayland, "MATE": Mate}
