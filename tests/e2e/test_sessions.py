"""The end of a session in all its ways, pauses in it, and the sessions of others."""
import os
import shutil
import signal
import time
import unittest
from pathlib import Path

from bus import wait_for
from case import DesktopTest
from kelvo import STATE_CHECKED

PERIOD = 2.0
STRANGER = 65534
BOX = "Do not show window title bar"


class Sessions(DesktopTest):
    def start_and_change(self):
        """Starts Kelvo and changes what reaches the settings at its end only."""
        item = self.start()
        item.click("Kelvo Preferences")
        wait_for(lambda: BOX in [name for _, name, _ in self.kelvo.widgets()])
        self.kelvo.press(BOX)
        self.assertTrue(wait_for(lambda: BOX in self.kelvo.having(STATE_CHECKED)))
        self.assertFalse(self.kelvo.settings_file.exists() and self.stored())

    def stored(self):
        return self.kelvo.settings().get("Application/Settings", {}).get("NoTitleBar", False)

    def assertEnded(self, status):
        self.assertEqual(self.kelvo.processes[-1].wait(20), status)
        wait_for(lambda: not self.left())
        self.assertEqual(self.left(), [])

    def left(self):
        """What still runs of Kelvo's own: itself, its interpreter, its helper."""
        def command(process):
            try:
                return (process / "cmdline").read_bytes()
            except OSError:
                return b""
        return [found for found in map(command, Path("/proc").glob("[0-9]*")) if bytes(self.kelvo.directory) in found]

    def log_out(self, how):
        """Everything that belongs to Kelvo is told at once, also an interpreter at its work."""
        self.start_and_change()
        os.killpg(self.kelvo.processes[-1].pid, how)
        self.assertEnded(0)
        self.assertTrue(self.stored())


class X11(Sessions):
    programs = ["watcher", "openbox"]

    def test_logout(self):
        self.log_out(signal.SIGTERM)

    def test_hang_up(self):
        self.log_out(signal.SIGHUP)

    def test_display_gone(self):
        self.start_and_change()
        self.desktop.spawned[0].kill()
        self.assertEnded(1)
        self.assertTrue(self.stored())
        self.assertIn("MainWindow/Position", self.kelvo.settings())

    def asked(self):
        return (self.kelvo.directory / "asked").stat().st_size

    def test_pause(self):
        """A suspended machine, or a debugger."""
        self.start()
        process = self.kelvo.processes[-1]
        self.kelvo.wait_for_sample()
        process.send_signal(signal.SIGSTOP)
        time.sleep(4 * PERIOD)
        before = self.asked()
        process.send_signal(signal.SIGCONT)
        time.sleep(PERIOD / 2)
        self.assertLessEqual(self.asked() - before, 1, "what was missed is made up for")
        self.assertTrue(wait_for(lambda: self.asked() >= before + 2), "no more samples")

    def test_clock_jump(self):
        self.kelvo.move_clock(0)
        self.kelvo.environment["FAKETIME_DONT_FAKE_MONOTONIC"] = "1"  # the one that nobody can set
        self.start()
        self.kelvo.wait_for_sample()
        for seconds in 7200, 0:
            self.kelvo.move_clock(seconds)
            before = self.asked()
            time.sleep(3 * PERIOD)
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
    programs = ["sway", "watcher"]

    def test_logout(self):
        self.log_out(signal.SIGTERM)

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


if __name__ == "__main__":
    unittest.main()
