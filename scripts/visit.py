"""What a user does with Kelvo on a whole desktop: the second half of scripts/panels.

icon, menu   they are seen
click, row, again   a click on the icon, the menu's first row, or a second launch brings the window to the front with the
             keyboard, while it is hidden, covered by another window, minimised, or on another workspace (elsewhere)
prefs, about the same of these windows
reminder     it comes while somebody types into a terminal; "typed" is what the terminal got of it. On X11 that must be
             everything. On Wayland the compositor gives the reminder the keyboard, but nothing may be freed
shown, close, quit   the window, its closing and the menu's last entry; without an icon, closing ends the program
"""
import time
from collections import Counter

from bus import wait_for
from case import report
from kelvo import ACCESSIBLE, STATE_SHOWING, Kelvo
from sessions import HEIGHT, WIDTH

HUES = [(0, 255, 0), (0, 0, 255), (255, 255, 0), (255, 0, 0)]  # the pie's slices, and the marks of the menu's rows
PATIENCE = 8
STATE_ACTIVE = 1
EVEN = {"free": 524288, "inactive": 524288, "active": 524288, "wired_down": 524288}
# The menu's entries that can be chosen, counted from the top.
FIRST, PREFERENCES, ABOUT, QUIT = 1, 6, 7, 8


def like(seen, hue):
    return all(abs(a - b) < 70 for a, b in zip(seen, hue))


def differing(before, after):
    """How many bytes of two pictures differ."""
    return sum(a != b for a, b in zip(before, after))


class Visit:
    """Kelvo on a desktop, used as a user would."""

    def __init__(self, name, session, program, pictures):
        self.name, self.pictures, self.table = name, pictures, {}
        self.desktop = session()
        self.kelvo = Kelvo(self.desktop, program)
        self.kelvo.use_built_resources()
        self.kelvo.report(report(**EVEN))
        top, bottom = self.desktop.panel
        self.rest = (bottom, HEIGHT) if top == 0 else (0, top)

    def rows(self, rows):
        """How many pixels there are about of each of the pie's colours: some panels scale the icon."""
        first, last = (row * WIDTH * 3 for row in rows)
        counted = Counter(zip(*[iter(self.desktop.screenshot().data[first:last])] * 3))
        return [sum(count for seen, count in counted.items() if like(seen, hue)) for hue in HUES]

    def icon(self):
        return all(count > 10 for count in self.rows(self.desktop.panel))

    def pie(self):
        """The main window, or the menu, is seen."""
        return all(count > 20 for count in self.rows(self.rest))

    def expect(self, column, seen, patience=PATIENCE):
        begin = time.monotonic()
        found = wait_for(seen, patience)
        self.table[column] = f"{time.monotonic() - begin:.1f} s" if found else "MISSING"
        time.sleep(0.5)
        self.picture(column)
        return found

    def expect_change(self, column, before, seen=lambda: True):
        """Something as large as a menu appears on the screen."""
        return self.expect(column, lambda: seen() and differing(before, self.desktop.screenshot().data) > 30000)

    def picture(self, name):
        self.desktop.run("import", "-window", "root", self.pictures / f"{self.name}-{name}.png".replace(" ", "-"))

    def windows(self, state):
        """The titles of Kelvo's windows in this state."""
        bus, root = self.desktop.accessibility, "/org/a11y/atspi/accessible/root"
        found = []
        for program in bus.call("org.a11y.atspi.Registry", root, ACCESSIBLE, "GetChildren")[0]:
            if bus.get(*program, ACCESSIBLE, "Name") != "Kelvo":
                continue
            for window in bus.call(*program, ACCESSIBLE, "GetChildren")[0]:
                if bus.call(*window, ACCESSIBLE, "GetState")[0][0] >> state & 1:
                    found.append(bus.get(*window, ACCESSIBLE, "Name"))
        return found

    def front(self, title="Kelvo"):
        """The window has the keyboard and nothing covers it."""
        return self.windows(STATE_ACTIVE) == [title] and (title != "Kelvo" or self.pie())

    def find_icon(self):
        """The middle of the pie in the panel's right half."""
        screen = self.desktop.screenshot()
        seen = [(x, y) for y in range(*self.desktop.panel) for x in range(WIDTH // 2, WIDTH)
                if any(like(screen.pixel(x, y), hue) for hue in HUES)]
        return [sum(values) // len(seen) for values in zip(*seen)]

    def click(self, how):
        self.desktop.run("xdotool", "mousemove", *self.at, "sleep", 0.3, *how)

    def choose(self, entry):
        """Opens the icon's menu and chooses an entry by the keyboard."""
        self.click(["click", "3"])
        time.sleep(1)
        self.desktop.key(*["Down"] * entry, "Return")

    def hide(self):
        self.desktop.key("alt+F4")
        assert wait_for(lambda: not self.windows(STATE_SHOWING), PATIENCE), "the window stays"
        time.sleep(0.5)

    def use_terminal(self):
        """As a user does between two looks at Kelvo: from now on, older requests for the keyboard are refused."""
        self.desktop.run("xdotool", "mousemove", 60, 700, "sleep", 0.2, "click", 1, "sleep", 0.2, "key", "Return")

    def cover(self):
        """By the maximised terminal."""
        self.use_terminal()
        assert wait_for(lambda: not self.pie(), PATIENCE), "the terminal does not cover the window"

    def minimise(self):
        if self.desktop.minimise:
            self.desktop.key(*self.desktop.minimise)
        else:
            self.desktop.run("xdotool", "getactivewindow", "windowminimize")
        assert wait_for(lambda: not self.pie(), PATIENCE), "the window is not minimised"

    def leave(self):
        """To an empty workspace."""
        if self.desktop.next_workspace:
            self.desktop.key(*self.desktop.next_workspace)
        else:
            self.desktop.run("xdotool", "set_desktop", 1)
        assert wait_for(lambda: not self.pie(), PATIENCE), "the window came along"
        time.sleep(1)

    def come_back(self):
        if self.desktop.first_workspace:
            self.desktop.key(*self.desktop.first_workspace)
        else:
            self.desktop.run("xdotool", "set_desktop", 0)
        time.sleep(1)

    def run(self):
        settings = {"HideAtStartUp": True, "StayOnTop": False, "Remind": True, "RemindThreshold": 3.0}
        self.kelvo.store(settings, **{"MainWindow/Position": [500, 300]})
        self.typed = self.desktop.terminal()
        self.kelvo.start()
        if self.desktop.tray:
            self.with_icon()
        else:
            self.without_icon()

    def with_icon(self):
        self.expect("icon", self.icon)
        self.at = self.find_icon()
        before = self.desktop.screenshot().data
        self.click(["click", "3"])
        self.expect_change("menu", before)  # some desktops show no marks in menus
        self.desktop.key("Escape")
        for column, ask in ("click", lambda: self.click(self.desktop.click)), ("row", lambda: self.choose(FIRST)), \
                ("again", self.kelvo.run):
            self.ask_in_every_state(column, ask)
        for column, entry, title in ("prefs", PREFERENCES, "Kelvo Preferences"), ("about", ABOUT, "About Kelvo"):
            before = self.desktop.screenshot().data
            self.choose(entry)
            self.expect_change(column, before, lambda: self.front(title))  # noqa: B023
            self.hide()
        self.remind()
        self.kelvo.run()
        self.expect("shown", self.front)
        self.hide()
        self.table["close"] = "hides" if self.kelvo.processes[0].poll() is None else "ENDS"
        self.choose(QUIT)
        self.expect("quit", lambda: self.kelvo.processes[0].poll() == 0)

    def ask_in_every_state(self, column, ask):
        """Asks for the window while it is hidden, covered, minimised, and on another workspace."""
        states = {"hidden": None, "covered": self.cover, "minimised": self.minimise, "elsewhere": self.leave}
        for word, begin in states.items():
            if begin:
                begin()
            self.use_terminal()
            ask()
            self.expect(f"{column} {word}", self.front)
        self.come_back()
        self.kelvo.run()
        time.sleep(1)
        self.hide()

    def remind(self):
        """The reminder comes while somebody is typing."""
        self.cover()
        self.kelvo.report(report(**EVEN | {"inactive": 2 ** 20}))
        before, text = self.typed.stat().st_size, "we we we\n"
        times = 0
        while times < 40 and not self.windows(STATE_SHOWING):
            times += 1
            self.desktop.run("xdotool", "type", text)
        self.expect("reminder", lambda: self.windows(STATE_SHOWING))
        for _ in range(3):
            times += 1
            self.desktop.run("xdotool", "type", text)
        wait_for(lambda: self.typed.stat().st_size - before == times * len(text), 2)
        arrived = 100 * (self.typed.stat().st_size - before) // (times * len(text))
        self.table["typed"] = f"{arrived} %" if arrived == 100 or "WAYLAND_DISPLAY" in self.desktop.env else "MISSING"
        self.picture("typed")
        untouched = self.windows(STATE_SHOWING) == ["Kelvo"] and not self.pie()  # the reminder only
        self.table["freed"] = "nothing" if untouched else "SOMETHING"
        self.kelvo.press("No")
        self.kelvo.report(report(**EVEN))

    def without_icon(self):
        """Kelvo is used by its window alone: it comes by itself, and closing it ends the program."""
        self.expect("window", self.pie)
        self.kelvo.run()
        self.expect("again", self.front)
        x, y, _, height = self.desktop.place(self.desktop.run("xdotool", "getactivewindow").strip())
        for column, keys in ("menu", []), ("Menu key", ["Menu"]), ("Shift+F10", ["shift+F10"]):
            before = self.desktop.screenshot().data
            if keys:
                self.desktop.key(*keys)
            else:
                self.desktop.run("xdotool", "mousemove", x + 40, y + height - 20, "sleep", 0.3, "click", 3)
            self.expect_change(column, before)
            self.desktop.key("Escape")
            time.sleep(0.5)
        self.desktop.key("ctrl+comma")
        self.expect("prefs", lambda: self.front("Kelvo Preferences"))
        self.desktop.key("alt+F4")
        self.kelvo.run()
        wait_for(self.front, PATIENCE)
        self.desktop.key("alt+F4")
        self.expect("close", lambda: self.kelvo.processes[0].poll() == 0)
        self.kelvo.start()
        self.expect("window", self.pie)
        self.kelvo.run()
        wait_for(self.front, PATIENCE)
        self.desktop.key("ctrl+q")
        self.expect("quit", lambda: self.kelvo.processes[-2].poll() == 0)
