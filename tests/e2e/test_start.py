"""From the start to the live status icon."""
import re
import unittest
from math import cos, pi, sin

from case import FIGURES, PAGES, DesktopTest, report
from bus import wait_for

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

    def test_black_and_white_pie(self):
        self.kelvo.store({"MonoColor": True})
        item = self.start()
        self.assertBecomes(lambda: item.icon().width, 32)
        free, used = PAGES["free"], sum(PAGES.values()) - PAGES["free"]
        self.assertEqual(list(pie_colors(item.icon(), [free, used])), [WHITE, BLACK])

    def test_plain_icon(self):
        self.kelvo.store({"PieChartIcon": False})
        item = self.start()
        plain = item.icon().data
        self.kelvo.wait_for_sample()
        self.assertEqual((item.icon().width, item.icon().data), (16, plain))

    def test_nothing_is_sent_unless_figures_change(self):
        item = self.start()
        self.assertBecomes(lambda: item.icon().width, 64)
        self.kelvo.wait_for_sample()
        item.signals.clear()
        self.kelvo.wait_for_sample()
        self.assertEqual(item.signals, [])

        self.kelvo.report(report(free=2 * PAGES["free"]))
        self.assertBecomes(item.figures, {**FIGURES, "Free": "2.00 GB"})
        self.kelvo.wait_for_sample()
        self.assertEqual(item.signals.count("NewIcon"), 1)

    def test_this_machines_own_figures(self):
        self.kelvo.use_built_resources()
        item = self.start()
        figures = {name: gigabytes(text) for name, text in item.figures().items()}
        with open("/proc/meminfo") as meminfo:
            kib = {name: int(number) for name, number in re.findall(r"(\S+): +(\d+)", meminfo.read())}
        total = kib["MemTotal"] / 2**20
        self.assertAlmostEqual(sum(figures.values()), total, delta=0.021)
        # Other programs go on while we look.
        self.assertAlmostEqual(figures["Free"], kib["MemFree"] / 2**20, delta=total / 10)
        self.assertAlmostEqual(figures["Inactive"], kib["Inactive(file)"] / 2**20, delta=total / 10)
        self.assertTrue(wait_for(lambda: item.icon().width == 64))


if __name__ == "__main__":
    unittest.main()
