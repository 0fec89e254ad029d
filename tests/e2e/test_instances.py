"""One Kelvo per user, whatever happens to it."""
import signal
import socket
import time
import unittest

from case import DesktopTest
from bus import wait_for

LAUNCHES = 50


class Instances(DesktopTest):
    def test_many_at_once(self):
        launched = [self.kelvo.start() for _ in range(LAUNCHES)]
        self.assertTrue(wait_for(lambda: sum(process.poll() is None for process in launched) == 1, 120))
        self.assertEqual(sorted(process.poll() for process in launched if process.poll() is not None),
                         [0] * (LAUNCHES - 1))
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

    def test_odd_messages(self):
        self.start()
        for arguments in [""], ["x" * 100000, "", "ä" * 50000], ["\n"], ["--help", "-platform"]:
            with self.subTest(str(arguments)[:20]):
                self.assertEqual(self.kelvo.run(*arguments), 0)

    def test_after_a_kill(self):
        for _ in range(3):
            self.start()
            self.kelvo.stop(signal.SIGKILL)
        self.start()
        self.assertEqual(self.kelvo.run(), 0)

    def test_strangers_under_our_name(self):
        self.start()
        ours = [path for path in (self.desktop.home / "run").iterdir() if "Kelvo" in path.name]
        self.assertEqual(len(ours), 2, "a lock and a socket")
        self.kelvo.stop()

        def listen(path):
            stranger = socket.socket(socket.AF_UNIX)
            self.addCleanup(stranger.close)
            stranger.bind(str(path))
            stranger.listen()

        strangers = {"a socket": listen, "a directory": lambda path: path.mkdir(),
                     "a link": lambda path: path.symlink_to("/dev/null"), "a file": lambda path: path.write_text("x")}
        for kind, make in strangers.items():
            for path in ours:
                with self.subTest(kind, name=path.name):
                    path.rmdir() if path.is_dir() else path.unlink(missing_ok=True)
                    make(path)
                    self.start()
                    self.assertTrue(self.kelvo.window(), "not even a window")
                    self.assertEqual(self.kelvo.stop(), 0)


if __name__ == "__main__":
    unittest.main()
