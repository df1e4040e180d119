#!/usr/bin/env python3
"""commands_in_docs.py <source folder> <build folder>: do the commands in our pages work, and are the files there?

Looks at each text in backticks and each block of indented commands: presets, targets, scripts and paths must exist. It
also runs the blocks, in a copy of the sources with the program's Data: Ninja only says what it would build, and scripts
that install, check or start something are left out. Prints what is wrong; status 1 if anything is printed.
"""

import json
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

source, build = Path(sys.argv[1]), Path(sys.argv[2])
listed = subprocess.run(["ninja", "-C", build, "-t", "targets", "all"], check=True, capture_output=True, text=True)
targets = set(re.findall(r"^(\w+): ", listed.stdout, re.MULTILINE))
presets = {preset["name"] for preset in json.loads((source / "CMakePresets.json").read_text())["configurePresets"]}
folders = "|".join(entry.name for entry in source.iterdir() if entry.is_dir() and entry.name.isalnum())


def missing_in(command):
    names = set(re.findall(r"(?:--preset |\bbuild/)(\w+)", command)) - presets
    names |= set(re.findall(r"(?:--target |\bbuild/\w+/(?:\w+/)+)(\w+)(?=\s|$)", command)) - targets
    paths = re.findall(rf"(?:^|\s)(?:\./)?((?:run|check|(?:{folders})/[\w./*-]+)(?=\s|$))", command)
    there = lambda path: path.startswith("build/") or any(source.glob(path)) or any(source.glob(path + ".cpp"))
    return names | {path for path in paths if not there(path)}


def run(block, folder):
    """What goes wrong in the block."""
    block = re.sub(r"cmake --build --preset \w+ --target (\w+)|\bbuild/\w+/(\S+)", rf"ninja -C {build} -n \1\2", block)
    block = re.sub(r"^(?:cmake --preset|tools/setup).*", "", block, flags=re.MULTILINE)
    return subprocess.run(["bash", "-ec", block], cwd=folder, capture_output=True, text=True).stderr


wrong = []
with tempfile.TemporaryDirectory() as scratch:
    copy = Path(scratch) / "copy"
    copy.mkdir()
    for folder in ("data", "docs", "tools"):
        shutil.copytree(source / folder, copy / folder)
    (copy / "Data").symlink_to(build / "alembra" / "Data")
    for page in sorted([*source.glob("*.md"), *source.glob("docs/*.md")]):
        text = page.read_text()
        for command in re.findall(r"^    .+$|`[^`\n]+`", text, re.MULTILINE):
            command = command.strip(" `")
            wrong += [f"{page.name}: {command}: there is no {name}" for name in sorted(missing_in(command))]
        for block in re.findall(r"^(?:    (?:cmake|printf|tools|mdb)\b.+\n)+", text, re.MULTILINE):
            failure = run(re.sub(r"^    ", "", block, flags=re.MULTILINE), copy)
            wrong += [f"{page.name}: {block}{failure}"] if failure else []
print("\n".join(wrong))
sys.exit(bool(wrong))
