#!/usr/bin/env python3
"""Start to idle of the program against a bare window, seen from outside: neither knows that it is measured.

A run is idle when its main window is on show and it has used no processor for QUIET seconds; its time ends where that
quiet began. The two start in turn, so that whatever else the machine does meets both. Peak memory is the peak resident
set. What counts are the ratios of the medians; the absolute values say more about the machine.
"""

import argparse
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

QUIET = 0.2  # seconds
POLL = 0.004  # seconds
LIMIT = 60  # seconds
NOISE = 200_000  # ns of processor time in one poll that still count as quiet

TIP_AT_START = 56  # slot of the options file


def processor_time(pid):
    """Nanoseconds that the threads of a process have run."""
    total = 0
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        total += int((task / "schedstat").read_text().split()[0])
    return total


def peak_memory(pid):
    """KiB"""
    for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1])
    raise RuntimeError("the kernel tells no peak memory")


def window_on_show(pid, title):
    search = ["xdotool", "search", "--all", "--onlyvisible", "--pid", str(pid), "--name", title]
    return subprocess.run(search, capture_output=True, check=False).stdout.strip() != b""


def measure(command, title):
    """(wall seconds, processor seconds, peak MiB) from the start of the command to idle."""
    begin = time.monotonic()
    process = subprocess.Popen(command)
    try:
        used, quiet_since = 0, begin
        while time.monotonic() - begin < LIMIT:
            time.sleep(POLL)
            if process.poll() is not None:
                sys.exit(f"{command[0]} ended by itself with status {process.returncode}")
            now, used_now = time.monotonic(), processor_time(process.pid)
            if used_now - used > NOISE:
                used, quiet_since = used_now, now
            elif now - quiet_since > QUIET:
                if window_on_show(process.pid, title):
                    return quiet_since - begin, used / 1e9, peak_memory(process.pid) / 1024
                quiet_since = time.monotonic()
        sys.exit(f"{command[0]} showed no window called {title} within {LIMIT} s")
    finally:
        process.kill()
        process.wait()


def without_tip(folder, copy):
    """A copy of the program folder that opens no tip window; gives its executable."""
    shutil.copytree(folder, copy)
    options = copy / "options_uk.ini"
    lines = options.read_bytes().split(b"\r\n")
    lines[TIP_AT_START] = b"0"
    options.write_bytes(b"\r\n".join(lines))
    return copy / "Alembra_uk"


def report(bare, program):
    columns = [("wall", "s"), ("processor", "s"), ("peak memory", "MiB")]
    print(f"{'start to idle':<22}{'bare':>10}{'program':>10}{'ratio':>8}   spread of the ratio, run by run")
    for index, (name, unit) in enumerate(columns):
        of_bare = [run[index] for run in bare]
        of_program = [run[index] for run in program]
        middle = statistics.median(of_bare), statistics.median(of_program)
        ratios = sorted(p / b for b, p in zip(of_bare, of_program))
        print(f"{name + ' (' + unit + ')':<22}{middle[0]:>10.3f}{middle[1]:>10.3f}{middle[1] / middle[0]:>8.2f}"
              f"   {ratios[0]:.2f} to {ratios[-1]:.2f}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bare", type=pathlib.Path, help="the bare window's executable")
    parser.add_argument("folder", type=pathlib.Path, help="the assembled program folder")
    parser.add_argument("--runs", type=int, default=9, help="measured starts of each, at least 7")
    arguments = parser.parse_args()
    if arguments.runs < 7:
        parser.error("fewer than 7 runs say nothing")

    bare, program = [], []
    with tempfile.TemporaryDirectory() as scratch:
        executable = without_tip(arguments.folder, pathlib.Path(scratch) / "alembra")
        for run in range(arguments.runs + 1):
            of_bare = measure([os.fspath(arguments.bare.resolve())], "^Bare window$")
            of_program = measure([os.fspath(executable)], "^Alembra")
            if run > 0:  # the first start of each only warms the caches
                bare.append(of_bare)
                program.append(of_program)
    report(bare, program)


if __name__ == "__main__":
    main()
