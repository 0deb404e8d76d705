"""A machine whose readings stand still while its counters run: the same row in every picture."""

import shutil
import subprocess
import threading
import time
from pathlib import Path

FIXTURES = Path(__file__).parent.parent / "fixtures"


def lay(name, folder):
    """Copies a fixture machine over what is in `folder`, as tests/fakes/fixture_machine.h does."""
    machine = FIXTURES / name
    for base in lines(machine / "bases"):
        lay(base, folder)
    subprocess.run(["rm", "-rf", *(folder / path for path in lines(machine / "absent"))], check=True)
    shutil.copytree(machine, folder, symlinks=True, dirs_exist_ok=True,
                    ignore=lambda at, names: {"bases", "absent"} & set(names) if Path(at) == machine else set())


def lines(path):
    return path.read_text().splitlines() if path.exists() else []


class Machine:
    def __init__(self, folder):
        self.folder = folder
        for name in ("ordinary-desktop", "laptop-with-everything"):
            lay(name, folder)
        self.cores = [line.split()[0] for line in lines(folder / "proc/stat") if line.startswith("cpu")]
        threading.Thread(target=self._run, daemon=True).start()

    def options(self):
        return ["--proc-root", str(self.folder / "proc"), "--sys-root", str(self.folder / "sys")]

    def _run(self):
        """42 % busy, for ever."""
        passed = 1
        while True:
            counters = f"{42 * passed} 0 0 {58 * passed} 0 0 0 0 0 0"
            text = "".join(f"{core} {counters}\n" for core in self.cores)
            with open(self.folder / "proc/stat", "r+", encoding="ascii") as file:  # in place: the program keeps it open
                file.write(text)
            passed += 1
            time.sleep(0.05)
