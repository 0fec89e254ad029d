"""Sessions: where they find Kelvo, one copy for all, what their ends leave, and Wayland."""
import json
import os
import signal
import time
import unittest
from pathlib import Path

from case import LABELS, DesktopTest, wait_for

CHOSEN = {"RemindThreshold": 2.5, "UpdateFrequency": 1, "NoTitleBar": True}


def entry(path):
    """What a desktop entry says."""
    return dict(line.split("=", 1) for line in path.read_text().splitlines() if "=" in line)


class Sessions(DesktopTest):
    def assertEnded(self, *statuses, saved=True):
        self.assertIn(self.kelvo.processes[-1].wait(20), statuses)
        self.assertBecomes(self.kelvo.children, [])
        stored = self.kelvo.settings()["Application/Settings"]
        self.assertEqual(stored, {**stored, **CHOSEN})
        self.assertEqual(len(stored) == 11, saved)  # what was not stored before has been added


class X11(Sessions):
    def test_ends_that_save(self):
        ends = {"Quit": lambda: self.desktop.watchers[0].items[0].click("Quit"),
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
        self.assertEqual(self.kelvo.run("-q"), 0)
        self.assertEqual(self.desktop.watchers[0].items, [])
        self.start("-q", "x")
        self.assertTrue(self.kelvo.window())

    def test_many_at_once(self):
        launched = [self.kelvo.start() for _ in range(50)]
        self.assertTrue(wait_for(lambda: sum(process.poll() is None for process in launched) == 1, 120))
        self.assertEqual(sum(process.poll() == 0 for process in launched), 49)
        self.kelvo.processes = [process for process in launched if process.poll() is None]
        self.assertTrue(self.kelvo.window())
        self.assertEqual(len(self.desktop.watchers[0].items), 1)
        self.assertEqual(len(self.stop()["Application/Settings"]), 11)

    def test_hung_and_killed(self):
        self.start()
        hung = self.kelvo.processes[0]
        hung.send_signal(signal.SIGSTOP)
        begin = time.monotonic()
        self.assertEqual(self.kelvo.run(), 1)
        self.assertTrue(4.9 < time.monotonic() - begin < 15, "it is given five seconds")
        hung.send_signal(signal.SIGCONT)
        self.assertEqual(self.kelvo.run(), 0)
        hung.kill()
        hung.wait()
        self.start()
        self.assertEqual(self.kelvo.run(), 0)


class Installed(DesktopTest):
    """As `cmake --install` or a package put it there: found, started and recognised by the desktop."""

    def test_installed(self):
        top = Path(os.environ["KELVO"]).parents[1]
        prefix = top.parents[1]
        if (top / "CMakeCache.txt").exists():
            # Installed from the build tree, and then moved: nothing may know where it is.
            self.desktop.run("cmake", "--install", top, "--prefix", self.desktop.home / "first")
            prefix = (self.desktop.home / "first").rename(self.desktop.home / "here now")
        known_icons = [path.stem for path in (prefix / "share/icons/hicolor").glob("*/apps/*")]

        self.kelvo.program = prefix / "bin/kelvo"  # a link
        (self.kelvo.path / "vm_stat").unlink()
        item = self.open({"AutoLaunch": True})
        self.assertTrue(wait_for(lambda: item.figures().get("Free", "0 bytes") != "0 bytes"), "no figures")
        self.desktop.run(prefix / "lib/kelvo/Resources/memfree", "--help")

        name, of_class = self.desktop.run("xprop", "-id", self.kelvo.window(), "WM_CLASS").split('"')[1::2]
        known = entry(prefix / f"share/applications/{name}.desktop")
        self.assertEqual(known["StartupWMClass"], of_class)
        self.assertTrue(os.access(prefix / "bin" / known["Exec"], os.X_OK))
        login = entry(self.desktop.home / ".config/autostart/Kelvo.desktop")
        self.assertEqual(login["TryExec"], str(prefix / "lib/kelvo/bin/kelvo"))
        self.assertLessEqual({known["Icon"], login["Icon"]}, set(known_icons))


class Wayland(Sessions):
    """Windows neither know nor choose their place."""
    programs = ["sway", "watcher"]

    def place(self):
        """Kelvo's window as (x, y, width, height); None if it is not shown."""
        windows = []
        json.loads(self.desktop.run("swaymsg", "-t", "get_tree"), object_hook=lambda node: windows.append(
            node["rect"]) if node.get("app_id") == "kelvo" else node)
        return tuple(windows[0][key] for key in ("x", "y", "width", "height")) if windows else None

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
        """Qt ends the program then, with nothing stored and a status that depends on its version."""
        self.open(CHOSEN)
        self.assertTrue(wait_for(self.place), "no window")
        self.desktop.run("pkill", "-KILL", "-P", str(os.getpid()), "sway")
        self.assertEnded(1, 255, saved=False)


unittest.main()
