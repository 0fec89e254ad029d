"""Reports of every kind, from a vm_stat of every temper and from none: what can be read is shown, and Kelvo goes on."""
import re
import unittest
from pathlib import Path

from case import FIGURES, PAGES, DesktopTest, report, wait_for

# (report, what vm_stat does then): none of them counts, whatever it says of inactive memory.
BAD = [(bytes(range(256)) * 64 + report(inactive=256).encode(), ""), (report(inactive=512), "exit 1"),
       (report(inactive=768) + "Pages of nothing: 0.\n" * 60000, ""), (report(inactive=1024), "kill -9 $$")]
# (report, what vm_stat does then, what it changes about the figures before)
ODD = [("Pages free: 768.\n", "sleep 0.3; echo 'Pages active: 512.'", {"Free": "3.0 MB", "Active": "2.0 MB"}),
       ("Pages free: -3.", "", {"Free": "-12,288 bytes"}), (report(free=1792)[:30], "", {"Free": "68 KB"}),
       (report(), "", FIGURES)]


def gigabytes(text):
    number, unit = text.split()
    return float(number.replace(",", "")) / {"GB": 1, "MB": 2**10, "KB": 2**20}[unit]


class Reports(DesktopTest):
    def test_reports(self):
        self.kelvo.report("")
        item = self.start()
        self.assertTrue(self.kelvo.window())
        self.assertEqual(item.figures(), {name: "0 bytes" for name in FIGURES})
        self.assertEqual(item.icon().width, 16, "a pie of nothing")
        self.assertEqual(self.kelvo.labels()["Total"], "5.1 MB")
        self.kelvo.report(report())
        self.assertBecomes(item.figures, FIGURES)
        for text, then in BAD:
            self.kelvo.report(text, then)
            self.kelvo.wait_for_sample(1)
        expected = dict(FIGURES)
        for text, then, changes in ODD:
            self.kelvo.report(text, then)
            expected.update(changes)
            self.assertBecomes(item.figures, expected)

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
        kib = dict(re.findall(r"(\S+): +(\d+)", Path("/proc/meminfo").read_text()))
        total = int(kib["MemTotal"]) / 2**20
        figures = {name: gigabytes(text) for name, text in item.figures().items()}
        self.assertAlmostEqual(sum(figures.values()), total, delta=0.021)
        for name, counted in ("Free", "MemFree"), ("Inactive", "Inactive(file)"):  # other programs go on while we look
            self.assertAlmostEqual(figures[name], int(kib[counted]) / 2**20, delta=total / 10)

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
