"""The status icon and its menu: in both kinds of tray, in one that comes late or anew, and what clicks on it do."""
import time
import unittest
from collections import Counter

from case import FIGURES, PAGES, DesktopTest, report, wait_for

MENU = ["Free: 1.00 GB", "Wired: 1.99 GB", "Active: 3.00 GB", "Inactive: 2.00 GB", "-", "Free Memory Now!", "-",
        "Kelvo Preferences...", "About Kelvo", "-", "Quit"]
PIE = {(255, 0, 255, 0), (255, 255, 255, 0), (255, 0, 0, 255), (255, 255, 0, 0)}
CLEAR = (0, 0, 0, 0)


class Trays(DesktopTest):
    programs = ["openbox"]

    def setUp(self):
        super().setUp()
        self.kelvo.store({"HideAtStartUp": True})

    def test_menu_and_pie(self):
        self.desktop.watcher()
        item = self.start()
        self.assertEqual((item.tool_tip(), item.texts()), ("Kelvo", MENU))
        self.assertBecomes(lambda: item.icon().width, 64)
        counted = Counter(item.icon().pixels())
        self.assertEqual({color for color in counted if counted[color] > 200}, PIE | {CLEAR})
        # Some hosts ask once at the start and never again; later changes that nobody sees are not sent.
        time.sleep(10)
        item.signals.clear()
        self.kelvo.report(report(free=PAGES["free"] + 3000))
        self.kelvo.wait_for_sample()
        self.assertEqual(item.signals, [], "nobody looks, and the icon looks the same")
        self.assertEqual(item.figures(), {**FIGURES, "Free": "1.01 GB"})
        self.kelvo.report(report(free=2 * PAGES["free"]))
        self.assertBecomes(lambda: "NewIcon" in item.signals and "ItemsPropertiesUpdated" in item.signals, True)

    def test_no_tray(self):
        """The window has the menu and its keys, and its end is that of the program."""
        for key in "alt+F4", "ctrl+q":
            process = self.kelvo.start()
            window = self.kelvo.window()
            keys = "xdotool", "windowactivate", "--sync", window, "key"
            for opens in (lambda: self.desktop.click(window, button=3), lambda: self.desktop.run(*keys, "Menu"),
                          lambda: self.desktop.run(*keys, "shift+76")):  # F10: by name, some xdotool presses Alt too
                self.assertEqual(self.kelvo.popup(opens), [text.strip("-") for text in MENU])
                self.desktop.run("xdotool", "key", "Escape")
            self.desktop.run(*keys, "ctrl+comma")
            self.assertTrue(self.kelvo.window(name="Preferences"), "no panel")
            self.desktop.run(*keys, key)
            self.assertEqual(process.wait(20), 0)
            self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

    def test_ways_to_the_window(self):
        tray = self.desktop.watcher()
        item = self.start()
        running = self.kelvo.processes[0]
        self.assertFalse(self.kelvo.window(0.5))
        for show in (item.activate, lambda: item.click("Free: "), lambda: item.click("Inactive"), [], ["-q"],
                     ["x" * 100000, "", "ä\n" * 30000], ["--help", "-platform"]):
            with self.subTest(str(show)[:40]):
                show() if callable(show) else self.assertEqual(self.kelvo.run(*show), 0)
                self.kelvo.processes = [running]
                self.assertTrue(self.kelvo.window(), "no window")
                self.close_window()
        self.assertEqual(len(tray.items), 1, "a second launch has an icon of its own")

    def test_embedded(self):
        self.desktop.tray()
        self.kelvo.start()
        icon = self.kelvo.tray_window()
        self.assertTrue(icon, "no icon in the tray")
        self.assertFalse(self.kelvo.window(0.5))
        self.desktop.click(icon)
        self.assertTrue(self.kelvo.window(), "a left click shows no window")
        menu = self.kelvo.popup(lambda: self.desktop.click(icon, button=3))
        self.assertEqual(menu, [text.strip("-") for text in MENU])
        self.desktop.run("xdotool", "key", "Escape")
        # It is alive: the pie comes with the first timed sample.
        x, y, width, height = self.desktop.place(icon)
        self.assertBecomes(lambda: self.desktop.screenshot().pixel(x + width * 0.3, y + height / 2), (0, 0, 255))

    def test_late_tray(self):
        for kind, find in {"watcher": lambda tray: tray.item(), "tray": lambda _: self.kelvo.tray_window()}.items():
            for late in False, True:
                with self.subTest(kind, late=late):
                    self.kelvo.start()
                    # After some seconds without a tray nobody is left without any way in.
                    self.assertEqual(bool(self.kelvo.window(20 if late else 0.5)), late)
                    tray = getattr(self.desktop, kind)()
                    self.assertTrue(find(tray), "no icon")
                    self.assertEqual(bool(self.kelvo.window(0)), late)
                    self.kelvo.stop()
                    tray.kill() if kind == "tray" else tray.close()

    def test_tray_that_starts_anew(self):
        """First without anything that shows its icons."""
        tray = self.desktop.watcher(hosted=False)
        self.kelvo.start()
        self.assertFalse(wait_for(lambda: tray.items, 1), "an icon that nobody shows")
        tray.host()
        for _ in range(3):
            self.assertTrue(tray.item(), "no icon")
            self.assertEqual((tray.item().tool_tip(), tray.item().texts()), ("Kelvo", MENU))
            tray.close()
            tray = self.desktop.watcher()


unittest.main()
