"""Senseless reports and bad interpreters: what can be read is shown, the rest stays as it was, and Kelvo goes on."""
import os
import unittest

from case import FIGURES, PAGES, DesktopTest, report, wait_for

NOTHING = {}
# (name, report, what it changes about the figures of the report before)
REPORTS = [
    ("empty", "", NOTHING),
    ("binary", bytes(range(256)) * 64, NOTHING),
    ("NUL first", "\0" + report(free=256), NOTHING),
    ("10 MB long", report(free=512) + "Pages of nothing: 0.\n" * 500000, {"Free": "2.0 MB"}),
    ("10 MB in one number", "Pages free: " + "9" * 10**7 + ".", {"Free": "0 bytes"}),
    ("negative", report(free=-3), {"Free": "-12,288 bytes"}),
    ("another order", "\n".join(reversed(report(free=768).splitlines())), {"Free": "3.0 MB"}),
    ("twice", report(free=1024) + report(free=1280), {"Free": "4.0 MB"}),
    ("mixed case", report(free=1536).replace("Pages free", "pAGES fREE"), {"Free": "6.0 MB"}),
    ("cut in a number", report(free=1792)[:30], {"Free": "68 KB"}),
    ("no full stops", report().replace(".", ""), {"Free": "0 bytes", "Inactive": "0 bytes", "Active": "0 bytes"}),
    ("good again", report(), FIGURES),
]
# (name, script, what it changes about the usual figures)
INTERPRETERS = [
    ("complaining", "echo 'Pages free: 512.' >&2; exit 1", NOTHING),
    ("killed", "kill -9 $$", NOTHING),
    ("not reading", "exec <&-; echo 'Pages free: 512.'", {"Free": "2.0 MB"}),
    ("in two bursts", "echo 'Pages free: 768.'; sleep 0.3; echo 'Pages active: 512.'", {"Free": "3.0 MB"}),
]
SPOILED = {"missing": lambda path: path.unlink(), "not executable": lambda path: path.chmod(0o644),
           "not startable": lambda path: path.write_text("#!/nowhere/sh\n")}


class BadReports(DesktopTest):
    def test_reports(self):
        item = self.start()
        expected = dict(FIGURES)
        for name, text, changes in REPORTS:
            with self.subTest(name):
                self.kelvo.report(text)
                expected.update(changes)
                if not changes:
                    self.kelvo.wait_for_sample()
                self.assertBecomes(item.figures, expected)

    def test_no_report_at_the_start(self):
        self.kelvo.report("")
        item = self.start()
        self.kelvo.wait_for_sample()
        self.assertEqual(item.figures(), {name: "0 bytes" for name in FIGURES})
        self.assertEqual(item.icon().width, 16, "a pie of nothing")
        self.assertEqual(self.kelvo.labels()["Total"], "5.1 MB")

    def test_interpreters(self):
        item = self.start()
        asked = self.desktop.home / "asked"
        for name, script, changes in INTERPRETERS:
            with self.subTest(name):
                asked.unlink(missing_ok=True)
                self.kelvo.install("vm_stat", f"echo >>'{asked}'; {script}")
                self.assertTrue(wait_for(lambda: asked.exists() and asked.stat().st_size > 1), "never asked")
                self.assertBecomes(item.figures, {**FIGURES, **changes})

    def test_no_interpreter(self):
        item = self.start()
        descriptors = f"/proc/{self.kelvo.processes[-1].pid}/fd"
        expected = FIGURES
        for gigabytes, (name, spoil) in enumerate(SPOILED.items(), 2):
            with self.subTest(name):
                before = len(os.listdir(descriptors))
                spoil(self.kelvo.path / "vm_stat")
                self.assertFalse(wait_for(lambda: item.figures() != expected, 5), "figures out of nothing")
                # Qt loses a descriptor at a start that fails: that may happen once, not at every sample.
                self.assertLessEqual(len(os.listdir(descriptors)), before + 1)
            self.kelvo.report(report(free=gigabytes * PAGES["free"]))
            expected = {**FIGURES, "Free": f"{gigabytes}.00 GB"}
            self.assertBecomes(item.figures, expected)


unittest.main()
