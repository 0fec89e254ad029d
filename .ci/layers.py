"""Checks the includes between folders, and prints them: layers.py"""
import re
import sys
from pathlib import Path

MAY_INCLUDE = {
    "app": {"mainwindow", "dialogs", "figures", "platform"},
    "mainwindow": {"dialogs", "freeing", "figures", "platform"},
    "dialogs": {"platform"},
    "freeing": {"platform"},
    "figures": set(),
    "memfree": {"platform"},
    "platform": set(),
}
# The sampler passes every sample to the controller: the one arrow back.
EXCEPTION = ("mainwindow/MainDialogSampling.cpp", "app/MyApp.h")

arrows, faults = set(), []
for folder in MAY_INCLUDE:
    for path in sorted(Path(folder).rglob("*.[ch]*")):
        for included in re.findall(r'^#include "((?:\w+/)+\w+\.h)"$', path.read_text(), re.MULTILINE):
            target = included.split("/")[0]
            if target == folder or (str(path), included) == EXCEPTION:
                continue
            arrows.add((folder, target))
            if target not in MAY_INCLUDE[folder]:
                faults.append(f"{path}: {folder}/ may not include {included}")

for folder in MAY_INCLUDE:
    print(f"{folder} -> {', '.join(sorted(target for source, target in arrows if source == folder)) or '-'}")
print("\n".join(faults) or "layers: kept")
sys.exit(1 if faults else 0)
