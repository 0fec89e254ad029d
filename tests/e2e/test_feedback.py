"""The one-time prompt for feedback, the About dialog, and the web pages that they open."""
import unittest

from bus import wait_for
from case import DesktopTest

REVIEWS, MAKER = "https://store.orvanta.example/kelvo?view=reviews\n", "https://orvanta.example/\n"


class Feedback(DesktopTest):
    programs = ["watcher", "openbox"]

    def setUp(self):
        super().setUp()
        # What opens a page in the user's browser, here only notes it.
        self.kelvo.install("xdg-open", f"echo \"$1\" >>'{self.kelvo.directory}/opened'")
        self.kelvo.environment["PATH"] = f"{self.kelvo.resources}:{self.desktop.env['PATH']}"
        self.opened = self.kelvo.directory / "opened"

    def assertOpened(self, pages):
        self.assertBecomes(lambda: self.opened.read_text() if self.opened.exists() else "", pages)

    def prompt(self):
        return self.kelvo.window(3, name="^Feedback$")

    def test_prompt(self):
        for answer, pages in ("Cancel", ""), ("OK", REVIEWS):
            with self.subTest(answer):
                self.kelvo.store(**{"Application/StartCount": 15, "Application/Feedback": False})
                starts = []
                for _ in range(3):
                    self.start()
                    starts.append(bool(self.prompt()))
                    if starts[-1]:
                        self.kelvo.press(answer)
                        self.assertBecomes(lambda: self.kelvo.window(0, name="^Feedback$"), "")
                        self.assertOpened(pages)
                    self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(starts, [False, True, False])
                self.assertOpened(pages)
                self.assertEqual(self.kelvo.settings()["Application/StartCount"], "18")

    def test_about(self):
        item = self.start()
        item.click("About")
        about = self.kelvo.window(name="^About Kelvo$")
        self.assertTrue(about, "no dialog")
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.run("xprop", "-id", about, "_NET_WM_STATE"))
        texts = [name for _, name, _ in self.kelvo.widgets()]
        self.assertTrue({"Kelvo", "version 1.2.2"} <= set(texts), texts)
        self.desktop.run("xdotool", "windowactivate", "--sync", about, "key", "Tab", "key", "Return")
        self.assertOpened(MAKER)
        self.kelvo.press("Leave Feedback")
        self.assertOpened(MAKER + REVIEWS)
        self.assertTrue(wait_for(lambda: not self.kelvo.window(0, name="^About Kelvo$")), "it stays")


if __name__ == "__main__":
    unittest.main()
