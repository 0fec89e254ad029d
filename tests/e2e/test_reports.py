"""Reports from a vm_stat and from none: what can be read is shown, and Kelvo goes on."""
import re
import unittest
from pathlib import Path

from case import FIGURES, PAGES, DesktopTest, report, wait_for


class Reports(DesktopTest):
    def test_reports(self):
        self.kelvo.report("")
        item = self.start(LC_ALL="en_US.UTF-8")  # from Qt 6.9 on, C has no thousands separators
        self.assertTrue(self.kelvo.window())
        self.assertEqual(item.figures(), {name: "0 bytes" for name in FIGURES})
        self.assertEqual(item.icon().width, 16, "a pie of nothing")
        self.kelvo.report(report())
        self.assertBecomes(item.figures, FIGURES)
        self.kelvo.report(report(inactive=512), "exit 1")  # what it says does not count
        self.kelvo.wait_for_sample(1)
        self.kelvo.report("Pages free: -3.\n", "sleep 0.3; echo 'Pages active: 512.'")
        self.assertBecomes(item.figures, {**FIGURES, "Free": "-12,288 bytes", "Active": "2.0 MB"})

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
