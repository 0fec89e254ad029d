"""Shows Kelvo on a virtual desktop: prints its menu's figures beside those of `free`, and saves a picture.

virtual_run.py KELVO PICTURE
"""
import os
import shutil
import signal
import sys
import time
from pathlib import Path

from bus import wait_for
from desktop import Desktop
from kelvo import Kelvo

SAMPLES_SECONDS = 5


def main(program, picture):
    # Ended from outside, we clean up as at Ctrl-C.
    for number in signal.SIGTERM, signal.SIGHUP:
        signal.signal(number, lambda number, _: sys.exit(128 + number))

    with Desktop("1024x640", "openbox", "wallpaper", "picom", "tint2") as desktop:
        kelvo = Kelvo(desktop, program)
        kelvo.use_built_resources()
        # Shown with the user's own settings, which stay untouched: this Kelvo has a home of its own.
        own = Path(os.environ.get("XDG_CONFIG_HOME") or Path.home() / ".config") / "Orvanta/Kelvo.conf"
        if own.is_file():
            kelvo.settings_file.parent.mkdir(parents=True)
            shutil.copy(own, kelvo.settings_file)

        process = kelvo.start()
        if not wait_for(lambda: process.poll() is not None or kelvo.tray_window(0)) or process.poll() is not None:
            sys.exit(f"run: Kelvo does not start (exit status {process.poll()})")
        if not kelvo.window(3):
            kelvo.run()  # set to start hidden: a second launch shows the window
        time.sleep(SAMPLES_SECONDS)

        menu = kelvo.popup(lambda: desktop.click(kelvo.tray_window(), button=3))
        lines = [text for text in menu if ": " in text]
        columns, memory = (line.split() for line in desktop.run("free", "-b").splitlines()[:2])
        free = dict(zip(columns, map(int, memory[1:])))
        print(f"\n  {'Kelvo':<24}free -b")
        for line, name in zip([*lines, "", ""], ["free", "used", "buff/cache", "available", "shared", "total"]):
            print(f"  {line:<24}{name:<12}{free[name]:>16,} bytes = {free[name] / 2**30:6.2f} GB")
        desktop.run("import", "-window", "root", Path(picture).absolute())
        print(f"\nrun: a picture of the desktop is in {picture}")
        desktop.run("xdotool", "key", "Escape")
        return kelvo.stop()


if __name__ == "__main__":
    try:
        sys.exit(main(*sys.argv[1:]))
    except KeyboardInterrupt:
        sys.exit(130)
