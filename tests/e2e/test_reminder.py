"""The reminder of inactive memory: when it comes, what it says, and what its three answers do."""
import unittest

from bus import wait_for
from case import PAGES, DesktopTest, report

RECORD = {"HideAtStartUp": True, "Remind": True, "RemindThreshold": 2.0}
NO_MORE = "Do Not Remind Me"


class Reminder(DesktopTest):
    programs = ["watcher", "openbox"]

    def setUp(self):
        super().setUp()
        self.kelvo.store(RECORD, **{"MainWindow/Warning": True})

    def texts(self):
        return [name for _, name, _ in self.kelvo.widgets()]

    def assertReminded(self, of):
        self.assertBecomes(lambda: [text for text in self.texts() if "inactive" in text],
                           [f"Your inactive memory has reached {of}. Do you want to free memory now?"])
        state = self.desktop.run("xprop", "-id", self.kelvo.window(), "_NET_WM_STATE")
        self.assertIn("_NET_WM_STATE_ABOVE", state)

    def assertSilent(self):
        self.kelvo.wait_for_sample()
        self.assertFalse(self.kelvo.window(0), "a reminder")

    def remind(self, inactive=3 * 262144):
        self.kelvo.report(report(inactive=inactive))

    def test_no(self):
        self.kelvo.move_clock(0)
        self.start()
        self.assertSilent()  # 2.00 GB are not above 2.00 GB
        self.remind(PAGES["inactive"] + 2622)
        self.assertReminded("2.01 GB")
        self.remind()
        self.assertReminded("3.00 GB")
        self.kelvo.press("No")
        self.assertTrue(self.kelvo.window_goes())
        for seconds, reminded in (0, False), (290, False), (301, True):
            with self.subTest(seconds=seconds):
                self.kelvo.move_clock(seconds)
                if reminded:
                    self.assertReminded("3.00 GB")
                else:
                    self.assertSilent()

    def test_never_again(self):
        item = self.start()
        self.remind()
        self.assertReminded("3.00 GB")
        self.kelvo.press(NO_MORE)
        self.assertTrue(self.kelvo.window_goes())
        self.assertSilent()
        item.click("Quit")
        self.assertEqual(self.kelvo.processes[-1].wait(20), 0)
        self.assertEqual(self.kelvo.settings()["Application/Settings"]["Remind"], False)
        self.start()
        self.assertSilent()

    def test_yes(self):
        self.kelvo.install("memfree", "sleep 0.5; echo freed")
        self.start()
        self.remind()
        self.assertReminded("3.00 GB")
        self.kelvo.press("Yes")
        self.assertTrue(wait_for(lambda: "Just freed:" in self.texts()), "nothing is freed")
        # Whoever sees the main window is not reminded, above the threshold or not.
        self.kelvo.wait_for_sample()
        self.assertNotIn(NO_MORE, self.texts())
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(self.kelvo.settings()["Application/ExecCount"], "1")


if __name__ == "__main__":
    unittest.main()
