"""The main window on a screen with a window manager, and for a screen reader."""
import time
import unittest

from case import FIGURES, LABELS, PAGES, DesktopTest, report, wait_for
from kelvo import ACCESSIBLE

BACKDROP = (48, 96, 192)
NAMELESS = {"filler", "panel", "list", "list item", "text", "separator"}


class Window(DesktopTest):
    def open(self, record=None, **stored):
        self.kelvo.store({"StayOnTop": True, **(record or {})}, **stored)
        self.start()
        window = self.kelvo.window()
        self.assertTrue(window, "no window")
        return window

    def test_figures(self):
        self.open()
        self.assertEqual(self.kelvo.labels(), LABELS)
        pie = next(at for _, name, at in self.kelvo.widgets() if name == "Memory pie chart")
        self.assertEqual(self.desktop.accessibility.get(*pie, ACCESSIBLE, "Description"),
                         ", ".join(f"{name}: {FIGURES[name]}" for name in ("Free", "Inactive", "Active", "Wired")))
        self.kelvo.report(report(free=PAGES["free"] + 1, speculative=1))
        self.assertBecomes(lambda: self.kelvo.labels()["Total"], "8.00 GB")
        self.kelvo.report(report(free=0, active=256, inactive=0, wired_down=1))
        self.assertBecomes(self.kelvo.labels, {"Free": "0 bytes", "Inactive": "0 bytes", "Active": "1.0 MB",
                                               "Wired": "4 KB", "Used": "1.0 MB", "Total": "6.1 MB"})

    def test_every_control_has_a_name(self):
        item = self.start()
        self.kelvo.press("Free Memory")
        self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning too
        item.click("Kelvo Preferences")
        item.click("About")
        self.assertTrue(self.kelvo.window(name="About"))
        self.assertEqual([], [role for role, name, _ in self.kelvo.widgets() if not name and role not in NAMELESS])

    def test_dark_style(self):
        self.desktop.run("hsetroot", "-solid", "#%02x%02x%02x" % BACKDROP)
        for compositor in False, True:
            with self.subTest(compositor=compositor):
                if compositor:
                    self.desktop.picom()
                x, y, width, height = self.desktop.place(self.open({"WindowStyle": 1, "NoTitleBar": True}))

                def pixels():
                    screen = self.desktop.screenshot()
                    return [screen.pixel(column, row) for row in range(y, y + height) for column in range(x, x + width)]

                ground = pixels()[3 * width + 3]
                self.assertTrue(wait_for(lambda: max(pixels()) > (230, 230, 230)), "no light text")
                self.assertLess(max(ground), 150, "on a dark ground")
                seen_through = all(abs(channel - behind / 2) < 8 for channel, behind in zip(ground, BACKDROP))
                self.assertEqual(seen_through, compositor, f"the ground is {ground}")
                self.kelvo.stop()

    def test_without_title_bar(self):
        """There is a close mark under the mouse, and Escape; any window can be dragged by its top."""
        for frameless in True, False:
            with self.subTest(frameless=frameless):
                window = self.open({"NoTitleBar": frameless}, **{"MainWindow/Position": [200, 150]})
                self.assertBecomes(lambda: self.desktop.place(window)[:2], (200, 150))
                extents = self.desktop.run("xprop", "-id", window, "_NET_FRAME_EXTENTS").partition("= ")[2].split(", ")
                inner_x, inner_y = 200 + int(extents[0]), 150 + int(extents[2])
                mark = lambda: self.desktop.screenshot(window).pixel(11, 6) == (165, 165, 165)  # noqa: E731
                self.assertFalse(mark(), "drawn without the mouse")
                self.desktop.run("xdotool", "mousemove", inner_x + 60, inner_y + 60)
                self.assertEqual(wait_for(mark, 20 if frameless else 1), frameless)

                self.desktop.drag(inner_x + 60, inner_y + 3)
                self.assertBecomes(lambda: self.desktop.place(window)[:2], (300, 250))
                self.desktop.run("xdotool", "mousemove", inner_x + 111, inner_y + 111, "sleep", 0.1, "click", 1)
                self.assertEqual(bool(self.kelvo.window(0.5)), not frameless)
                self.desktop.watchers[-1].item().activate()
                self.desktop.run("xdotool", "windowactivate", "--sync", self.kelvo.window(), "key", "Escape")
                self.assertEqual(wait_for(lambda: not self.kelvo.window(0), 20 if frameless else 1), frameless)
                self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(self.kelvo.settings()["MainWindow/Position"], [300, 250])

    def test_place_is_kept(self):
        for frameless in False, True:
            for place in (200, 150), (0, 250):
                with self.subTest(place, frameless=frameless):
                    self.kelvo.store({"NoTitleBar": frameless}, **{"MainWindow/Position": place})
                    for _ in range(3):
                        self.start()
                        self.assertBecomes(lambda: self.desktop.place(self.kelvo.window())[:2], place)
                        time.sleep(0.2)  # Kelvo learns a moment later than we where its window is
                        self.kelvo.stop()
                        self.assertEqual(self.kelvo.settings()["MainWindow/Position"], list(place), "it drifts")
            for place in (5000, 300), (-900, -900):
                with self.subTest(place, frameless=frameless):
                    window = self.open({"NoTitleBar": frameless}, **{"MainWindow/Position": place})
                    self.assertTrue(wait_for(lambda: self.desktop.on_screen(window)), self.desktop.place(window))
                    self.kelvo.stop()


unittest.main()
