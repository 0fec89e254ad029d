"""Stored settings that cannot be read or written: Kelvo runs, and what was stored is neither lost nor half written."""
import os
import subprocess
import unittest

from case import DesktopTest
from bus import wait_for

GOOD = {"RemindThreshold": 2.5, "NoTitleBar": True}


class BadDays(DesktopTest):
    def good_settings(self):
        self.kelvo.store(GOOD, **{"MainWindow/Position": [200, 150], "Application/StartCount": 4})
        return self.kelvo.settings_file.read_bytes()

    def test_spoiled_settings(self):
        good = self.good_settings()
        at = good.index(b"Settings=")
        spoiled = {"empty": b"", "cut in the record": good[:at + 100], "cut before it": good[:at + 3],
                   "text for a record": b"[Application]\nSettings=hello\n", "a list": b"[Application]\nSettings=1, 2, 3\n",
                   "a broken record": b"[Application]\nSettings=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xff)\n",
                   "no settings at all": bytes(range(256)) * 40,
                   "other types": b"[Application]\nStartCount=x\n[MainWindow]\nPosition=here\nWarning=@Point(1 2)\n"}
        for name, content in spoiled.items():
            with self.subTest(name):
                self.kelvo.settings_file.write_bytes(content)
                self.start()
                self.assertTrue(self.kelvo.window(), "not even a window")
                self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

    def test_odd_values(self):
        odd = {"WindowStyle": "dark", "UpdateFrequency": -7, "RemindThreshold": "much", "StayOnTop": "true", "Strange": [1]}
        self.kelvo.store(odd, **{"MainWindow/Position": [2**31 - 1, -2**31], "Application/StartCount": 2**31 - 1})
        self.start()
        self.assertTrue(self.kelvo.window(), "not even a window")
        self.assertEqual(self.kelvo.stop(), 0)

    def in_a_spoiled_home(self, spoil):
        """Runs Kelvo to its end where a command has spoiled the settings' directory: what is left of the settings."""
        directory, left = self.kelvo.settings_file.parent, self.desktop.home / "left"
        script = f"{spoil}; '{self.kelvo.program}'; echo $? >'{left}.status'; cp '{self.kelvo.settings_file}' '{left}'"
        # The mounts are seen in a namespace of its own only, and end with it.
        unshare = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
        if subprocess.run([*unshare, "true"], capture_output=True).returncode != 0:
            self.skipTest("mounting is not allowed here")
        process = self.desktop.spawn(*unshare, "sh", "-c", script.replace("DIR", str(directory)), log="kelvo.log")
        self.assertTrue(self.desktop.watchers[0].item(), "no status icon")
        self.desktop.watchers[0].items[0].click("Quit")
        process.wait(20)
        self.assertEqual((self.desktop.home / "left.status").read_text(), "0\n")
        self.assertTrue(wait_for(left.exists))
        return left.read_bytes()

    def test_read_only(self):
        good = self.good_settings()
        self.assertEqual(self.in_a_spoiled_home("mount --bind -o ro DIR DIR"), good)

    def test_full_disk(self):
        good = self.good_settings()
        spoil = ("cp DIR/Kelvo.conf ~/kept; mount -t tmpfs -o size=8k none DIR; cp ~/kept DIR/Kelvo.conf; "
                 "cat /dev/zero >DIR/full 2>/dev/null")
        self.assertEqual(self.in_a_spoiled_home(spoil), good)


if __name__ == "__main__":
    unittest.main()
