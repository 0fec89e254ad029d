"""Freeing runs with helpers of every temper, seen from outside."""
import subprocess
import unittest

from bus import wait_for
from case import DesktopTest, report


class Freeing(DesktopTest):
    programs = ["watcher", "openbox"]

    def setUp(self):
        super().setUp()
        self.kelvo.store(**{"MainWindow/Warning": True})

    def helper(self, script):
        self.kelvo.install("memfree", script)

    def helpers(self):
        found = subprocess.run(["pgrep", "-f", f"{self.kelvo.resources}/memfree"], capture_output=True, text=True)
        return found.stdout.split()

    def texts(self):
        return [name for _, name, _ in self.kelvo.widgets()]

    def free(self):
        self.assertTrue(self.kelvo.window())
        self.kelvo.press("Free Memory")
        self.assertTrue(wait_for(self.helpers), "no helper runs")

    def test_gain(self):
        self.helper("sleep 3; echo freed")
        item = self.start()
        self.free()
        self.desktop.run("xdotool", "windowactivate", "--sync", self.kelvo.window(), "key", "alt+F4")
        self.assertTrue(self.kelvo.window_goes(), "the window stays")
        item.click("Free Memory Now!")  # during the run: only shows the window
        self.assertTrue(self.kelvo.window(), "no window")
        self.assertEqual(len(self.helpers()), 1)
        self.kelvo.report(report(free=262144 + 65536))
        self.assertTrue(wait_for(lambda: "Just freed:" in self.texts()))
        self.assertIn("256.0 MB", self.texts())
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.kelvo.settings()["Application/ExecCount"], "1")

    def test_failure(self):
        self.helper("sleep 1; kill -SEGV $$")
        self.start()
        self.free()
        self.assertTrue(self.kelvo.window(name="^Failed$"), "no warning")
        self.assertIn("Failed to free memory.", self.texts())
        self.assertEqual(self.kelvo.stop(), 0)  # with the box open

    def test_quit_during_a_run(self):
        self.helper("trap '' TERM; while :; do sleep 1; done")
        self.start()
        self.free()
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.helpers(), [])
        self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

    def test_watchdog(self):
        self.helper("while :; do sleep 1; done")
        self.kelvo.move_clock(0)
        self.start()
        self.free()
        shown = lambda: "N/A" in self.texts()  # noqa: E731
        for seconds, changes in (45, False), (51, True), (60, False), (67, True):
            with self.subTest(seconds=seconds):
                before = shown()
                self.kelvo.move_clock(seconds)
                self.assertEqual(wait_for(lambda: shown() != before, 5 if changes else 1), changes)
        self.assertEqual(self.helpers(), [])
        self.assertNotIn("Application/ExecCount", self.kelvo.settings())


if __name__ == "__main__":
    unittest.main()
