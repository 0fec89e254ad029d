"""Kelvo as `cmake --install` or a package put it there: found and recognised by the desktop, its languages, its pages."""
import os
import unittest
from configparser import RawConfigParser
from pathlib import Path

from case import DesktopTest, wait_for

REVIEWS, MAKER = "https://store.orvanta.example/kelvo?view=reviews\n", "https://orvanta.example/\n"


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
        item = self.open({"AutoLaunch": True})
        self.assertTrue(wait_for(lambda: item.figures().get("Free", "0 bytes") != "0 bytes"), "no figures")
        self.desktop.run(prefix / "lib/kelvo/Resources/memfree", "--help")

        name, of_class = self.desktop.run("xprop", "-id", self.kelvo.window(), "WM_CLASS").split('"')[1::2]
        known = entry(prefix / f"share/applications/{name}.desktop")
        self.assertEqual(known["StartupWMClass"], of_class)
        self.assertTrue(os.access(prefix / "bin" / known["Exec"], os.X_OK))
        login = entry(self.desktop.home / ".config/autostart/Kelvo.desktop")
        self.assertEqual(login["TryExec"], str(prefix / "lib/kelvo/bin/kelvo"))
        self.assertLessEqual({known["Icon"], login["Icon"]}, set(known_icons))

    def test_languages(self):
        """Of a country without a catalogue of its own, and from right to left."""
        self.kelvo.use_built_resources()
        self.assertEqual(self.start(LC_ALL="de_AT.UTF-8").texts()[:6], [
            "Frei: 1,00 GB", "Reserviert: 1,99 GB", "Aktiv: 3,00 GB", "Inaktiv: 2,00 GB", "-",
            "Speicher jetzt freigeben!"])
        self.stop()
        self.assertTrue(self.start(LC_ALL="ar_EG.UTF-8").texts()[0].startswith("حرة: "))
        self.assertTrue(self.kelvo.window())
        left = {name: self.desktop.accessibility.call(*at, "org.a11y.atspi.Component", "GetExtents", "(u)", 0)[0][0]
                for role, name, at in self.kelvo.widgets() if role == "label"}
        self.assertLess(left["١٫٠٠ غ.ب"], left["حرة:"])

    def assertOpened(self, pages):
        opened = self.kelvo.directory / "opened"
        self.assertBecomes(lambda: opened.read_text() if opened.exists() else "", pages)

    def test_pages(self):
        """What opens a page in the user's browser, here only notes it."""
        self.kelvo.install("xdg-open", f"echo \"$1\" >>'{self.kelvo.directory}/opened'")
        self.start().click("About")
        about = self.kelvo.window(name="^About Kelvo$")
        self.assertLessEqual({"Kelvo", "version 1.2.2"}, set(self.kelvo.texts()))
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.run("xprop", "-id", about, "_NET_WM_STATE"))
        self.desktop.run("xdotool", "windowactivate", "--sync", about, "key", "Tab", "key", "Return")
        self.assertOpened(MAKER)
        self.kelvo.press("Leave Feedback")
        self.assertOpened(MAKER + REVIEWS)
        self.assertBecomes(lambda: self.kelvo.window(0, name="^About Kelvo$"), "")
        self.stop()
        self.open(**{"Application/StartCount": 16})
        self.assertTrue(self.kelvo.window(name="^Feedback$"), "no prompt")
        self.kelvo.press("OK")
        self.assertOpened(MAKER + REVIEWS + REVIEWS)
        self.assertEqual(self.stop()["Application/Feedback"], "true")


unittest.main()
