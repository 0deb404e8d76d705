"""A desktop session of its own: folders, X server and bus. Whoever starts it ends all its processes."""

import os
import subprocess
import time
from pathlib import Path

from screen import Screen

FOLDERS = {"HOME": "home", "XDG_CONFIG_HOME": "home/.config", "XDG_CACHE_HOME": "home/.cache",
           "XDG_DATA_HOME": "home/.local/share", "XDG_STATE_HOME": "home/.local/state", "XDG_RUNTIME_DIR": "run",
           "TMPDIR": "tmp"}

PATH = os.environ["PATH"] + ":/usr/libexec"  # where some have the programs of their sessions

X_SOCKETS = "/tmp/.X11-unix"
WALLPAPER = 0x3A6EA5  # neither dark nor light, as behind panels that let it through


class Desktop:
    def __init__(self, folder, size="1280x800"):
        self.folder = Path(folder)
        self.processes = {}
        self.environment = {"PATH": PATH, "LANG": "C.UTF-8", "NO_AT_BRIDGE": "1",
                            "LIBGL_ALWAYS_SOFTWARE": "1", "QT_QUICK_BACKEND": "software"}
        for variable, name in FOLDERS.items():
            (self.folder / name).mkdir(parents=True, mode=0o700, exist_ok=True)
            self.environment[variable] = str(self.folder / name)
        self._start_display(size)
        self.start_bus("DBUS_SESSION_BUS_ADDRESS")

    def enter(self, *command, socket, **environment):
        """Starts a Wayland session within the X screen, and goes on in there, where programs have another X screen."""
        before = set(os.listdir(X_SOCKETS))
        self.start(*command, **environment)
        name = self.wait("XWayland", lambda: min(set(os.listdir(X_SOCKETS)) - before, default=None), 60)
        self.environment |= {"DISPLAY": name.replace("X", ":"), "WAYLAND_DISPLAY": socket}
        for authority in Path(self.environment["XDG_RUNTIME_DIR"]).glob("*auth*"):
            os.environ["XAUTHORITY"] = self.environment["XAUTHORITY"] = str(authority)
        self.inner = Screen(self.environment["DISPLAY"])

    def start_system_bus(self, template):
        """A system bus of its own, on which one service is played."""
        self.start_bus("DBUS_SYSTEM_BUS_ADDRESS")
        self.start("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", template)

    def _start_display(self, size):
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                   pass_fds=[writer])
        self.environment["DISPLAY"] = ":" + told(reader, writer)
        # What a person sees and touches, and where the program's windows are: the same but under Wayland.
        self.screen = self.inner = Screen(self.environment["DISPLAY"])
        self.screen.fill(WALLPAPER)

    def start_bus(self, variable):
        """Also anew, at the same address."""
        self.environment[variable] = f"unix:path={self.folder}/{variable}"
        reader, writer = os.pipe()
        self.start("dbus-daemon", "--session", "--nofork", f"--address={self.environment[variable]}",
                   f"--print-address={writer}", name=variable, pass_fds=[writer])
        told(reader, writer)

    def write(self, name, text):
        """A file in the home folder."""
        path = Path(self.environment["HOME"]) / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return path

    def start(self, *command, name=None, pass_fds=(), **environment):
        """A program that goes on; what it says goes into a log beside the folders."""
        name = name or Path(command[0]).name
        with open(self.folder / f"{name}.log", "ab") as log:
            process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log, pass_fds=pass_fds,
                                       env=self.environment | environment, cwd=self.folder)
        self.processes[name] = process
        return process

    def run(self, *command):
        """A program that ends soon."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=20, check=False)
        if done.returncode:
            raise RuntimeError(f"{' '.join(command)}: {done.stderr.strip()}")
        return done.stdout

    def end(self, name):
        process = self.processes.pop(name)
        process.terminate()
        try:
            process.wait(8)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()

    def wait(self, what, condition, seconds=45):
        """Waits for a condition, which it returns."""
        answer = soon(condition, seconds)
        if not answer:
            raise RuntimeError(f"no {what} within {seconds} s")
        return answer


def told(reader, writer):
    """The line that a program writes into a pipe once it is ready."""
    os.close(writer)
    with os.fdopen(reader) as pipe:
        return pipe.readline().strip()


def soon(condition, seconds):
    """What `condition` says as soon as that is true, or what it says in the end."""
    end = time.monotonic() + seconds
    while not (answer := condition()) and time.monotonic() < end:
        time.sleep(0.05)
    return answer
