"""Keeps the layers and rooms apart: layers.py COMPILE_COMMANDS

- what is compiled into the core sees no GUI module of Qt;
- outside app/ (and the tests) only the sampler knows the controller;
- a header includes another room's header only where it needs more than the name of its class.
"""
import json
import re
import sys
from pathlib import Path

ROOMS = "app compat dialogs freeing mainwindow memfree platform stats".split()
SAMPLER = Path("stats/UpdateStats.cpp")


def faults(commands):
    core = [entry for entry in commands if "kelvo_core.dir" in entry["command"]]
    if not core:
        yield "no file of the core is compiled at all"
    for entry in core:
        if re.search(r"Qt(Gui|Widgets)\b", entry["command"]):
            yield f"{entry['file']}: is in the core, but compiled with Qt's GUI modules"

    for path in (path for room in ROOMS for path in sorted(Path(room).glob("*.[ch]*"))):
        text = path.read_text()
        for room, included in re.findall(r'^#include "(\w+)/(\w+)\.h"$', text, re.MULTILINE):
            if room == "app" and path.parts[0] != "app" and path != SAMPLER:
                yield f"{path}: includes {room}/{included}.h, which only {SAMPLER} may"
            # Pointers and references to the included class are all that is there: its name would do.
            uses = re.findall(rf"\b{included}\b(?!\.h\")(\s*[*&])?", text)
            if path.suffix == ".h" and room != path.parts[0] and uses and all(uses):
                yield f"{path}: a forward declaration serves instead of {room}/{included}.h"


found = list(faults(json.loads(Path(sys.argv[1]).read_text())))
print("\n".join(found) or "layers: kept")
sys.exit(1 if found else 0)
