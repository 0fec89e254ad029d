"""Reports of every kind, from a vm_stat of every temper and from none: what can be read is shown, and Kelvo goes on."""
import re
import unittest
from pathlib import Path

from case import FIGURES, PAGES, DesktopTest, report, wait_for

# (report, what vm_stat does then): none of them counts, whatever it says of inactive memory.
BAD = [(bytes(range(256)) * 64 + report(inactive=256).encode(), ""), (report(inactive=512), "exit 1"),
       (report(inactive=768) + "Pages of nothing: 0.\n" * 60000, ""), (report(inactive=1024), "kill -9 $$")]


class Reports(DesktopTest):
    def test_reports(self):
        self.kelvo.report("")
        item = self.start()
        self.assertTrue(self.kelvo.window())
        self.assertEqual(item.figures(), {name: "0 bytes" for name in FIGURES})
        self.assertEqual(item.icon().width, 16, "a pie of nothing")
        self.kelvo.report(report())
        self.assertBecomes(item.figures, FIGURES)
        for text, then in BAD:
            self.kelvo.report(text, then)
            self.kelvo.wait_for_sample(1)
        self.kelvo.report("Pages free: -3.\n", "sleep 0.3; echo 'Pages active: 512.'")
        self.assertBecomes(item.figures, {**FIGURES, "Free": "-12,288 bytes", "Active": "2.0 MB"})

    def test_hanging(self):
        """It has ten seconds, and ends then with everything it started."""
        item = self.start()
        self.kelvo.report(report(free=512), "sleep 100 & sleep 100")
        self.assertTrue(wait_for(lambda: self.kelvo.children("sleep 100")), "never asked")
        self.kelvo.report(report(free=2 * PAGES["free"]))
        self.assertTrue(wait_for(lambda: not self.kelvo.children("sleep 100"), 15), "it goes on")
        self.assertBecomes(item.figures, {**FIGURES, "Free": "2.00 GB"})

    def started(self):
        """Grows with every process that Kelvo has started and that has ended: the page faults of all these."""
        return int(Path(f"/proc/{self.kelvo.processes[-1].pid}/stat").read_text().rpartition(")")[2].split()[8])

    def assertOwnFigures(self, item):
        """The kernel's, followed without any process."""
        started = self.started()
        for size in 2**28, 0:
            before, taken = item.figures()["Free"], None
            taken = b"x" * size  # noqa: F841
            self.assertTrue(wait_for(lambda: item.figures()["Free"] != before), "it does not follow")
        self.assertEqual((self.started(), self.kelvo.children()), (started, []), "a process for a sample")
        total = int(re.search(r"MemTotal: +(\d+)", Path("/proc/meminfo").read_text())[1]) / 2**20
        self.assertAlmostEqual(float(self.kelvo.labels()["Total"].split()[0]), total, delta=0.011)

    def test_no_vm_stat(self):
        (self.kelvo.path / "vm_stat").unlink()
        self.assertOwnFigures(self.start())

    def test_vm_stat_removed(self):
        item = self.start()
        self.kelvo.wait_for_sample()
        self.assertGreater(self.started(), 0)
        (self.kelvo.path / "vm_stat").unlink()
        self.assertBecomes(lambda: item.figures() != FIGURES, True)
        self.assertOwnFigures(item)
        self.kelvo.report(report())
        self.assertBecomes(item.figures, FIGURES)


unittest.main()
