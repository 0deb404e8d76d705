#!/usr/bin/python3
"""Lets everything around the program go wrong for a long time, and tells whether it lived, answered and did not grow.

Usage: soak.py BINARY [MINUTES [SEED]]. One program watches a machine of files, another one this machine, each on a
desktop of its own. The exit status is 1 where something is red."""

import os
import signal
import subprocess
import sys
import time
from pathlib import Path

STEP = 0.5  # seconds
LONGEST = 12  # steps that a trouble goes on
WORDS = ("Sanitizer", "runtime error:", "terminate called")
# In processes and file systems of its own, which end with it; a superuser's right to read everything would spoil it.
FOLDER = Path("/mnt")
MOUNTS = """mount -t tmpfs soak /mnt && mkdir -p /mnt/files/home /mnt/this/home &&
mount -t tmpfs -o size=4m soak /mnt/files/home && mount -t tmpfs -o size=4m soak /mnt/this/home"""
OWN = ["setpriv", "--pdeathsig", "KILL", "unshare", *(["--map-root-user"] if os.getuid() else []), "--mount", "--pid",
       "--fork", "--kill-child", "--mount-proc", "sh", "-c", MOUNTS + ' && exec setpriv --bounding-set=-all "$@"', "sh",
       sys.executable, __file__, "--in"]


class Soak:
    """A world, what goes on in it, and what is wrong with its program."""

    def __init__(self, world, kinds):
        self.world, self.kinds, self.measure = world, kinds, Measure(world.process.pid)
        self.going, self.past, self.faults = {}, [], []

    def step(self, number):
        """False once something is wrong."""
        try:
            for kind in self.kinds:
                self._go_on(kind, number)
            if (status := self.world.process.poll()) is not None:
                self.faults.append(f"ended with status {status}")
            elif self.world.process not in self.world.stopped:
                self.world.ask()
                self.measure.take(time.monotonic())
        except (OSError, subprocess.SubprocessError) as silence:
            self.faults.append(f"no answer: {silence!r}")
        return not self.faults

    def _go_on(self, kind, number):
        end, going = self.going.get(kind, (number, None))
        if going and number >= end:
            next(self.going.pop(kind)[1], None)
        elif not going and self.world.random.random() < 0.4:
            trouble = self.world.random.choice(kind)
            self.past.append(f"{number} {getattr(trouble, '__name__', trouble)}")
            if going := trouble(self.world):
                next(going)
                self.going[kind] = (number + self.world.random.randrange(1, LONGEST), going)

    def finish(self):
        for _, going in self.going.values():
            next(going, None)
        if not self.faults:
            sanitized = b"__asan_init" in Path(self.world.binary).read_bytes()  # keeps what is freed, tells of leaks
            self.faults += [fault for fault in self.measure.growth() if not (sanitized and "KiB" in fault)]
            self.world.process.terminate()
            soon(lambda: self.world.process.poll() is not None, 60)  # where leaks are looked for, that takes its time
            if self.world.process.returncode != 0:
                self.faults.append(f"ended with status {self.world.process.returncode} when asked to")
        told = self.world.log.read_text(errors="replace")
        self.faults += [line for line in told.splitlines() if any(word in line for word in WORDS)]
        print(f"== {self.world.log.parent.name}: {'; '.join(self.faults) or 'ok'}\n{self.measure.table()}")
        if self.faults:
            print("Last happened:", ", ".join(self.past[-30:]), "It said:", told[-6000:], sep="\n")
        return not self.faults


def main():
    binary, (minutes, seed) = os.path.abspath(sys.argv[2]), (sys.argv[3:] + ["10", "1"])[:2]
    signal.signal(signal.SIGIO, signal.SIG_IGN)  # tells of those who wait for a leased file
    soaks = [Soak(World(FOLDER / "files", binary, seed, Tree(FOLDER)), (MACHINE, *KINDS)),
             Soak(World(FOLDER / "this", binary, seed, THIS_MACHINE), KINDS)]
    time.sleep(5)
    number, begin = 0, time.monotonic()
    while time.monotonic() < begin + 60 * float(minutes) and all([soak.step(number) for soak in soaks]):
        number += 1
        time.sleep(STEP)
    print(f"soak: {number} steps, seed {seed}")
    return 0 if all([soak.finish() for soak in soaks]) else 1


if __name__ == "__main__":
    if sys.argv[1:2] != ["--in"]:
        sys.exit(subprocess.call(OWN + sys.argv[1:]))
    from measure import Measure
    from troubles import KINDS, MACHINE
    from world import THIS_MACHINE, Tree, World, soon

    sys.exit(main())
