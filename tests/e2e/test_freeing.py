"""Freeing runs with helpers of every temper, and the reminder that leads to them."""
import unittest

from case import DesktopTest, report, wait_for

REMIND = {"HideAtStartUp": True, "Remind": True, "RemindThreshold": 2.0, "AutoHide": True}


class Freeing(DesktopTest):
    def start_with(self, helper, record=None):
        self.kelvo.install("memfree", helper)
        return self.open(record, **{"MainWindow/Warning": True})

    def free(self):
        self.assertTrue(self.kelvo.window())
        self.kelvo.press("Free Memory")
        self.assertTrue(wait_for(lambda: self.kelvo.children("memfree")), "no helper runs")

    def test_gain(self):
        item = self.start_with("echo >>$0.runs; while [ ! -e $0.done ]; do sleep 0.1; done; echo freed")
        self.free()
        self.close_window()
        item.click("Free Memory Now!")  # during the run: only shows the window
        self.assertTrue(self.kelvo.window(), "no window")
        self.kelvo.report(report(free=262144 + 65536))
        (self.kelvo.resources / "memfree.done").touch()
        self.assertTrue(wait_for(lambda: "Just freed:" in self.kelvo.texts()))
        self.assertIn("256.0 MB", self.kelvo.texts())
        self.assertEqual(self.stop()["Application/ExecCount"], "1")
        self.assertEqual((self.kelvo.resources / "memfree.runs").read_text(), "\n", "one run")

    def test_failure(self):
        self.start_with("sleep 0.3; kill -SEGV $$")
        self.free()
        self.assertTrue(self.kelvo.window(name="^Failed$"), "no warning")
        self.assertIn("Failed to free memory.", self.kelvo.texts())
        self.stop()  # with the box open

    def test_watchdog(self):
        self.kelvo.move_clock(0)
        self.start_with("trap '' TERM; while :; do sleep 1; done")
        self.free()
        self.kelvo.move_clock(51)
        self.assertTrue(wait_for(lambda: "N/A" in self.kelvo.texts()), "it goes on")
        self.assertEqual(self.kelvo.children("memfree"), [])
        self.free()
        self.assertNotIn("Application/ExecCount", self.stop())  # and again, ended by Kelvo's own end
        self.assertEqual(self.kelvo.children(), [])

    def remind(self, inactive, of):
        self.kelvo.report(report(inactive=inactive))
        self.assertBecomes(lambda: [text for text in self.kelvo.texts() if "inactive" in text],
                           [f"Your inactive memory has reached {of}. Do you want to free memory now?"])
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.run("xprop", "-id", self.kelvo.window(), "_NET_WM_STATE"))

    def answer(self, text):
        self.kelvo.press(text)
        self.assertTrue(self.kelvo.window_goes(), "it stays")
        self.kelvo.wait_for_sample()
        self.assertFalse(self.kelvo.window(0), "another reminder")

    def test_reminder(self):
        self.start_with("", REMIND)
        self.remind(3 * 262144, "3.00 GB")
        self.answer("No")
        self.assertEqual(self.stop()["Application/Settings"]["Remind"], True)
        self.start()
        self.remind(3 * 262144, "3.00 GB")
        self.remind(4 * 262144, "4.00 GB")
        self.answer("Do Not Remind Me")
        self.assertEqual(self.stop()["Application/Settings"]["Remind"], False)

    def test_reminder_and_the_keyboard(self):
        """It takes no keys from another window. If it has the focus all the same, it waits for a click or a Tab."""
        self.desktop.spawn("xev", "-event", "keyboard", log="xev.log")
        self.start_with("", REMIND)
        self.remind(3 * 262144, "3.00 GB")
        self.desktop.run("xdotool", "type", "we \n")
        self.assertBecomes(lambda: (self.desktop.home / "xev.log").read_text().count("KeyPress"), 4)
        keys = "xdotool", "windowactivate", "--sync", self.kelvo.window(), "key"
        self.desktop.run(*keys, "space", "Return", "KP_Enter", "sleep", 0.5)
        self.assertTrue(self.kelvo.window(0), "answered")
        self.desktop.run(*keys, "Tab", "Tab", "space")
        self.assertTrue(self.kelvo.window_goes(), "No is not reached")
        self.assertEqual(self.kelvo.children(), [])

    def test_reminder_yes(self):
        self.start_with("while [ ! -e $0.done ]; do sleep 0.1; done; echo freed", REMIND)
        self.remind(3 * 262144, "3.00 GB")
        self.kelvo.press("Yes")
        self.assertBecomes(lambda: "Free Memory" in self.kelvo.texts(), True)
        self.assertFalse(wait_for(lambda: not self.kelvo.window(0), 1.5), "it hides during the run")
        (self.kelvo.resources / "memfree.done").touch()
        self.assertTrue(self.kelvo.window_goes(), "it stays after the run")
        self.assertEqual(self.stop()["Application/ExecCount"], "1")


unittest.main()
