"""The released build with all that is measured, and the way to what drives it."""
import os
import subprocess
import sys
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
PROGRAMS = "kelvo memfree settings_tool kelvo_benchmarks".split()


def directory(ready=None):
    """Where it is: in the directory given, if it is ready, or built now. From here on tests/support can be imported."""
    if not ready:
        subprocess.run([SOURCE / "scripts/setup", "bench"], check=True)
        subprocess.run(["cmake", "--preset", "release"], cwd=SOURCE, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", "--preset", "release", "--target", *PROGRAMS], cwd=SOURCE, check=True)
        ready = SOURCE / "build/release"
    os.environ["SETTINGS_TOOL"] = str(next(ready.resolve().rglob("settings_tool")))
    sys.path.insert(0, str(SOURCE / "tests/support"))
    return ready.resolve()
