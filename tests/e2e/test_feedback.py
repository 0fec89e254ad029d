"""The one-time prompt for feedback, the About dialog, and the web pages that they open."""
import unittest

from case import DesktopTest

REVIEWS, MAKER = "https://store.orvanta.example/kelvo?view=reviews\n", "https://orvanta.example/\n"


class Feedback(DesktopTest):
    def setUp(self):
        super().setUp()
        # What opens a page in the user's browser, here only notes it.
        self.opened = self.kelvo.directory / "opened"
        self.kelvo.install("xdg-open", f"echo \"$1\" >>'{self.opened}'")

    def assertOpened(self, pages):
        self.assertBecomes(lambda: self.opened.read_text() if self.opened.exists() else "", pages)

    def test_prompt(self):
        for answer, pages in ("Cancel", ""), ("OK", REVIEWS):
            with self.subTest(answer):
                self.kelvo.store(**{"Application/StartCount": 15, "Application/Feedback": False})
                starts = []
                for _ in range(3):
                    self.start()
                    starts.append(bool(self.kelvo.window(3, name="^Feedback$")))
                    if starts[-1]:
                        self.kelvo.press(answer)
                        self.assertBecomes(lambda: self.kelvo.window(0, name="^Feedback$"), "")
                    self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(starts, [False, True, False])
                self.assertOpened(pages)
                self.assertEqual(self.kelvo.settings()["Application/StartCount"], "18")

    def test_about(self):
        self.start().click("About")
        about = self.kelvo.window(name="^About Kelvo$")
        self.assertTrue(about, "no dialog")
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.run("xprop", "-id", about, "_NET_WM_STATE"))
        self.assertLessEqual({"Kelvo", "version 1.2.2"}, set(self.kelvo.texts()))
        self.desktop.run("xdotool", "windowactivate", "--sync", about, "key", "Tab", "key", "Return")
        self.assertOpened(MAKER)
        self.kelvo.press("Leave Feedback")
        self.assertOpened(MAKER + REVIEWS)
        self.assertBecomes(lambda: self.kelvo.window(0, name="^About Kelvo$"), "")


unittest.main()
