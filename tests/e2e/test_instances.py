"""One Kelvo per user, whatever happens to it."""
import signal
import socket
import time
import unittest
from pathlib import Path

from case import DesktopTest, wait_for


class Instances(DesktopTest):
    def test_many_at_once(self):
        launched = [self.kelvo.start() for _ in range(50)]
        self.assertTrue(wait_for(lambda: sum(process.poll() is None for process in launched) == 1, 120))
        self.assertEqual(sum(process.poll() == 0 for process in launched), 49)
        time.sleep(1)
        self.kelvo.processes = [process for process in launched if process.poll() is None]
        self.assertTrue(self.kelvo.window())
        self.assertEqual(len(self.desktop.watchers[0].items), 1)
        self.assertEqual(self.kelvo.stop(), 0)
        self.assertEqual(len(self.kelvo.settings()["Application/Settings"]), 11)

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

    def test_strangers_under_our_name(self):
        self.start()
        ours = [path for path in (self.desktop.home / "run").iterdir() if "Kelvo" in path.name]
        self.assertEqual(len(ours), 2, "a lock and a socket")
        self.kelvo.stop()
        stranger = socket.socket(socket.AF_UNIX)
        self.addCleanup(stranger.close)
        for kind, make in {"a directory": Path.mkdir, "a link": lambda path: path.symlink_to("/dev/null"),
                           "a socket": lambda path: stranger.bind(str(path)) or stranger.listen()}.items():
            for path in ours if kind != "a socket" else [path for path in ours if "lock" not in path.name]:
                with self.subTest(kind, name=path.name):
                    path.rmdir() if path.is_dir() else path.unlink(missing_ok=True)
                    make(path)
                    self.start()
                    self.assertTrue(self.kelvo.window(), "not even a window")
                    self.assertEqual(self.kelvo.stop(), 0)


unittest.main()
