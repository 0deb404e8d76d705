#!/usr/bin/env python3
"""Tries Vantrix in every status area that is installed here, and prints a table of what came of it.

Usage: run.py BINARY SHOTS [HOST…]. Pictures, window trees and the table as it grows go into the folder SHOTS. The exit
status is 1 where something is red, or a host is missing that was asked for."""

import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

from hosts import HOSTS
from table import Table

HERE = Path(__file__).parent
NOBODY = 65534
LONGEST = 600  # seconds for one host
FOLDER = object()  # stands for the folder in a script's arguments


def contained():
    """Nothing that a host starts outlives it: it runs among processes of its own, and never as root."""
    if os.getuid():
        return ["unshare", "--user", "--map-current-user", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc"]
    # The shell stays: a process that gives up root outlives the one that it was to end with.
    return ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc", "sh", "-c",
            f'setpriv --reuid={NOBODY} --regid={NOBODY} --clear-groups "$@"; exit $?', "sh"]


def contained_run(script, *arguments):
    """What the script says, and why it failed, if it did. It gets a folder that is gone afterwards."""
    with tempfile.TemporaryDirectory(prefix="vantrix-hosts-") as folder:
        os.chmod(folder, 0o777)
        command = [*contained(), "nice", sys.executable, str(HERE / script),
                   *(folder if argument is FOLDER else argument for argument in arguments)]
        try:
            done = subprocess.run(command, stdout=subprocess.PIPE, text=True, timeout=LONGEST, check=False)
            return done.stdout, f"ended with status {done.returncode}" if done.returncode else None
        except subprocess.TimeoutExpired as late:
            return (late.stdout or b"").decode(), f"not done after {LONGEST} s"


def drive(host, binary, shots):
    told, failure = contained_run("drive.py", host.name, binary, FOLDER, shots)
    results = [json.loads(line) for line in told.splitlines()]
    return results + ([{"check": "drive", "verdict": "RED", "reason": failure}] if failure else [])


def main():
    binary, shots, *names = sys.argv[1:]
    binary, shots = os.path.abspath(binary), os.path.abspath(shots)
    os.makedirs(shots, exist_ok=True)
    if not os.getuid():
        os.chmod(shots, 0o777)
    if unknown := set(names) - {host.name for host in HOSTS}:
        sys.exit(f"hosts: no such host: {', '.join(sorted(unknown))}")
    if failure := contained_run("reference.py", binary, FOLDER, shots)[1]:
        sys.exit(f"hosts: the row's own picture: {failure}")
    table = Table()
    for host in HOSTS:
        if names and host.name not in names:
            continue
        if missing := host.missing():
            table.skip(host.name, f"not installed: {', '.join(missing)}", asked=bool(names))
        else:
            table.add(host.name, drive(host, binary, shots))
        (Path(shots) / "table.md").write_text(table.markdown() + "\n")
    print(table.markdown())
    return 1 if table.red else 0


if __name__ == "__main__":
    sys.exit(main())
