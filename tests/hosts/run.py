#!/usr/bin/env python3
"""Tries Vantrix in every status area that is installed here, and prints a table of what came of it.

Usage: run.py BINARY SHOTS [HOST…]. Pictures, window trees and the table as it grows go into the folder SHOTS."""

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
LONGEST = 240  # seconds for one host


def contained():
    """Nothing that a host starts outlives it: it runs among processes of its own, and never as root."""
    if os.getuid():
        return ["unshare", "--user", "--map-current-user", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc"]
    return ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc", "setpriv", f"--reuid={NOBODY}",
            f"--regid={NOBODY}", "--clear-groups"]


def drive(host, binary, shots):
    with tempfile.TemporaryDirectory(prefix="vantrix-hosts-") as folder:
        os.chmod(folder, 0o777)
        command = [*contained(), "nice", sys.executable, str(HERE / "drive.py"), host.name, binary, folder, shots]
        try:
            done = subprocess.run(command, stdout=subprocess.PIPE, text=True, timeout=LONGEST, check=False)
            failure = f"ended with status {done.returncode}" if done.returncode else None
        except subprocess.TimeoutExpired as late:
            done, failure = late, f"not done after {LONGEST} s"
        return results(done.stdout or "", failure)


def results(told, failure):
    lines = (told.decode() if isinstance(told, bytes) else told).splitlines()
    failed = [{"check": "drive", "verdict": "RED", "reason": failure}] if failure else []
    return [json.loads(line) for line in lines] + failed


def main():
    binary, shots, *names = sys.argv[1:]
    os.makedirs(shots, exist_ok=True)
    table = Table()
    for host in HOSTS:
        if names and host.name not in names:
            continue
        missing = host.missing()
        if missing:
            table.skip(host.name, f"not installed: {', '.join(missing)}")
        else:
            table.add(host.name, drive(host, os.path.abspath(binary), os.path.abspath(shots)))
        (Path(shots) / "table.md").write_text(table.markdown() + "\n")
    print(table.markdown())
    return 1 if table.red else 0


if __name__ == "__main__":
    sys.exit(main())
