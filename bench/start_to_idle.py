#!/usr/bin/env python3
"""Measures the start of the program until it is idle against that of a bare window, from outside.

A run is idle when its main window is visible and it has used no processor for QUIET seconds; its time ends where that
quiet began. The two start in turn, so that other load on the machine affects both. Peak memory is the peak resident
set. Only the ratios of the middle halves are judged; absolute values depend on the machine.
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
NOISE = 200_000  # ns of processor time in one poll that still counts as quiet

# Wall time, processor time, peak memory. Below that nobody feels a start, so clarity of the code goes first.
TARGETS = (1.2, 1.4, 1.25)

TIP_AT_START = 56  # slot of the options file


def fail(message):
    print(f"start_to_idle: {message}", file=sys.stderr)
    sys.exit(2)


def processor_time(pid):
    """Nanoseconds that a process has run, with the threads that have ended."""
    return time.clock_gettime_ns(~pid << 3 | 2)  # the clock that clock_getcpuclockid() gives for it


def peak_memory(pid):
    """KiB"""
    for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1])
    raise RuntimeError("the kernel reports no peak memory")


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
                fail(f"{command[0]} ended by itself with status {process.returncode}")
            now, used_now = time.monotonic(), processor_time(process.pid)
            if used_now - used > NOISE:
                used, quiet_since = used_now, now
            elif now - quiet_since > QUIET:
                if window_on_show(process.pid, title):
                    return quiet_since - begin, used / 1e9, peak_memory(process.pid) / 1024
                quiet_since = time.monotonic()
        fail(f"{command[0]} showed no window called {title} within {LIMIT} s")
    finally:
        process.kill()
        process.wait()


def without_tip(folder, copy):
    """Copies the program folder and switches the tip window off. Returns the executable."""
    shutil.copytree(folder, copy)
    options = copy / "options_uk.ini"
    lines = options.read_bytes().split(b"\r\n")
    lines[TIP_AT_START] = b"0"
    options.write_bytes(b"\r\n".join(lines))
    return copy / "Alembra_uk"


def middle(values):
    """Mean of the middle half. A median jumps on machines with two speeds, as virtual ones have."""
    quarter = len(values) // 4
    return statistics.mean(sorted(values)[quarter:len(values) - quarter])


def report(bare, program):
    """Prints a line of the table for each figure, like bench/measure.cpp. True if all keep their targets."""
    kept = True
    for index, (name, unit) in enumerate([("wall", "s"), ("processor", "s"), ("peak memory", "MiB")]):
        of_bare = [run[index] for run in bare]
        of_program = [run[index] for run in program]
        floor, measured = middle(of_bare), middle(of_program)
        ratios = statistics.quantiles((p / b for b, p in zip(of_bare, of_program)), n=4)
        missed = measured / floor > TARGETS[index]
        kept = kept and not missed
        print(f"{'start to idle, ' + name + ' / bare window':<52}{unit:<4}{floor:>10.3f}{measured:>10.3f}"
              f"{measured / floor:>8.2f}{TARGETS[index]:>8.2f}   {ratios[0]:.2f} to {ratios[2]:.2f}"
              f"{'   MISSED' if missed else ''}", flush=True)
    return kept


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bare", type=pathlib.Path, help="the bare window's executable")
    parser.add_argument("folder", type=pathlib.Path, help="the assembled program folder")
    parser.add_argument("--runs", type=int, default=51, help="measured starts of each, at least 7")
    arguments = parser.parse_args()
    if arguments.runs < 7:
        parser.error("at least 7 runs are needed")

    bare, program = [], []
    with tempfile.TemporaryDirectory() as scratch:
        executable = without_tip(arguments.folder, pathlib.Path(scratch) / "alembra")
        for run in range(arguments.runs + 1):
            of_bare = measure([os.fspath(arguments.bare.resolve())], "^Bare window$")
            of_program = measure([os.fspath(executable)], "^Alembra")
            if run > 0:  # the first start of each only warms the caches
                bare.append(of_bare)
                program.append(of_program)
    sys.exit(0 if report(bare, program) else 1)


if __name__ == "__main__":
    main()
