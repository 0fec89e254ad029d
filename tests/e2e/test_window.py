"""The main window with a window manager and for a screen reader, and its languages."""
import time
import unittest

from case import LABELS, DesktopTest, wait_for
from kelvo import ACCESSIBLE


class Window(DesktopTest):
    def show(self, record=None, position=(200, 150)):
        self.open(record, **{"MainWindow/Position": position})
        window = self.kelvo.window()
        self.assertTrue(window, "no window")
        return window

    def test_for_a_screen_reader(self):
        self.show()
        self.assertEqual(self.kelvo.labels(), LABELS)
        pie = next(at for _, name, at in self.kelvo.widgets() if name == "Memory pie chart")
        self.assertEqual(self.desktop.accessibility.get(*pie, ACCESSIBLE, "Description"),
                         "Free: 1.00 GB, Inactive: 2.00 GB, Active: 3.00 GB, Wired: 1.99 GB")

    def test_title_bar(self):
        """Without one there is a close mark under the mouse, and Escape; any window can be dragged by its top."""
        for frameless in True, False:
            with self.subTest(frameless=frameless):
                window = self.show({"NoTitleBar": frameless})
                place = lambda: self.desktop.place(window)[:2]  # noqa: E731
                happens = lambda what: wait_for(what, 20 if frameless else 0.5)  # noqa: E731
                mark = lambda: self.desktop.screenshot(window).pixel(11, 6) == (165, 165, 165)  # noqa: E731
                self.assertBecomes(place, (200, 150))
                self.assertFalse(mark(), "drawn without the mouse")
                self.desktop.run("xdotool", "mousemove", "--window", window, 60, 60)
                self.assertEqual(happens(mark), frameless)
                self.desktop.drag("--window", window, 60, 3)
                self.assertBecomes(place, (300, 250))
                for command, *hide in (["mousemove", "--window", 11, 11, "sleep", 0.1, "click", 1],
                                       ["windowactivate", "--sync", "key", "Escape"]):
                    self.desktop.watchers[0].items[0].activate()
                    self.desktop.run("xdotool", command, hide.pop(0), self.kelvo.window(), *hide)
                    self.assertEqual(happens(lambda: not self.kelvo.window(0)), frameless)
                self.assertEqual(self.stop()["MainWindow/Position"], [300, 250])

    def test_place(self):
        """It is kept to the pixel; on a screen that is missing, the window is pulled in until the user moves it."""
        for frameless in False, True:
            for place in (200, 150), (0, 250), (5000, 300), (-900, -900):
                with self.subTest(place, frameless=frameless):
                    for _ in range(2):
                        window = self.show({"NoTitleBar": frameless}, place)
                        shown = lambda: self.desktop.place(window)[:2] == place or (  # noqa: E731
                            place[0] not in (0, 200) and self.desktop.on_screen(window))
                        self.assertTrue(wait_for(shown), self.desktop.place(window))
                        self.desktop.click(window)
                        time.sleep(0.2)  # Kelvo learns a moment later than we where its window is
                        self.assertEqual(self.stop()["MainWindow/Position"], list(place), "it drifts")

    def test_languages(self):
        """Of a country without a catalogue of its own, and from right to left."""
        self.kelvo.use_built_resources()
        for language, free in ("de_AT", "Speicher jetzt freigeben!"), ("ar_EG", "تحرير الذاكرة الآن!"):
            self.assertIn(free, self.start(LC_ALL=f"{language}.UTF-8").texts())
            self.stop()


unittest.main()
