"""What a screen reader is told, and what the keyboard can do."""
import unittest

from case import FIGURES, DesktopTest
from kelvo import ACCESSIBLE

CONTROLS = {"push button", "check box", "radio button", "combo box", "spin box", "graphic", "label", "dialog", "frame", "alert"}
CONTAINERS = {"filler", "panel", "list", "list item", "text", "separator"}


class Accessibility(DesktopTest):
    programs = ["watcher", "openbox"]

    def test_everything_has_a_name_and_a_role(self):
        item = self.start()
        self.kelvo.press("Free Memory")
        self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning too
        item.click("Kelvo Preferences")
        item.click("About")
        self.assertTrue(self.kelvo.window(name="About"))
        shown = self.kelvo.widgets()
        self.assertEqual([], [widget for widget in shown if widget[0] in CONTROLS and not widget[1]])
        self.assertEqual(set(), {role for role, _, _ in shown} - CONTROLS - CONTAINERS)

    def test_pie_chart_in_words(self):
        self.start()
        self.assertTrue(self.kelvo.window())
        pie = next(at for _, name, at in self.kelvo.widgets() if name == "Memory pie chart")
        self.assertEqual(self.desktop.accessibility.get(*pie, ACCESSIBLE, "Description"),
                         ", ".join(f"{name}: {FIGURES[name]}" for name in ("Free", "Inactive", "Active", "Wired")))

    def test_escape_hides_a_window_without_title_bar_only(self):
        for bare in True, False:
            with self.subTest(bare=bare):
                self.kelvo.store({"NoTitleBar": bare})
                self.start()
                self.desktop.run("xdotool", "windowactivate", "--sync", self.kelvo.window(), "key", "Escape")
                if bare:
                    self.assertTrue(self.kelvo.window_goes())
                else:
                    self.kelvo.wait_for_sample()
                    self.assertTrue(self.kelvo.window(0))
                self.assertEqual(self.kelvo.stop(), 0)


unittest.main()
