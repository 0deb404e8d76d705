"""A desktop with Vantrix in it, and its neighbours there."""

import json
import os
import random
import socket
import subprocess
import sys
from contextlib import closing, suppress
from pathlib import Path
from types import SimpleNamespace

import dbus

sys.path.append(str(Path(__file__).parent.parent / "hosts"))
from desktop import Desktop, soon  # noqa: E402, F401
from machine import lay  # noqa: E402
from program import Program  # noqa: E402

PATIENCE = 5  # seconds for an answer
SESSION, SYSTEM = "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"
SERVICES = {"watcher": (SESSION, "--session", "org.kde.StatusNotifierWatcher", "/", "played.Watcher"),
            "notifications": (SESSION, "--session", "--template", "notification_daemon"),
            "bluez": (SYSTEM, "--system", "--is-object-manager", "org.bluez", "/", "played.Bluez")}
HOSTS = ("plasmashell", "waybar", "gnome-shell", "xfce4-panel")  # the program treats them by their process's name
MODULES = ["cpu", "memory", "network", "disk", "gpu", "temperature", "battery"]
THIS_MACHINE = SimpleNamespace(options=list)  # Bluetooth belongs to it alone


class Tree:
    """A machine of files, and a copy to put them back from."""

    def __init__(self, folder):
        self.folder, self.whole = folder / "machine", folder / "whole"
        for name in ("ordinary-desktop", "laptop-with-everything"):
            lay(name, self.folder)
        copy(self.folder, self.whole)
        self.files = sorted(path.relative_to(self.whole) for path in self.whole.rglob("*") if path.is_file())
        self.devices = sorted(path.relative_to(self.whole) for path in self.whole.glob("sys/class/*/*"))

    def options(self):
        return ["--proc-root", str(self.folder / "proc"), "--sys-root", str(self.folder / "sys")]

    def put_back(self, name):
        remove(self.folder / name)
        copy(self.whole / name, self.folder / name)


class World(Program):
    def __init__(self, folder, binary, seed, machine):
        super().__init__(Desktop(folder), binary, machine, ASAN_OPTIONS="quarantine_size_mb=4")  # or memory grows long
        self.random, self.stopped, self.log = random.Random(seed), set(), folder / "vantrix.log"
        self.settings = self.desktop.write(".config/vantrix/settings.json", self.some_settings())
        for host in HOSTS:
            os.symlink(sys.executable, folder / host)
        for neighbour in (SESSION, SYSTEM, "trayer"):
            self.begin(neighbour)
        self.start()
        self.process = self.desktop.processes["vantrix"]

    def some_settings(self):
        return json.dumps({
            "menuBarEnabled": ",".join(self.random.sample(MODULES, self.random.randrange(1, 8))),
            "menuBarStyle": self.random.choice(["stacked", "compact", "graph", "none such"]),
            "updateInterval": 0.5, "menuBarColorize": self.random.choice([True, False, "perhaps"]),
            "alertsEnabled": True, "alertDuration": 1, "diskAlertThreshold": 0.01, "criticalThreshold": 0.02})

    def begin(self, neighbour):
        """Starts it, also anew; a bus with the services on it."""
        if neighbour == "trayer":
            self.desktop.start("trayer", "--edge", "top", "--align", "right", "--heighttype", "pixel", "--height", "26")
        elif neighbour in SERVICES:
            self.desktop.start(self.desktop.folder / self.random.choice(HOSTS), "-m", "dbusmock",
                               *SERVICES[neighbour][1:], name=neighbour)
        else:
            self.desktop.start_bus(neighbour)
            for service in [name for name, (bus, *_) in SERVICES.items() if bus == neighbour]:
                self.begin(service)

    def call(self, bus, *message):
        """What is answered, or nothing; whoever calls is gone afterwards."""
        try:
            with closing(dbus.bus.BusConnection(self.desktop.environment[bus])) as connection:
                connection.set_exit_on_disconnect(False)
                return connection.call_blocking(*message[:5], message[5:], timeout=PATIENCE)
        except dbus.DBusException:
            return []

    def ask(self):
        """Whether the program answers: where is its item?"""
        with socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET) as channel:
            channel.settimeout(PATIENCE)
            channel.connect(str(next((self.desktop.folder / "run").glob("vantrix-*.socket"))))
            channel.send(b"tell-status-item")
            channel.recv(256)


def copy(source, path):
    subprocess.run(["cp", "-a", source, path], check=True)


def remove(path):
    """Whoever keeps a file open finds it empty, as that of a device that is gone tells nothing."""
    for file in [path, *path.rglob("*")]:
        with suppress(OSError):
            os.close(os.open(file, os.O_WRONLY | os.O_TRUNC | os.O_NONBLOCK | os.O_NOFOLLOW))
    subprocess.run(["rm", "-rf", path], check=True)
