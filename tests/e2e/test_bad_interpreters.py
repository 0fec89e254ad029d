"""Interpreters that do not do what they should: Kelvo keeps the figures that it has, and goes on."""
import os
import unittest

from case import FIGURES, PAGES, DesktopTest, report
from bus import wait_for

# (name, script, what it changes about the usual figures)
INTERPRETERS = [
    ("silent", "exit 0", {}),
    ("failing", "exit 1", {}),
    ("complaining", "echo 'Pages free: 512.' >&2; exit 1", {}),
    ("killed", "kill -9 $$", {}),
    ("not reading", "exec <&-; echo 'Pages free: 512.'", {"Free": "2.0 MB"}),
    ("in two bursts", "echo 'Pages free: 768.'; sleep 0.3; echo 'Pages active: 512.'", {"Free": "3.0 MB"}),
]

SPOILED = {"missing": lambda path: path.unlink(),
           "not executable": lambda path: path.chmod(0o644),
           "a directory": lambda path: (path.unlink(), path.mkdir()),
           "not startable": lambda path: path.write_text("#!/nowhere/sh\n")}


class BadInterpreters(DesktopTest):
    def test_interpreters(self):
        item = self.start()
        asked = self.desktop.home / "asked"
        for name, script, changes in INTERPRETERS:
            with self.subTest(name):
                asked.unlink(missing_ok=True)
                self.kelvo.install("osascript", f"echo >>'{asked}'; {script}")
                self.assertTrue(wait_for(lambda: asked.exists() and asked.stat().st_size > 1), "never asked")
                self.assertBecomes(item.figures, {**FIGURES, **changes})

    def test_no_interpreter(self):
        item = self.start()
        descriptors = f"/proc/{self.kelvo.processes[-1].pid}/fd"
        interpreter = self.kelvo.resources / "osascript"
        expected = FIGURES
        for gigabytes, (name, spoil) in enumerate(SPOILED.items(), 2):
            with self.subTest(name):
                before = len(os.listdir(descriptors))
                spoil(interpreter)
                self.assertFalse(wait_for(lambda: item.figures() != expected, 5), "figures out of nothing")
                # Qt loses a descriptor at a start that fails: that may happen once, not at every sample.
                self.assertLessEqual(len(os.listdir(descriptors)), before + 1)
            if interpreter.is_dir():
                interpreter.rmdir()
            self.kelvo.report(report(free=gigabytes * PAGES["free"]))
            expected = {**FIGURES, "Free": f"{gigabytes}.00 GB"}
            self.assertBecomes(item.figures, expected)


if __name__ == "__main__":
    unittest.main()
