"""The status icon in both kinds of tray, in a tray that comes late, and on a desktop without one."""
import time
import unittest

from case import DesktopTest, wait_for

MENU = ["Free: 1.00 GB", "Wired: 1.99 GB", "Active: 3.00 GB", "Inactive: 2.00 GB", "", "Free Memory Now!", "",
        "Kelvo Preferences...", "About Kelvo", "", "Quit"]


class Trays(DesktopTest):
    programs = []

    def setUp(self):
        super().setUp()
        self.kelvo.store({"HideAtStartUp": True})

    def test_embedded(self):
        self.desktop.trayer()
        self.kelvo.start()
        icon = self.kelvo.tray_window()
        self.assertTrue(icon, "no icon in the tray")
        self.assertFalse(self.kelvo.window(1))
        self.desktop.click(icon)
        self.assertTrue(self.kelvo.window(), "a left click shows no window")
        self.assertEqual(self.kelvo.popup(lambda: self.desktop.click(icon, button=3)), MENU)
        self.desktop.run("xdotool", "key", "Escape")
        # It is alive: the pie comes with the first timed sample.
        x, y, width, height = self.desktop.place(icon)
        self.assertBecomes(lambda: self.desktop.screenshot().pixel(x + width * 0.3, y + height / 2), (0, 0, 255))

    def test_late_tray(self):
        for kind, find in {"watcher": lambda tray: tray.item(), "trayer": lambda _: self.kelvo.tray_window()}.items():
            for late in False, True:
                with self.subTest(kind, late=late):
                    self.kelvo.start()
                    # After some seconds without a tray nobody is left without any way in.
                    self.assertEqual(bool(self.kelvo.window(20 if late else 0.5)), late)
                    tray = getattr(self.desktop, kind)()
                    self.assertTrue(find(tray), "no icon")
                    self.assertEqual(bool(self.kelvo.window(0)), late)
                    self.kelvo.stop()
                    tray.kill() if kind == "trayer" else tray.close()

    def test_tray_that_starts_anew(self):
        """First without anything that shows its icons."""
        tray = self.desktop.watcher(hosted=False)
        self.kelvo.start()
        self.assertFalse(wait_for(lambda: tray.items, 1), "an icon that nobody shows")
        tray.host()
        self.assertTrue(tray.item(), "no icon")
        for _ in range(2):
            tray.close()
            time.sleep(0.5)
            tray = self.desktop.watcher()
            item = tray.item()
            self.assertTrue(item, "the icon does not come back")
            self.assertEqual((item.tool_tip(), len(item.texts())), ("Kelvo", len(MENU)))


unittest.main()
