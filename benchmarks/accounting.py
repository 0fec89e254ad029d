"""What a program costs: CPU time with that of its dead children, its share of memory, its wake-ups.

Where no control group can be made: accounting.py COMMAND ... runs a program until SIGTERM, then prints the milliseconds
of CPU time that it and everything it left behind have used.
"""
import ctypes
import itertools
import os
import resource
import signal
import subprocess
import sys
import time
from contextlib import suppress
from pathlib import Path

PR_SET_CHILD_SUBREAPER = 36
numbers = itertools.count()


def _version_2(directory):
    lines = (directory / "cpu.stat").read_text().splitlines()
    return int(dict(line.split() for line in lines)["usage_usec"]) / 1000


def _version_1(directory):
    return int((directory / "cpuacct.usage").read_text()) / 1e6


class Group:
    """A control group of its own: the one account that still holds a child's time after the child is gone."""

    def __init__(self, directory, read):
        self.directory, self._read = directory, read
        directory.mkdir()
        self.cpu_ms()

    @classmethod
    def create(cls):
        """A group of either version, whichever can be made here; None where neither can."""
        own = {controllers: path for _, controllers, path in
               (line.split(":", 2) for line in Path("/proc/self/cgroup").read_text().splitlines())}
        for mount in Path("/proc/self/mounts").read_text().splitlines():
            _, point, kind, *_ = mount.split()
            version_1 = [path for controllers, path in own.items()
                         if "cpuacct" in controllers.split(",") and Path(point, "cpuacct.usage").exists()]
            if kind == "cgroup" and version_1:
                place, read = version_1[0], _version_1
            elif kind == "cgroup2" and "" in own:
                place, read = own[""], _version_2
            else:
                continue
            try:
                return cls(Path(point, place.lstrip("/"), f"kelvo-benchmark-{os.getpid()}-{next(numbers)}"), read)
            except (OSError, KeyError):
                continue
        return None

    def cpu_ms(self):
        """CPU time that everything in the group has used so far."""
        return self._read(self.directory)

    def launcher(self):
        """The words to put before a command, so that it runs in the group."""
        return ["sh", "-c", 'echo 0 >"$0"/cgroup.procs && exec "$@"', self.directory]

    def signal(self, number):
        """Sends a signal to everything in the group."""
        for pid in (self.directory / "cgroup.procs").read_text().split():
            with suppress(ProcessLookupError):
                os.kill(int(pid), number)

    def remove(self):
        """Ends everything in the group, and the group."""
        end = time.monotonic() + 5
        while time.monotonic() < end:
            self.signal(signal.SIGKILL)
            try:
                return self.directory.rmdir()
            except OSError:
                time.sleep(0.02)


def memory_mib(pid):
    """Memory of a process with shared pages by their share, and with shared pages counted in full."""
    lines = (line.split() for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    sizes = {words[0]: int(words[1]) / 1024 for words in lines}
    return sizes["Pss:"], sizes["Rss:"]


def sharers(library):
    """Processes that have this library mapped, and so take a share of it."""
    count = 0
    for maps in Path("/proc").glob("[0-9]*/maps"):
        try:
            count += library in maps.read_text(errors="replace")
        except OSError:
            continue
    return count


def switches(pid):
    """How often the threads of a process have gone to sleep."""
    return sum(int(status.read_text().partition("\nvoluntary_ctxt_switches:")[2].split()[0])
               for status in Path(f"/proc/{pid}/task").glob("*/status"))


def wake_ups(pid, seconds):
    """Moments at which a process was awake; those less than 100 ms apart are one."""
    moments, last, before = 0, 0.0, switches(pid)
    end = time.monotonic() + seconds
    while (now := time.monotonic()) < end:
        time.sleep(0.02)
        after = switches(pid)
        if after != before:
            moments += now - last > 0.1
            last, before = now, after
    return moments


def main(command):
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGTERM])
    process = subprocess.Popen(command, preexec_fn=lambda: signal.pthread_sigmask(signal.SIG_UNBLOCK, [signal.SIGTERM]))
    signal.sigwait([signal.SIGTERM])
    process.terminate()
    process.wait()
    try:
        while True:
            os.wait()
    except ChildProcessError:
        used = resource.getrusage(resource.RUSAGE_CHILDREN)
        print((used.ru_utime + used.ru_stime) * 1000)


if __name__ == "__main__":
    main(sys.argv[1:])
