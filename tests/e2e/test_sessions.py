"""Sessions and what remains of them: their ends, one Kelvo in each, spoiled settings, and Wayland."""
import json
import os
import signal
import time
import unittest

from case import LABELS, DesktopTest, wait_for

CHOSEN = {"RemindThreshold": 2.5, "UpdateFrequency": 1, "NoTitleBar": True}


class Sessions(DesktopTest):
    def assertEnded(self, status, saved=True):
        self.assertEqual(self.kelvo.processes[-1].wait(20), status)
        self.assertBecomes(self.kelvo.children, [])
        stored = self.kelvo.settings()["Application/Settings"]
        self.assertEqual(stored, {**stored, **CHOSEN})
        self.assertEqual(len(stored) == 11, saved)  # what was not stored before has been added


class Ends(Sessions):
    def test_ends_that_save(self):
        ends = {"Quit": lambda: self.desktop.watchers[-1].items[0].click("Quit"),
                **{number.name: lambda number=number: self.kelvo.processes[-1].send_signal(number)
                   for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)},
                "the display goes": self.desktop.spawned[0].kill}
        for name, end in ends.items():
            with self.subTest(name):
                self.kelvo.settings_file.unlink(missing_ok=True)
                self.open(CHOSEN).click("Free Memory Now!")
                self.assertBecomes(lambda: len(self.kelvo.window().split()), 2)  # the warning, which is modal, too
                end()
                self.assertEnded(1 if name == "the display goes" else 0)
                self.assertIn("MainWindow/Position", self.kelvo.settings())

    def test_quick_quit(self):
        self.kelvo.store(CHOSEN)
        self.assertEqual(self.kelvo.run("-q"), 0)
        self.assertEqual(self.desktop.watchers[0].items, [])
        # Even this copy stores its record, and it has none: the next start has the defaults.
        self.assertEqual(self.kelvo.settings()["Application/Settings"], {})
        self.start("-q", "x")
        self.assertTrue(self.kelvo.window())

    def test_spoiled_settings(self):
        self.kelvo.store(CHOSEN, **{"MainWindow/Position": [200, 150]})
        good = self.kelvo.settings_file.read_bytes()
        for content in (good[:good.index(b"Settings=") + 100], bytes(range(256)) * 40,
                        b"[Application]\nSettings=hello\nStartCount=x\n[MainWindow]\nPosition=here\nWarning=@Point(1 2)\n"):
            with self.subTest(content[:60]):
                self.kelvo.settings_file.write_bytes(content)
                self.start()
                self.assertTrue(self.kelvo.window(), "not even a window")
                self.assertEqual(len(self.stop()["Application/Settings"]), 11)


class OneForAll(Sessions):
    def test_many_at_once(self):
        launched = [self.kelvo.start() for _ in range(50)]
        self.assertTrue(wait_for(lambda: sum(process.poll() is None for process in launched) == 1, 120))
        self.assertEqual(sum(process.poll() == 0 for process in launched), 49)
        self.kelvo.processes = [process for process in launched if process.poll() is None]
        self.assertTrue(self.kelvo.window())
        self.assertEqual(len(self.desktop.watchers[0].items), 1)
        self.assertEqual(len(self.stop()["Application/Settings"]), 11)

    def test_hung_copy(self):
        self.start()
        running = self.kelvo.processes[0]
        running.send_signal(signal.SIGSTOP)
        begin = time.monotonic()
        self.assertEqual(self.kelvo.run(), 1)
        self.assertTrue(4.9 < time.monotonic() - begin < 15, "it is given five seconds")
        running.send_signal(signal.SIGCONT)
        self.assertEqual(self.kelvo.run(), 0)

    def test_after_a_kill(self):
        for _ in range(2):
            self.start()
            self.kelvo.stop(signal.SIGKILL)
        self.start()
        self.assertEqual(self.kelvo.run(), 0)


class Wayland(Sessions):
    """Windows neither know nor choose their place."""
    programs = ["sway", "watcher"]

    def place(self):
        """Kelvo's window as (x, y, width, height); None if it is not shown."""
        def search(node):
            if node.get("app_id") == "kelvo":
                return tuple(node["rect"][key] for key in ("x", "y", "width", "height"))
            return next(filter(None, map(search, node["nodes"] + node["floating_nodes"])), None)
        return search(json.loads(self.desktop.run("swaymsg", "-t", "get_tree")))

    def test_window(self):
        item = self.open(CHOSEN, **{"MainWindow/Position": [200, 150]})
        for show in lambda: None, item.activate, self.kelvo.run:
            show()
            del self.kelvo.processes[1:]
            self.assertTrue(wait_for(self.place), "no window")
            self.assertEqual(self.kelvo.labels(), LABELS)
            x, y, width, height = self.place()
            self.desktop.drag(x + 60, y + 8)
            self.assertBecomes(self.place, (x + 100, y + 100, width, height))
            self.desktop.run("xdotool", "mousemove", x + 111, y + 111, "sleep", 0.2, "click", 1)
            self.assertBecomes(self.place, None)
        self.kelvo.processes[0].terminate()
        self.assertEnded(0)
        self.assertEqual(self.kelvo.settings()["MainWindow/Position"], [200, 150], "a place that Kelvo cannot know")

    def test_compositor_killed(self):
        """Qt ends the program then, with nothing stored."""
        self.open(CHOSEN)
        self.assertTrue(wait_for(self.place), "no window")
        self.desktop.run("pkill", "-KILL", "-P", str(os.getpid()), "sway")
        self.assertEnded(1, saved=False)


unittest.main()
