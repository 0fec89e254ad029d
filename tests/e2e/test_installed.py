"""Kelvo as `cmake --install` or a package put it there: found, started and recognised by the desktop."""
import os
import unittest
from configparser import RawConfigParser
from pathlib import Path

from case import DesktopTest, wait_for


def entry(path):
    """What a desktop entry says."""
    parser = RawConfigParser()
    parser.optionxform = str
    parser.read(path)
    return parser["Desktop Entry"]


class Installed(DesktopTest):
    def test_installed(self):
        top = Path(os.environ["KELVO"]).parents[1]
        prefix = top.parents[1]
        if (top / "CMakeCache.txt").exists():
            # Installed from the build tree, and then moved: nothing may know where it is.
            self.desktop.run("cmake", "--install", top, "--prefix", self.desktop.home / "first")
            prefix = (self.desktop.home / "first").rename(self.desktop.home / "here now")
        known_icons = [path.stem for path in (prefix / "share/icons/hicolor").glob("*/apps/*")]

        self.kelvo.program = prefix / "bin/kelvo"  # a link
        (self.kelvo.path / "vm_stat").unlink()
        self.kelvo.store({"AutoLaunch": True})
        item = self.start()
        self.assertTrue(wait_for(lambda: item.figures().get("Free", "0 bytes") != "0 bytes"), "no interpreter is found")
        self.desktop.run(prefix / "lib/kelvo/Resources/memfree", "--help")

        name, of_class = self.desktop.run("xprop", "-id", self.kelvo.window(), "WM_CLASS").split('"')[1::2]
        known = entry(prefix / f"share/applications/{name}.desktop")
        self.assertEqual(known["StartupWMClass"], of_class)
        self.assertTrue(os.access(prefix / "bin" / known["Exec"], os.X_OK))
        login = entry(self.desktop.home / ".config/autostart/Kelvo.desktop")
        self.assertEqual(login["TryExec"], str(prefix / "lib/kelvo/bin/kelvo"))
        self.assertLessEqual({known["Icon"], login["Icon"]}, set(known_icons))


unittest.main()
