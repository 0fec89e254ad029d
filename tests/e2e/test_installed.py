"""Kelvo as `cmake --install` or a package put it there: found, started and recognised by the desktop."""
import os
import unittest
from configparser import RawConfigParser
from pathlib import Path

from case import DesktopTest
from bus import wait_for


def entry(path):
    """What a desktop entry says."""
    parser = RawConfigParser()
    parser.optionxform = str
    parser.read(path)
    return parser["Desktop Entry"]


class Installed(DesktopTest):
    def setUp(self):
        super().setUp()
        top = Path(os.environ["KELVO"]).parents[1]
        self.prefix = top.parents[1]
        if (top / "CMakeCache.txt").exists():
            # Installed from the build tree, and then moved: nothing may know where it is.
            self.desktop.run("cmake", "--install", top, "--prefix", self.desktop.home / "first")
            self.prefix = (self.desktop.home / "first").rename(self.desktop.home / "here now")
        self.kelvo.program = self.prefix / "bin" / "kelvo"
        self.known_icons = [path.stem for path in (self.prefix / "share/icons/hicolor").glob("*/apps/*")]

    def test_started_by_its_link(self):
        item = self.start()
        self.assertTrue(wait_for(lambda: item.figures().get("Free", "0 bytes") != "0 bytes"), "no interpreter is found")
        for helper in "memfree", "osascript", "vm_stat":
            self.desktop.run(self.prefix / "lib/kelvo/Resources" / helper, "--help")

    def test_desktop_entry(self):
        self.start()
        name, of_class = self.desktop.run("xprop", "-id", self.kelvo.window(), "WM_CLASS").split('"')[1::2]
        known = entry(self.prefix / f"share/applications/{name}.desktop")
        self.assertEqual(known["StartupWMClass"], of_class)
        self.assertTrue(os.access(self.prefix / "bin" / known["Exec"], os.X_OK))
        self.assertIn(known["Icon"], self.known_icons)

    def test_login_item(self):
        self.kelvo.store({"AutoLaunch": True})
        self.start()
        item = entry(self.desktop.home / ".config/autostart/Kelvo.desktop")
        self.assertEqual(item["TryExec"], str(self.prefix / "lib/kelvo/bin/kelvo"))
        self.assertIn(item["Icon"], self.known_icons)


if __name__ == "__main__":
    unittest.main()
