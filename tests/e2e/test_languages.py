"""Kelvo in the language of the session."""
import unittest

from case import DesktopTest, report


class Languages(DesktopTest):
    def start_in(self, locale):
        self.kelvo.use_built_resources()
        self.kelvo.report(report())  # but not the built interpreter
        self.kelvo.start(LC_ALL=locale)
        return self.desktop.watchers[-1].item()

    def test_country_without_a_catalogue_of_its_own(self):
        item = self.start_in("de_AT.UTF-8")
        self.assertEqual(item.texts()[:6], ["Frei: 1,00 GB", "Reserviert: 1,99 GB", "Aktiv: 3,00 GB",
                                            "Inaktiv: 2,00 GB", "-", "Speicher jetzt freigeben!"])

    def test_right_to_left(self):
        self.assertTrue(self.start_in("ar_EG.UTF-8").texts()[0].startswith("حرة: "))
        extents = lambda at: self.desktop.accessibility.call(  # noqa: E731
            *at, "org.a11y.atspi.Component", "GetExtents", "(u)", 0)[0]
        left = {name: extents(at)[0] for role, name, at in self.kelvo.widgets() if role == "label"}
        self.assertLess(left["١٫٠٠ غ.ب"], left["حرة:"])


if __name__ == "__main__":
    unittest.main()
