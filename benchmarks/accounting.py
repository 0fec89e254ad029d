"""What a program costs: CPU time with that of its dead children, memory, wake-ups, what it starts."""
import itertools
import os
import signal
import subprocess
import time
from contextlib import suppress
from pathlib import Path

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
    """Memory of a process: anonymous, all with shared pages by their share (PSS), all in full (RSS)."""
    lines = (line.split() for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    sizes = {words[0]: int(words[1]) / 1024 for words in lines}
    return sizes["Anonymous:"], sizes["Pss:"], sizes["Rss:"]


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


# Words to put before a command, so that it runs in a process namespace of its own.
ALONE = ["unshare", "--pid", "--fork", "--kill-child"]


def can_be_alone():
    """Whether a process namespace can be made here."""
    return subprocess.run([*ALONE, "true"], capture_output=True).returncode == 0


def started(launcher, seconds):
    """Processes and threads that a command run ALONE starts: each takes the namespace's next number, and so do we."""
    ask = ["nsenter", f"--pid=/proc/{launcher}/ns/pid_for_children", "sh", "-c", "echo $$"]
    before = int(subprocess.check_output(ask))
    time.sleep(seconds)
    return int(subprocess.check_output(ask)) - before - 1
