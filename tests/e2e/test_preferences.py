"""The preferences panel by keyboard and by mouse, and what each setting does, seen from outside."""
import shutil
import time
import unittest

from case import DesktopTest, wait_for
from kelvo import STATE_CHECKED, STATE_ENABLED, STATE_FOCUSED

CLASSIC, DARK = "Classic", "Dark & Translucent"
TITLE_BAR = "Do not show window title bar"
ON_TOP = "Keep main window on top of other windows"
PIE, MONO = "Show pie chart on menubar", "Monocolor pie chart"
LAUNCH = "Automatically launch Kelvo when I log in"
AUTO_HIDE = "Automatically hide main window after freeing is completed"

# From top to bottom, with the key that changes it.
CONTROLS = {CLASSIC: "Right", TITLE_BAR: "space", "2 seconds": "Down", ON_TOP: "space", PIE: "space", MONO: "space",
            LAUNCH: "space", "Hide main window when Kelvo starts up": "space", AUTO_HIDE: "space",
            "Remind me to free memory when inactive memory ": "space", "reaches over": "Up"}
AFTER = {"WindowStyle": 1, "NoTitleBar": True, "UpdateFrequency": 1, "StayOnTop": False, "PieChartIcon": True,
         "MonoColor": True, "AutoLaunch": True, "HideAtStartUp": True, "AutoHide": True, "Remind": True,
         "RemindThreshold": 2.0}


class Preferences(DesktopTest):
    def open(self, record=None, **stored):
        self.kelvo.store(record, **stored)
        item = self.start()
        self.show_panel(item)
        return item

    def show_panel(self, item):
        item.click("Kelvo Preferences")
        self.assertTrue(self.kelvo.window(name="Preferences"), "no panel")

    def key(self, *keys):
        self.desktop.run("xdotool", "key", *keys)

    def focus(self):
        return self.kelvo.having(STATE_FOCUSED)

    def window_is(self):
        """The main window as the window manager sees it: (kept on top, frameless)."""
        properties = self.desktop.run("xprop", "-id", self.kelvo.window(), "_NET_WM_STATE", "_NET_FRAME_EXTENTS")
        return "_NET_WM_STATE_ABOVE" in properties, "= 0, 0, 0, 0" in properties

    def ground(self):
        """The main window's own colour, or None while it is being made anew."""
        window = self.kelvo.window(0)
        return window and self.desktop.screenshot(window).pixel(3, 3)

    def test_keyboard(self):
        self.open({"PieChartIcon": False})
        for name, key in CONTROLS.items():
            self.assertBecomes(self.focus, [name])
            self.key(key)
            # A main window that is made anew has the keyboard for a moment, and swallows a key.
            wait_for(lambda: self.key("Tab") or wait_for(lambda: self.focus() not in ([], [name]), 2))
        self.assertBecomes(self.focus, [DARK])  # round; the two styles are one stop
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.kelvo.settings()["Application/Settings"], AFTER)

        # All of it is there again at the next start.
        item = self.start()
        self.assertFalse(self.kelvo.window(1), "the main window is not hidden")
        self.assertBecomes(lambda: item.icon().width, 32)
        self.show_panel(item)
        boxes = {name for name, key in CONTROLS.items() if key == "space" and name != ON_TOP}
        self.assertEqual(set(self.kelvo.having(STATE_CHECKED)), boxes | {DARK})
        self.assertIn("5 seconds", self.kelvo.texts())
        item.activate()
        self.assertBecomes(self.window_is, (False, True))
        self.assertBecomes(lambda: max(self.ground() or [255]) < 150, True)
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.kelvo.settings()["Application/Settings"], AFTER)

    def test_window(self):
        self.open(**{"MainWindow/Position": [400, 200]})
        self.assertBecomes(self.window_is, (True, False))
        for box, wanted in ((ON_TOP, (False, False)), (TITLE_BAR, (False, True)), (ON_TOP, (True, True)),
                            (TITLE_BAR, (True, False))):
            with self.subTest(box, wanted=wanted):
                self.kelvo.press(box)
                self.assertBecomes(self.window_is, wanted)
                self.assertBecomes(lambda: self.desktop.place(self.kelvo.window())[:2], (400, 200))
        for style, dark in (DARK, True), (CLASSIC, False):
            self.kelvo.press(style)
            self.assertBecomes(lambda: max(self.ground() or [150]) < 150, dark)

    def test_icon(self):
        item = self.open()
        for box, width, grey, mono_shown in ((None, 64, False, True), (PIE, 16, True, False), (PIE, 64, False, True),
                                             (MONO, 32, True, True), (MONO, 64, False, True)):
            with self.subTest(box, width=width):
                if box:
                    self.kelvo.press(box)
                self.assertBecomes(lambda: item.icon().width, width)
                icon = item.icon()
                pixels = (icon.pixel(x, y) for x in range(width) for y in range(width))
                self.assertEqual(all(red == green == blue for _, red, green, blue in pixels), grey)
                self.assertEqual(MONO in self.kelvo.having(STATE_ENABLED), mono_shown)

    def test_update_frequency(self):
        self.open()
        calls = self.kelvo.directory / "asked"

        def next_call():
            before = calls.stat().st_size
            self.assertTrue(wait_for(lambda: calls.stat().st_size > before), "no sample is taken")
            return calls.stat().st_mtime

        self.key("Tab", "Tab")
        self.assertBecomes(self.focus, ["2 seconds"])
        for key, period in ("Down", 5), ("Up", 2):
            next_call()  # the next one is some time off
            self.key(key)
            time.sleep(1)  # what a change asks for itself is over
            self.assertAlmostEqual(-(next_call() - next_call()), period, delta=0.5)

    def test_hiding_after_a_run(self):
        self.kelvo.install("memfree", "echo freed")
        self.open(**{"MainWindow/Warning": True})
        self.kelvo.press("Free Memory")
        self.assertTrue(wait_for(lambda: "Just freed:" in self.kelvo.texts()))
        gone = lambda: not self.kelvo.window(0)  # noqa: E731
        self.assertFalse(wait_for(gone, 1.5), "it hides unasked")
        self.kelvo.press(AUTO_HIDE)
        self.assertFalse(wait_for(gone, 1.5), "it hides without a run")
        self.kelvo.press("Free Memory")
        self.assertTrue(wait_for(gone), "it stays")

    def test_launching_at_login(self):
        # An awkward place, and one that reads like a piece of the script in which it is sent.
        awkward = self.desktop.home / 'a"b\\c d%é", kind:application}'
        shutil.move(self.kelvo.directory, awkward)
        self.kelvo.directory, self.kelvo.resources = awkward, awkward / "Resources"
        self.kelvo.program = awkward / "bin/kelvo"
        self.kelvo.use_built_resources()
        entry = self.desktop.home / ".config/autostart/Kelvo.desktop"
        self.open()
        self.assertFalse(entry.exists())
        for there in True, False, True:
            self.kelvo.press(LAUNCH)
            self.assertBecomes(entry.exists, there)
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertTrue(entry.exists())

        # What the session does at the next login.
        watcher = self.desktop.watchers[0]
        watcher.items.clear()
        self.desktop.spawn("gio", "launch", entry)
        self.assertTrue(watcher.item(), "it starts nothing")
        watcher.items[0].click("Kelvo Preferences")
        self.assertBecomes(lambda: LAUNCH in self.kelvo.having(STATE_CHECKED), True)

    def test_panel_is_not_covered(self):
        for place in (40, 40), (700, 60), (300, 560):
            self.open(**{"MainWindow/Position": place})

            def clear():
                panel = self.kelvo.window(name="Preferences")
                (x, _, width, _), (main_x, _, main_width, _) = map(self.desktop.place, (panel, self.kelvo.window()))
                return self.desktop.on_screen(panel) and (x >= main_x + main_width or x + width <= main_x)
            self.assertTrue(wait_for(clear), place)
            self.kelvo.stop()

    def test_windows_are_raised(self):
        item = self.open({"StayOnTop": False})
        panel, window = self.kelvo.window(name="Preferences"), self.kelvo.window()

        def topmost():
            return str(int(self.desktop.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()[-1], 16))
        self.assertBecomes(topmost, panel)
        item.activate()
        self.assertBecomes(topmost, window)
        self.show_panel(item)
        self.assertBecomes(topmost, panel)


unittest.main()
