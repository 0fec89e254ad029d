"""What Kelvo costs a desktop's shell: its CPU time, and the messages on the session bus, while memory moves."""
import os
import statistics
import time
from pathlib import Path

from kelvo import Kelvo

SECONDS, ROUNDS, SETTLE = 60, 3, 10

# 300 MiB go and come within 20 s, in steps of two seconds as Kelvo samples them.
VM_STAT = """step=$(($(date +%s) % 20)); [ $step -le 10 ] || step=$((20 - step))
printf 'Pages free: %d.\\nPages active: %d.\\nPages inactive: 524288.\\nPages wired down: 524288.\\n' \
    $((524288 - step * 7680)) $((524288 + step * 7680))"""


def cpu_ms(process):
    fields = Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) * 1000 // os.sysconf("SC_CLK_TCK")


class Installed(Kelvo):
    """One of several in the same home."""

    def __init__(self, desktop, built, name):
        home, desktop.home = desktop.home, desktop.home / name
        super().__init__(desktop, built)
        desktop.home = home
        self.settings_file = home / ".config/Orvanta/Kelvo.conf"
        self.use_built_resources()
        self.install("vm_stat", VM_STAT)
        if (self.resources / "vm_stat").exists():
            self.put(self.resources / "vm_stat", f"#!/bin/sh\n{VM_STAT}\n")


def measure(desktop, programs):
    """Prints the medians for each {name: program} and for none."""
    kelvos = {name: Installed(desktop, program, name) for name, program in programs.items()}
    found = {name: [] for name in ["none", *kelvos]}
    for _ in range(ROUNDS):
        for name, rounds in found.items():
            kelvo = kelvos.get(name)
            if kelvo:
                kelvo.store({"HideAtStartUp": True})
                process = kelvo.start()
            time.sleep(SETTLE)
            traffic = desktop.home / "traffic"
            monitor = desktop.spawn("dbus-monitor", "--session", "--profile", log="errors", stdout=traffic.open("wb"))
            time.sleep(1)
            before, lines = cpu_ms(desktop.shell), len(traffic.read_bytes().splitlines())
            own = cpu_ms(process) if kelvo else 0
            time.sleep(SECONDS)
            rounds.append((cpu_ms(desktop.shell) - before, len(traffic.read_bytes().splitlines()) - lines,
                           cpu_ms(process) - own if kelvo else 0))
            monitor.kill()
            monitor.wait()
            if kelvo:
                kelvo.stop()
    print(f"{'':10} shell, ms a minute   (each round)         messages a minute   Kelvo itself, ms")
    for name, rounds in found.items():
        shell, messages, own = (statistics.median(values) for values in zip(*rounds))
        each = " ".join(str(values[0]) for values in rounds)
        print(f"{name:10} {shell:18}   {each:20} {messages:18}   {own:16}", flush=True)
