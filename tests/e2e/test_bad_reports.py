"""Senseless reports: what can be read of them is shown, the rest stays as it was."""
import unittest

from case import FIGURES, DesktopTest, report

NOTHING = {}
# (name, report, what it changes about the figures of the report before)
REPORTS = [
    ("empty", "", NOTHING),
    ("binary", bytes(range(256)) * 64, NOTHING),
    ("NUL first", "\0" + report(free=256), NOTHING),
    ("10 MB long", report(free=512) + "Pages of nothing: 0.\n" * 500000, {"Free": "2.0 MB"}),
    ("10 MB in one number", "Pages free: " + "9" * 10**7 + ".", None),
    ("negative", report(free=-3), {"Free": "-12,288 bytes"}),
    ("30 digits", report(free="123456789012345678901234567890"), {"Free": "0 bytes"}),
    ("another order", "\n".join(reversed(report(free=768).splitlines())), {"Free": "3.0 MB"}),
    ("twice", report(free=1024) + report(free=1280), {"Free": "4.0 MB"}),
    ("mixed case", report(free=1536).replace("Pages free", "pAGES fREE"), {"Free": "6.0 MB"}),
    ("cut in a number", report(free=1792)[:30], {"Free": "68 KB"}),
    ("cut in a line", report(free=2048)[:report().index("Pages active:") + 20], {"Free": "8.0 MB", "Active": "0 bytes"}),
    ("no full stops", report().replace(".", ""), {"Free": "0 bytes", "Inactive": "0 bytes"}),
    ("good again", report(), FIGURES),
]


class BadReports(DesktopTest):
    def test_reports(self):
        item = self.start()
        expected = dict(FIGURES)
        for name, text, changes in REPORTS:
            with self.subTest(name):
                self.kelvo.report(text)
                if changes:
                    expected.update(changes)
                else:
                    self.kelvo.wait_for_sample()
                if changes is not None:
                    self.assertBecomes(item.figures, expected)

    def test_no_report_at_the_start(self):
        self.kelvo.report("")
        item = self.start()
        self.kelvo.wait_for_sample()
        self.assertEqual(item.figures(), {name: "0 bytes" for name in FIGURES})
        self.assertEqual(item.icon().width, 16, "a pie of nothing")
        self.assertEqual(self.kelvo.labels()["Total"], "5.1 MB")


if __name__ == "__main__":
    unittest.main()
