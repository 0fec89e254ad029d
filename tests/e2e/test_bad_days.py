"""Stored settings that cannot be read or written: Kelvo runs, and what was stored is neither lost nor half written."""
import os
import subprocess
import unittest

from case import DesktopTest


class BadDays(DesktopTest):
    def stored(self, record, position, starts):
        self.kelvo.store(record, **{"MainWindow/Position": position, "Application/StartCount": starts})
        return self.kelvo.settings_file.read_bytes()

    def test_spoiled_settings(self):
        good = self.stored({"RemindThreshold": 2.5, "NoTitleBar": True}, [200, 150], 4)
        spoiled = {"cut in the record": good[:good.index(b"Settings=") + 100],
                   "text for a record": b"[Application]\nSettings=hello\n",
                   "a broken record": b"[Application]\nSettings=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xff)\n",
                   "no settings at all": bytes(range(256)) * 40,
                   "other types": b"[Application]\nStartCount=x\n[MainWindow]\nPosition=here\nWarning=@Point(1 2)\n",
                   "odd values": self.stored({"WindowStyle": "dark", "UpdateFrequency": -7, "RemindThreshold": "much",
                                              "StayOnTop": "true"}, [2**31 - 1, -2**31], 2**31 - 1)}
        for name, content in spoiled.items():
            with self.subTest(name):
                self.kelvo.settings_file.write_bytes(content)
                self.start()
                self.assertTrue(self.kelvo.window(), "not even a window")
                self.assertEqual(self.kelvo.stop(), 0)
                self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

    def test_nowhere_to_write(self):
        good, left = self.stored({"RemindThreshold": 2.5}, [200, 150], 4), self.desktop.home / "left"
        settings, directory = self.kelvo.settings_file, self.kelvo.settings_file.parent
        # The mounts are seen in a namespace of its own only, and end with it.
        unshare = ["unshare", "--mount"] + ([] if os.geteuid() == 0 else ["--map-root-user"])
        if subprocess.run([*unshare, "true"], capture_output=True).returncode != 0:
            self.skipTest("mounting is not allowed here")
        for spoil in (f"mount --bind -o ro {directory} {directory}",
                      f"cp {settings} ~/kept; mount -t tmpfs -o size=8k none {directory}; cp ~/kept {settings}; "
                      f"cat /dev/zero >{directory}/full 2>/dev/null"):
            with self.subTest(spoil):
                self.desktop.watchers[0].items.clear()
                script = f"{spoil}; '{self.kelvo.program}' && cp '{settings}' '{left}'"
                process = self.desktop.spawn(*unshare, "sh", "-c", script, log="kelvo.log")
                self.assertTrue(self.desktop.watchers[0].item(), "no status icon")
                self.desktop.watchers[0].items[0].click("Quit")
                self.assertEqual(process.wait(20), 0)
                self.assertEqual(left.read_bytes(), good)
                left.unlink()


unittest.main()
