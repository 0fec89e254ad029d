"""Freeing runs with helpers of every temper, and the reminder that leads to them."""
import time
import unittest

from case import PAGES, DesktopTest, report, wait_for

REMIND = {"HideAtStartUp": True, "Remind": True, "RemindThreshold": 2.0}


class Freeing(DesktopTest):
    def start_with(self, helper, record=None):
        self.kelvo.install("memfree", helper)
        self.kelvo.store(record, **{"MainWindow/Warning": True})
        return self.start()

    def helpers(self):
        return self.desktop.run("pgrep", "-f", f"{self.kelvo.resources}/memfree", check=False).split()

    def free(self):
        self.assertTrue(self.kelvo.window())
        self.kelvo.press("Free Memory")
        self.assertTrue(wait_for(self.helpers), "no helper runs")

    def test_gain(self):
        item = self.start_with("sleep 3; echo freed")
        self.free()
        self.close_window()
        item.click("Free Memory Now!")  # during the run: only shows the window
        self.assertTrue(self.kelvo.window(), "no window")
        self.assertEqual(len(self.helpers()), 1)
        self.kelvo.report(report(free=262144 + 65536))
        self.assertTrue(wait_for(lambda: "Just freed:" in self.kelvo.texts()))
        self.assertIn("256.0 MB", self.kelvo.texts())
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.kelvo.settings()["Application/ExecCount"], "1")

    def test_failure(self):
        self.start_with("sleep 1; kill -SEGV $$")
        self.free()
        self.assertTrue(self.kelvo.window(name="^Failed$"), "no warning")
        self.assertIn("Failed to free memory.", self.kelvo.texts())
        self.assertEqual(self.kelvo.stop(), 0)  # with the box open

    def test_quit_during_a_run(self):
        self.start_with("trap '' TERM; while :; do sleep 1; done")
        self.free()
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.helpers(), [])
        self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

    def test_watchdog(self):
        self.kelvo.move_clock(0)
        self.start_with("while :; do sleep 1; done")
        self.free()
        for seconds, shown in (45, False), (51, True), (60, True), (67, False):
            with self.subTest(seconds=seconds):
                self.kelvo.move_clock(seconds)
                time.sleep(1)
                self.assertTrue(wait_for(lambda: ("N/A" in self.kelvo.texts()) == shown, 4))
        self.assertEqual(self.helpers(), [])
        self.assertNotIn("Application/ExecCount", self.kelvo.settings())

    def remind(self, inactive=3 * 262144, of="3.00 GB"):
        self.kelvo.report(report(inactive=inactive))
        self.assertBecomes(lambda: [text for text in self.kelvo.texts() if "inactive" in text],
                           [f"Your inactive memory has reached {of}. Do you want to free memory now?"])
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.run("xprop", "-id", self.kelvo.window(), "_NET_WM_STATE"))

    def assertSilent(self):
        self.kelvo.wait_for_sample()
        self.assertFalse(self.kelvo.window(0), "a reminder")

    def test_reminder_no(self):
        self.kelvo.move_clock(0)
        self.start_with("", REMIND)
        self.assertSilent()  # 2.00 GB are not above 2.00 GB
        self.remind(PAGES["inactive"] + 2622, "2.01 GB")
        self.remind()
        self.kelvo.press("No")
        self.assertTrue(self.kelvo.window_goes())
        self.kelvo.move_clock(290)
        self.assertSilent()
        self.kelvo.move_clock(301)
        self.remind()

    def test_reminder_never_again(self):
        item = self.start_with("", REMIND)
        self.remind()
        self.kelvo.press("Do Not Remind Me")
        self.assertTrue(self.kelvo.window_goes())
        self.assertSilent()
        item.click("Quit")
        self.assertEqual(self.kelvo.processes[-1].wait(20), 0)
        self.assertEqual(self.kelvo.settings()["Application/Settings"]["Remind"], False)

    def test_reminder_yes(self):
        self.start_with("sleep 0.5; echo freed", REMIND)
        self.remind()
        self.kelvo.press("Yes")
        self.assertTrue(wait_for(lambda: "Just freed:" in self.kelvo.texts()), "nothing is freed")
        # Whoever sees the main window is not reminded, above the threshold or not.
        self.kelvo.wait_for_sample()
        self.assertNotIn("Do Not Remind Me", self.kelvo.texts())


unittest.main()
