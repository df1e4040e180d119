#!/usr/bin/env python3
"""commands_in_docs.py <source folder> <build folder>: do the commands in our pages name what is there?

Looks at each indented line and each text in backticks: presets, targets, scripts, and programs in the build folder.
Prints what does not exist; status 1 if anything is printed.
"""

import json
import re
import subprocess
import sys
from pathlib import Path

source, build = Path(sys.argv[1]), sys.argv[2]
listed = subprocess.run(["ninja", "-C", build, "-t", "targets", "all"], check=True, capture_output=True, text=True)
targets = set(re.findall(r"^(\w+): ", listed.stdout, re.MULTILINE))
presets = {preset["name"] for preset in json.loads((source / "CMakePresets.json").read_text())["configurePresets"]}

missing = []
for page in sorted([*source.glob("*.md"), *source.glob("docs/*.md")]):
    for command in re.findall(r"^    .+$|`[^`\n]+`", page.read_text(), re.MULTILINE):
        command = command.strip(" `")
        names = set(re.findall(r"(?:--preset |\bbuild/)(\w+)", command)) - presets
        names |= set(re.findall(r"(?:--target |\bbuild/\w+/(?:\w+/)+)(\w+)(?=\s|$)", command)) - targets
        scripts = re.findall(r"(?:^|\s)(?:\./)?((?:run|check|(?:tools|packaging|bench)/[\w-]+)(?=\s|$))", command)
        names |= {script for script in scripts if not (source / script).exists()}
        missing += [f"{page.relative_to(source)}: {command}: there is no {name}" for name in sorted(names)]
print("\n".join(missing))
sys.exit(bool(missing))
