"""What the user's clicks, launches and signals do."""
import signal
import unittest

from case import DesktopTest

CHOSEN = {"RemindThreshold": 2.5, "UpdateFrequency": 1, "HideAtStartUp": True}


class Clicks(DesktopTest):
    programs = ["watcher", "openbox"]

    def assertStored(self, chosen):
        stored = self.kelvo.settings()["Application/Settings"]
        self.assertEqual(len(stored), 11)
        self.assertEqual({key: stored[key] for key in chosen}, chosen)

    def close_window(self):
        self.desktop.run("xdotool", "windowactivate", "--sync", self.kelvo.window(), "key", "alt+F4")
        self.assertTrue(self.kelvo.window_goes(), "the window stays")

    def test_ways_to_the_window(self):
        self.kelvo.store({"HideAtStartUp": True})
        item = self.start()
        running = self.kelvo.processes[0]
        self.assertFalse(self.kelvo.window(1))
        ways = {"left click": item.activate,
                **{f"menu: {entry}": lambda entry=entry: item.click(entry) for entry in ("Free: ", "Wired", "Active", "Inactive")},
                **{f"launch {words}": lambda words=words: self.assertEqual(self.kelvo.start(*words).wait(20), 0)
                   for words in ([], ["-q"], ["a", "b"])}}
        for name, show in ways.items():
            with self.subTest(name):
                show()
                self.kelvo.processes = [running]
                self.assertTrue(self.kelvo.window(), "no window")
                self.close_window()
                self.assertIsNone(running.poll(), "Kelvo ends with its last window")
        self.assertEqual(len(self.desktop.watchers[0].items), 1, "a second launch has an icon of its own")

    def test_dialogs_from_the_menu(self):
        item = self.start()
        for entry, title in ("Kelvo Preferences", "Preferences"), ("About", "About"):
            with self.subTest(entry):
                item.click(entry)
                self.assertTrue(self.kelvo.window(name=title), "no window")

    def test_button(self):
        self.start()
        self.assertTrue(self.kelvo.window())
        self.kelvo.press("Free Memory")
        self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning before a first run

    def test_ends_that_save(self):
        ends = {"Quit": lambda: self.desktop.watchers[-1].items[0].click("Quit"),
                **{number.name: lambda number=number: self.kelvo.processes[-1].send_signal(number)
                   for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)}}
        for name, end in ends.items():
            for modal in False, True:
                with self.subTest(name, modal=modal):
                    self.kelvo.store(CHOSEN)
                    item = self.start()
                    if modal:
                        item.click("Free Memory Now!")
                        self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning too
                    end()
                    self.assertEqual(self.kelvo.processes[-1].wait(20), 0)
                    self.assertStored(CHOSEN)

    def test_killed_and_started_again(self):
        self.kelvo.store(CHOSEN)
        self.start()
        self.assertEqual(self.kelvo.stop(signal.SIGKILL), -signal.SIGKILL)
        self.assertEqual(self.kelvo.settings()["Application/Settings"], CHOSEN)
        self.start()
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertStored(CHOSEN)

    def test_quick_quit(self):
        self.kelvo.store(CHOSEN)
        self.assertEqual(self.kelvo.run("-q"), 0)
        self.assertEqual(self.desktop.watchers[0].items, [])
        # Even this copy stores its record, and it has none: the next start has the defaults.
        self.assertEqual(self.kelvo.settings()["Application/Settings"], {})
        self.start("-q", "x")
        self.assertTrue(self.kelvo.window())


if __name__ == "__main__":
    unittest.main()
