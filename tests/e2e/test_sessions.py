"""The end of a session in all its ways, pauses in it, and the sessions of others."""
import json
import os
import shutil
import signal
import time
import unittest

from case import LABELS, DesktopTest, wait_for
from kelvo import STATE_CHECKED

STRANGER = 65534
BOX = "Do not show window title bar"


class Sessions(DesktopTest):
    def start_and_change(self):
        """Starts Kelvo and changes what reaches the settings at its end only."""
        item = self.start()
        item.click("Kelvo Preferences")
        wait_for(lambda: BOX in self.kelvo.texts())
        self.kelvo.press(BOX)
        self.assertBecomes(lambda: BOX in self.kelvo.having(STATE_CHECKED), True)
        self.assertFalse(self.kelvo.settings_file.exists() and self.stored())

    def stored(self):
        return self.kelvo.settings().get("Application/Settings", {}).get("NoTitleBar", False)

    def assertEnded(self, status):
        self.assertEqual(self.kelvo.processes[-1].wait(20), status)
        # Nothing of its own goes on: neither itself nor its interpreter, nor its helper.
        self.assertBecomes(lambda: self.desktop.run("pgrep", "-f", self.kelvo.directory, check=False), "")

    def log_out(self):
        """Everything that belongs to Kelvo is told at once, also an interpreter at its work."""
        self.start_and_change()
        os.killpg(self.kelvo.processes[-1].pid, signal.SIGTERM)
        self.assertEnded(0)
        self.assertTrue(self.stored())


class X11(Sessions):
    def test_logout(self):
        self.log_out()

    def test_display_gone(self):
        self.start_and_change()
        self.desktop.spawned[0].kill()
        self.assertEnded(1)
        self.assertTrue(self.stored())
        self.assertIn("MainWindow/Position", self.kelvo.settings())

    def asked(self):
        return (self.kelvo.directory / "asked").stat().st_size

    def test_pause(self):
        """A suspended machine, or a debugger: what was missed is not made up for."""
        self.start()
        self.kelvo.wait_for_sample()
        self.kelvo.processes[-1].send_signal(signal.SIGSTOP)
        time.sleep(8)
        before = self.asked()
        self.kelvo.processes[-1].send_signal(signal.SIGCONT)
        time.sleep(1)
        self.assertLessEqual(self.asked() - before, 1)
        self.assertTrue(wait_for(lambda: self.asked() >= before + 2), "no more samples")

    def test_clock_jump(self):
        self.kelvo.move_clock(0)
        self.kelvo.environment["FAKETIME_DONT_FAKE_MONOTONIC"] = "1"  # the one that nobody can set
        self.start()
        self.kelvo.wait_for_sample()
        for seconds in 7200, 0:
            self.kelvo.move_clock(seconds)
            before = self.asked()
            time.sleep(6)
            self.assertIn(self.asked() - before, range(2, 5))

    @unittest.skipIf(os.geteuid() != 0, "only root can be somebody else")
    def test_two_users(self):
        self.kelvo.store({"HideAtStartUp": True})
        self.start()
        self.desktop.home.chmod(0o755)
        theirs = self.desktop.home / "theirs"
        theirs.mkdir(mode=0o700)
        shutil.chown(theirs, STRANGER, STRANGER)
        setpriv = ["setpriv", f"--reuid={STRANGER}", f"--regid={STRANGER}", "--clear-groups"]
        # The second is what becomes of them by a change of user that keeps the environment.
        for runtime in theirs, self.desktop.env["XDG_RUNTIME_DIR"]:
            self.kelvo.processes.append(self.desktop.spawn(*setpriv, self.kelvo.program, log="kelvo.log", env={
                **self.desktop.env, "HOME": str(theirs), "XDG_RUNTIME_DIR": str(runtime),
                "DBUS_SESSION_BUS_ADDRESS": "disabled:"}))
            self.assertTrue(self.kelvo.window(), "the second user has no Kelvo")
            self.assertEqual(self.kelvo.stop(), 0)
            self.assertTrue((theirs / ".config/Orvanta/Kelvo.conf").exists())
            self.kelvo.processes.pop()
            self.assertFalse(self.kelvo.window(0), "the first user's Kelvo was woken up")
        self.assertEqual(self.kelvo.stop(), 0)


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
        self.kelvo.store({"NoTitleBar": True, "RemindThreshold": 2.5}, **{"MainWindow/Position": [200, 150]})
        item = self.start()
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
        self.assertEqual(self.kelvo.stop(), 0)
        stored = self.kelvo.settings()
        self.assertEqual(stored["Application/Settings"]["RemindThreshold"], 2.5)
        self.assertEqual(stored["MainWindow/Position"], [200, 150], "a place that Kelvo cannot know is stored")

    def test_logout(self):
        self.log_out()

    def test_compositor_gone(self):
        self.start_and_change()
        self.desktop.run("swaymsg", "exit", check=False)
        self.assertEnded(1)
        self.assertTrue(self.stored())

    def test_compositor_killed(self):
        self.start_and_change()
        self.desktop.run("pkill", "-KILL", "-P", str(os.getpid()), "sway")
        self.assertEnded(1)
        self.assertTrue(self.stored())


unittest.main()
