"""The preferences panel by keyboard and by mouse, and what each setting does, seen from outside."""
import unittest

from case import DesktopTest, wait_for
from kelvo import STATE_CHECKED, STATE_ENABLED, STATE_FOCUSED

CLASSIC, DARK = "Classic", "Dark & Translucent"
TITLE_BAR = "Do not show window title bar"
ON_TOP = "Keep main window on top of other windows"
PIE, MONO = "Show pie chart on menubar", "Monocolor pie chart"
LAUNCH = "Automatically launch Kelvo when I log in"

# From top to bottom, with the key that changes it.
CONTROLS = {CLASSIC: "Right", TITLE_BAR: "space", "2 seconds": "Down", ON_TOP: "space", PIE: "space", MONO: "space",
            LAUNCH: "space", "Hide main window when Kelvo starts up": "space",
            "Automatically hide main window after freeing is completed": "space",
            "Remind me to free memory when inactive memory ": "space", "reaches over": "Up"}
AFTER = {"WindowStyle": 1, "NoTitleBar": True, "UpdateFrequency": 1, "StayOnTop": False, "PieChartIcon": True,
         "MonoColor": True, "AutoLaunch": True, "HideAtStartUp": True, "AutoHide": True, "Remind": True,
         "RemindThreshold": 2.0}


class Preferences(DesktopTest):
    def open(self, record=None, **stored):
        item = super().open(record, **stored)
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

    def is_dark(self):
        """The main window's own ground; None while the window is being made anew."""
        window = self.kelvo.window(0)
        return max(self.desktop.screenshot(window).pixel(3, 3)) < 150 if window else None

    def test_keyboard(self):
        self.open({"PieChartIcon": False})
        for name, key in CONTROLS.items():
            self.assertBecomes(self.focus, [name])
            self.key(key)
            # A main window that is made anew has the keyboard for a moment, and swallows a key.
            wait_for(lambda: self.key("Tab") or wait_for(lambda: self.focus() not in ([], [name]), 2))
        self.assertBecomes(self.focus, [DARK])  # round; the two styles are one stop
        self.assertEqual(self.stop()["Application/Settings"], AFTER)

        # All of it works at the next start.
        item = self.start()
        self.assertFalse(self.kelvo.window(0.5), "the main window is not hidden")
        self.assertBecomes(lambda: item.icon().width, 32)
        item.activate()
        self.assertBecomes(self.window_is, (False, True))
        self.assertBecomes(self.is_dark, True)

    def test_window(self):
        item = self.open(**{"MainWindow/Position": [600, 200]})
        panel, window = self.kelvo.window(name="Preferences"), self.kelvo.window()

        def topmost():
            return str(int(self.desktop.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()[-1], 16))

        def clear():
            x, _, width, _ = self.desktop.place(panel)
            return x + width <= 600 and self.desktop.on_screen(panel)
        self.assertTrue(wait_for(clear), "the panel covers the window")
        for box, wanted in ((ON_TOP, (False, False)), (TITLE_BAR, (False, True)), (ON_TOP, (True, True)),
                            (TITLE_BAR, (True, False)), (ON_TOP, (False, False))):
            with self.subTest(box, wanted=wanted):
                self.kelvo.press(box)
                self.assertBecomes(self.window_is, wanted)
                self.assertBecomes(lambda: self.desktop.place(self.kelvo.window())[:2], (600, 200))
        for style in DARK, CLASSIC:
            self.kelvo.press(style)
            self.assertBecomes(self.is_dark, style == DARK)
        for show, window in (item.activate, self.kelvo.window()), (lambda: self.show_panel(item), panel):
            show()
            self.assertBecomes(topmost, window)

    def test_icon(self):
        item = self.open()
        for box, width, grey, mono_shown in ((None, 64, False, True), (PIE, 16, True, False), (PIE, 64, False, True),
                                             (MONO, 32, True, True), (MONO, 64, False, True)):
            with self.subTest(box, width=width):
                if box:
                    self.kelvo.press(box)
                self.assertBecomes(lambda: item.icon().width, width)
                self.assertEqual(all(red == green == blue for _, red, green, blue in item.icon().pixels()), grey)
                self.assertEqual(MONO in self.kelvo.having(STATE_ENABLED), mono_shown)


unittest.main()
