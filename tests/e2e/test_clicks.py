"""What the user's clicks, launches and signals do."""
import signal
import unittest

from case import DesktopTest

CHOSEN = {"RemindThreshold": 2.5, "UpdateFrequency": 1, "HideAtStartUp": True}


class Clicks(DesktopTest):
    def test_ways_to_the_window(self):
        self.kelvo.store({"HideAtStartUp": True})
        item = self.start()
        running = self.kelvo.processes[0]
        self.assertFalse(self.kelvo.window(1))
        ways = {"left click": item.activate,
                **{entry: lambda entry=entry: item.click(entry) for entry in ("Free: ", "Wired", "Active", "Inactive")},
                **{f"launch {words}"[:30]: lambda words=words: self.assertEqual(self.kelvo.run(*words), 0)
                   for words in ([], ["-q"], [""], ["x" * 100000, "", "ä\n" * 30000], ["--help", "-platform"])}}
        for name, show in ways.items():
            with self.subTest(name):
                show()
                self.kelvo.processes = [running]
                self.assertTrue(self.kelvo.window(), "no window")
                self.close_window()
                self.assertIsNone(running.poll(), "Kelvo ends with its last window")
        self.assertEqual(len(self.desktop.watchers[0].items), 1, "a second launch has an icon of its own")

    def test_ends_that_save(self):
        ends = {"Quit": lambda: self.desktop.watchers[-1].items[0].click("Quit"),
                **{number.name: lambda number=number: self.kelvo.processes[-1].send_signal(number)
                   for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)}}
        for name, end in ends.items():
            with self.subTest(name):
                self.kelvo.store(CHOSEN)
                self.start().click("Free Memory Now!")
                self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning, which is modal, too
                end()
                self.assertEqual(self.kelvo.processes[-1].wait(20), 0)
                stored = self.kelvo.settings()["Application/Settings"]
                self.assertEqual((len(stored), stored), (11, {**stored, **CHOSEN}))

    def test_quick_quit(self):
        self.kelvo.store(CHOSEN)
        self.assertEqual(self.kelvo.run("-q"), 0)
        self.assertEqual(self.desktop.watchers[0].items, [])
        # Even this copy stores its record, and it has none: the next start has the defaults.
        self.assertEqual(self.kelvo.settings()["Application/Settings"], {})
        self.start("-q", "x")
        self.assertTrue(self.kelvo.window())


unittest.main()
