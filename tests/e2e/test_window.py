"""The main window on a screen with a window manager."""
import time
import unittest

from case import LABELS, PAGES, DesktopTest, report
from bus import wait_for

BACKDROP = (48, 96, 192)


class Window(DesktopTest):
    programs = ["watcher", "openbox"]

    def open(self, record=None, **stored):
        self.kelvo.store({"StayOnTop": True, **(record or {})}, **stored)
        self.start()
        window = self.kelvo.window()
        self.assertTrue(window, "no window")
        return window

    def drag(self, x, y, steps):
        """Drags from a place on the screen, in small steps, by ten times as many pixels to the right and down."""
        self.desktop.run("xdotool", "mousemove", x, y, "sleep", 0.1, "mousedown", 1)
        for _ in range(steps):
            self.desktop.run("xdotool", "mousemove_relative", 10, 10, "sleep", 0.02)
        self.desktop.run("xdotool", "mouseup", 1)

    def test_figures(self):
        self.open()
        self.assertEqual(self.kelvo.labels(), LABELS)
        self.kelvo.report(report(free=PAGES["free"] + 1, speculative=1))
        self.assertBecomes(lambda: self.kelvo.labels()["Total"], "8.00 GB")
        self.kelvo.report(report(free=0, active=256, inactive=0, **{"wired_down": 1}))
        self.assertBecomes(self.kelvo.labels, {"Free": "0 bytes", "Inactive": "0 bytes", "Active": "1.0 MB",
                                               "Wired": "4 KB", "Used": "1.0 MB", "Total": "6.1 MB"})

    def test_frame_and_stacking(self):
        for on_top in False, True:
            for frameless in False, True:
                with self.subTest(on_top=on_top, frameless=frameless):
                    window = self.open({"StayOnTop": on_top, "NoTitleBar": frameless})
                    properties = self.desktop.run("xprop", "-id", window, "_NET_WM_STATE", "_NET_FRAME_EXTENTS")
                    self.assertEqual("_NET_WM_STATE_ABOVE" in properties, on_top)
                    self.assertEqual("= 0, 0, 0, 0" in properties, frameless)
                    self.assertEqual(self.kelvo.stop(), 0)

    def test_dark_style(self):
        self.desktop.run("hsetroot", "-solid", "#%02x%02x%02x" % BACKDROP)
        for compositor in False, True:
            with self.subTest(compositor=compositor):
                if compositor:
                    self.desktop.picom()
                window = self.open({"WindowStyle": 1, "NoTitleBar": True})
                x, y, width, height = self.desktop.place(window)

                def pixels():
                    screen = self.desktop.screenshot()
                    return [screen.pixel(column, row) for row in range(y, y + height) for column in range(x, x + width)]

                ground = pixels()[3 * width + 3]
                wait_for(lambda: max(pixels()) > (230, 230, 230))
                self.assertGreater(max(pixels()), (230, 230, 230), "light text")
                self.assertLess(max(ground), 150, "on a dark ground")
                seen_through = all(abs(channel - behind / 2) < 8 for channel, behind in zip(ground, BACKDROP))
                self.assertEqual(seen_through, compositor, f"the ground is {ground}")
                self.kelvo.stop()

    def test_drag_and_close_mark(self):
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

                self.drag(inner_x + 60, inner_y + 3, 10)
                self.assertBecomes(lambda: self.desktop.place(window)[:2], (300, 250))

                self.desktop.run("xdotool", "mousemove", inner_x + 111, inner_y + 111, "sleep", 0.1, "click", 1)
                self.assertEqual(bool(self.kelvo.window(0.5)), not frameless)
                self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(self.kelvo.settings()["MainWindow/Position"], [300, 250])

    def test_place_is_kept(self):
        inside = (200, 150), (0, 250)
        outside = (5000, 300), (-900, -900), (300, 2000)
        for frameless in False, True:
            for place in inside + outside:
                with self.subTest(place, frameless=frameless):
                    window = self.open({"NoTitleBar": frameless}, **{"MainWindow/Position": place})
                    if place in inside:
                        self.assertBecomes(lambda: self.desktop.place(window)[:2], place)
                        for _ in range(3):
                            time.sleep(0.2)  # Kelvo learns a moment later than we where its window is
                            self.kelvo.stop()
                            self.assertEqual(self.kelvo.settings()["MainWindow/Position"], list(place), "it drifts")
                            self.start()
                            window = self.kelvo.window()
                            self.assertBecomes(lambda: self.desktop.place(window)[:2], place)
                    else:
                        self.assertTrue(wait_for(lambda: self.on_screen(window)), self.desktop.place(window))
                    self.kelvo.stop()

    def on_screen(self, window):
        x, y, width, height = self.desktop.place(window)
        return x >= 0 and y >= 0 and x + width <= 1024 and y + height <= 768


if __name__ == "__main__":
    unittest.main()
