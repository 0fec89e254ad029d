"""From the start to the live status icon, in the language of the session."""
import re
import unittest
from math import cos, pi, sin

from case import FIGURES, PAGES, DesktopTest, report

RED, GREEN, BLUE, YELLOW, BLACK, WHITE = (
    (255, 255, 0, 0), (255, 0, 255, 0), (255, 0, 0, 255), (255, 255, 255, 0), (255, 0, 0, 0), (255, 255, 255, 255))


def pie_colors(icon, shares):
    """The colour in the middle of each slice: from twelve o'clock, counter-clockwise."""
    middle, begin = icon.width / 2, 0
    for share in shares:
        angle = pi / 2 + 2 * pi * (begin + share / 2) / sum(shares)
        yield icon.pixel(middle + middle * 0.5 * cos(angle), middle - middle * 0.5 * sin(angle))
        begin += share


def gigabytes(text):
    number, unit = text.split()
    return float(number.replace(",", "")) / {"GB": 1, "MB": 2**10, "KB": 2**20}[unit]


class Start(DesktopTest):
    def test_menu_and_pie(self):
        item = self.start()
        self.assertEqual(item.tool_tip(), "Kelvo")
        self.assertEqual(item.texts(), ["Free: 1.00 GB", "Wired: 1.99 GB", "Active: 3.00 GB", "Inactive: 2.00 GB", "-",
                                        "Free Memory Now!", "-", "Kelvo Preferences...", "About Kelvo", "-", "Quit"])
        self.assertBecomes(lambda: item.icon().width, 64)
        self.assertEqual(list(pie_colors(item.icon(), PAGES.values())), [GREEN, BLUE, YELLOW, RED])
        self.assertEqual(item.icon().pixel(0, 0)[0], 0, "the corners are transparent")
        self.kelvo.wait_for_sample()
        item.signals.clear()
        self.kelvo.wait_for_sample()
        self.assertEqual(item.signals, [], "nothing has changed")
        self.kelvo.report(report(free=2 * PAGES["free"]))
        self.assertBecomes(item.figures, {**FIGURES, "Free": "2.00 GB"})
        self.kelvo.wait_for_sample()
        self.assertEqual(item.signals.count("NewIcon"), 1)

    def test_black_and_white_pie(self):
        self.kelvo.store({"MonoColor": True})
        item = self.start()
        self.assertBecomes(lambda: item.icon().width, 32)
        self.assertIn(64, [picture.width for picture in item.icons()], "none for large panels")
        free, used = PAGES["free"], sum(PAGES.values()) - PAGES["free"]
        self.assertEqual(list(pie_colors(item.icon(), [free, used])), [WHITE, BLACK])

    def test_this_machines_own_figures(self):
        (self.kelvo.path / "vm_stat").unlink()
        item = self.start()
        figures = {name: gigabytes(text) for name, text in item.figures().items()}
        with open("/proc/meminfo") as meminfo:
            kib = {name: int(number) for name, number in re.findall(r"(\S+): +(\d+)", meminfo.read())}
        total = kib["MemTotal"] / 2**20
        self.assertAlmostEqual(sum(figures.values()), total, delta=0.021)
        for name, counted in ("Free", "MemFree"), ("Inactive", "Inactive(file)"):  # other programs go on while we look
            self.assertAlmostEqual(figures[name], kib[counted] / 2**20, delta=total / 10)

    def test_languages(self):
        """Of a country without a catalogue of its own, and from right to left."""
        self.kelvo.use_built_resources()
        self.assertEqual(self.start(LC_ALL="de_AT.UTF-8").texts()[:6], [
            "Frei: 1,00 GB", "Reserviert: 1,99 GB", "Aktiv: 3,00 GB", "Inaktiv: 2,00 GB", "-",
            "Speicher jetzt freigeben!"])
        self.kelvo.stop()
        self.assertTrue(self.start(LC_ALL="ar_EG.UTF-8").texts()[0].startswith("حرة: "))
        self.assertTrue(self.kelvo.window())
        left = {name: self.desktop.accessibility.call(*at, "org.a11y.atspi.Component", "GetExtents", "(u)", 0)[0][0]
                for role, name, at in self.kelvo.widgets() if role == "label"}
        self.assertLess(left["١٫٠٠ غ.ب"], left["حرة:"])


unittest.main()
