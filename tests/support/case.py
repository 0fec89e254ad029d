"""What the end-to-end tests have in common: a desktop and a Kelvo with a known report for each test."""
import os
import unittest

from bus import wait_for
from desktop import Desktop
from kelvo import Kelvo

PAGES = {"free": 262144, "inactive": 524288, "active": 786432, "wired down": 522839}
# Free and used are 7.994 GB together; the total is deliberately rounded up.
FIGURES = {"Free": "1.00 GB", "Wired": "1.99 GB", "Active": "3.00 GB", "Inactive": "2.00 GB"}
LABELS = {**FIGURES, "Used": "6.99 GB", "Total": "8.00 GB"}


def report(**pages):
    """A report with these page counts instead of the usual ones."""
    counts = {**PAGES, **{name.replace("_", " "): count for name, count in pages.items()}}
    return "".join(f"Pages {name}: {count:>20}.\n" for name, count in counts.items())


class DesktopTest(unittest.TestCase):
    programs = ["watcher", "openbox"]
    maxDiff = None

    def setUp(self):
        self.desktop = Desktop("1024x768", *self.programs)
        self.addCleanup(self.desktop.close)
        self.kelvo = Kelvo(self.desktop, os.environ["KELVO"])
        self.kelvo.report(report())

    def tearDown(self):
        # Kelvo never prints anything; what stands there is a crash report.
        log = self.desktop.home / "kelvo.log"
        if log.exists():
            self.assertEqual(log.read_text(), "")

    def start(self, *arguments, **environment):
        """Starts Kelvo: its status icon."""
        watcher = self.desktop.watchers[-1]
        watcher.items.clear()
        self.kelvo.start(*arguments, **environment)
        item = watcher.item()
        self.assertTrue(item, "no status icon")
        return item

    def open(self, record=None, **stored):
        """The same with these settings stored."""
        self.kelvo.store(record, **stored)
        return self.start()

    def stop(self):
        """Ends Kelvo as a session does: what it has stored."""
        self.assertEqual(self.kelvo.stop(), 0)
        return self.kelvo.settings()

    def assertBecomes(self, what, wanted):
        """what() gives the wanted value, if not at once."""
        wait_for(lambda: what() == wanted)
        self.assertEqual(what(), wanted)

    def close_window(self):
        self.desktop.run("xdotool", "windowactivate", "--sync", self.kelvo.window(), "key", "alt+F4")
        self.assertTrue(self.kelvo.window_goes(), "the window stays")
