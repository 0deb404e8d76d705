#!/usr/bin/env python3
"""Counts what the program's work costs and fails above the budgets of bench/budgets.

Instructions, allocations and system calls are counted, not timed, so that a busy machine counts alike. Usage:
scripts/check_budgets.py BUILD-FOLDER [KIND...]
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time

SOURCE = pathlib.Path(__file__).resolve().parent.parent
BUDGETS = SOURCE / "bench/budgets"
FEW, MANY = 20, 120  # how often each work is done; the difference leaves out what is done once
ALLOCATORS = {"malloc", "calloc", "realloc", "aligned_alloc", "posix_memalign", "memalign"}
SETTLING, WINDOW = 25, 60  # seconds of the idle program: fonts and first pictures, slowly, and a minute


def budgets():
    rows = {}
    for line in BUDGETS.read_text().splitlines():
        words = line.split("#")[0].split()
        if words:
            kind, counter, limit = words
            rows.setdefault(kind, {})[counter] = float(limit.replace("_", ""))
    return rows


def environment(folder):
    """Without a desktop's settings, services or language."""
    runtime = pathlib.Path(folder) / "run"  # apart, or what is written there wakes who watches the settings
    runtime.mkdir(mode=0o700, exist_ok=True)
    kept = {name: os.environ[name] for name in ("PATH", "HOME") if name in os.environ}
    return kept | {"LC_ALL": "C.UTF-8", "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": str(runtime),
                   "DBUS_SESSION_BUS_ADDRESS": "disabled:", "QT_HASH_SEED": "0"}


def counted(profile):
    """Instructions and calls of allocators of a profile that callgrind wrote."""
    names, instructions, allocations, called = {}, 0, 0, None
    for line in pathlib.Path(profile).read_text(errors="replace").splitlines():
        if found := re.match(r"(c?fn)=\((\d+)\)(?: (.*))?", line):
            role, number, name = found.groups()
            if name:
                names[number] = name.split("'")[0]
            if role == "cfn":
                called = names[number]
        elif called and line.startswith("calls="):
            if called in ALLOCATORS:
                allocations += int(line[6:].split()[0])
            called = None
        elif line.startswith("totals:") or line.startswith("summary:"):
            instructions = max(instructions, int(line.split()[1]))
    return {"instructions": instructions, "allocations": allocations}


def callgrind(output):
    return ["valgrind", "--tool=callgrind", f"--callgrind-out-file={output}"]


def run(command, folder):
    done = subprocess.run(command, env=environment(folder), capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"check_budgets: {' '.join(command)}: {done.stderr[-2000:]}")
    return done


def work_once(build, kind, count):
    with tempfile.TemporaryDirectory() as folder:
        work = [str(build / "bench/budget_work"), kind, str(count)]
        profile = folder + "/profile"
        run(callgrind(profile) + work, folder)
        counts = counted(profile)
        run(["strace", "-f", "-qq", "-o", folder + "/calls"] + work, folder)
        lines = pathlib.Path(folder + "/calls").read_text(errors="replace").splitlines()
        counts["system-calls"] = sum("resumed>" not in line and "(" in line for line in lines)
        return counts


def work(build, kind):
    few, many = work_once(build, kind, FEW), work_once(build, kind, MANY)
    return {counter: (many[counter] - few[counter]) / (MANY - FEW) for counter in few}


class ChangingMachine:
    """A desktop computer whose processor is busy for another time in every second."""

    def __init__(self, folder):
        self.roots = pathlib.Path(folder) / "machine"
        shutil.copytree(SOURCE / "tests/fixtures/ordinary-desktop", self.roots)
        self.busy = self.idle = 0
        self.ended = threading.Event()
        self.thread = threading.Thread(target=self.live)

    def live(self):
        path = self.roots / "proc/stat"
        rest = path.read_text().split("\n", 2)[2]
        second = 0
        while True:
            ticks = f"{self.busy:08} 0 0 {self.idle:08} 0 0 0 0 0 0\n"
            if second == 0:
                path.write_text(f"cpu  {ticks}cpu0 {ticks}{rest}")
            else:
                self.rewrite(path, ticks)
            if self.ended.wait(1.0):
                return
            second += 1
            self.busy += 10 + second * 7 % 40
            self.idle += 90 - second * 7 % 40

    @staticmethod
    def rewrite(path, ticks):
        """In place and at once, as the kernel's own file changes."""
        with open(path, "r+b") as file:
            os.pwrite(file.fileno(), f"cpu  {ticks}cpu0 {ticks}".encode(), 0)

    def __enter__(self):
        self.thread.start()
        return self

    def __exit__(self, *_):
        self.ended.set()
        self.thread.join()


def control(folder, process, *options):
    run(["callgrind_control", *options, str(process)], folder)


def idle(build, host):
    """A minute of the whole program beside a played host; change signals, and the instructions of all its threads."""
    with tempfile.TemporaryDirectory() as folder, ChangingMachine(folder) as machine:
        profile, started = folder + "/profile", pathlib.Path(folder) / "process"
        wrapper = pathlib.Path(folder) / "program"
        program = callgrind(profile) + ["--instr-atstart=no", str(build / "vantrix")]
        program += ["--proc-root", str(machine.roots / "proc"), "--sys-root", str(machine.roots / "sys")]
        wrapper.write_text(f"#!/bin/sh\necho $$ >{started}\nexec {' '.join(program)}\n")
        wrapper.chmod(0o700)
        bench = subprocess.Popen(
            ["xvfb-run", "-a", "dbus-run-session", "--", str(build / "bench/idle_bench"), str(wrapper),
             str(SETTLING + WINDOW), host], env=environment(folder), stdout=subprocess.PIPE, text=True)
        time.sleep(SETTLING)
        process = int(started.read_text())
        control(folder, process, "-i", "on")
        time.sleep(WINDOW)
        control(folder, process, "-i", "off")
        printed = bench.communicate()[0]
        signals = float(re.search(r"change signals a minute +([\d.]+)", printed).group(1))
        return counted(profile) | {"signals": signals}


def measured(build, kind):
    if kind.startswith("idle-"):
        return idle(build, kind.removeprefix("idle-"))
    return work(build, kind)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    rows = budgets()
    kinds = sys.argv[2:] or list(rows)
    if not kinds or not set(kinds) <= set(rows):
        sys.exit(f"check_budgets: there are budgets for {', '.join(rows) or 'nothing'}")
    isKept = True
    for kind in kinds:
        limits = rows[kind]
        counts = measured(build, kind)
        for counter, limit in limits.items():
            verdict = "" if counts[counter] <= limit else "  ABOVE ITS BUDGET"
            isKept = isKept and not verdict
            print(f"{kind:20} {counter:14} {counts[counter]:14,.1f} of {limit:14,.0f}{verdict}", flush=True)
    if not isKept:
        sys.exit("check_budgets: something costs more than its budget")
    print("budgets: kept")


main()
