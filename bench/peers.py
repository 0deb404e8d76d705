#!/usr/bin/env python3
"""What Vantrix costs a minute beside programs of its kind, all in the same minute.

Each has a screen and a session bus of its own and shows about the same, every two seconds. Usage:
bench/peers.py BUILD-FOLDER [SECONDS]
"""

import json
import os
import pathlib
import pty
import subprocess
import sys
import tempfile
import threading
import time

SETTLING = 15  # seconds

BUILD = pathlib.Path(sys.argv[1]).resolve()
SECONDS = int(sys.argv[2]) if len(sys.argv) > 2 else 60
VANTRIX = str(BUILD / "vantrix")

CONKY = """conky.config = { out_to_x = true, own_window = true, update_interval = 2 }
conky.text = [[CPU $cpu% MEM $memperc% NET ${downspeed lo} ${upspeed lo} DISK $diskio]]
"""
BTOP = 'update_ms = 2000\nshown_boxes = "cpu mem net"\n'
WAYBAR = {
    "modules-right": ["cpu", "memory", "network", "disk"],
    **{module: {"interval": 2} for module in ("cpu", "memory", "network", "disk")},
}


class Folder:
    """Settings and sockets of one program."""

    def __init__(self):
        self.holder = tempfile.TemporaryDirectory()
        self.path = pathlib.Path(self.holder.name)
        (self.path / "run").mkdir(mode=0o700)  # apart, or what is written there wakes those who watch their settings

    def environment(self, **more):
        kept = {name: os.environ[name] for name in ("PATH", "LANG") if name in os.environ}
        folder = str(self.path)
        return kept | {"HOME": folder, "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": folder + "/run", "TERM": "xterm"} | more

    def write(self, name, text):
        path = self.path / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return str(path)


class Peer:
    """A program on a screen and a session bus of its own."""

    def __init__(self, title, name, command, folder=None, screen="xvfb-run -a dbus-run-session --", terminal=False):
        self.title, self.name = title, name
        self.folder = folder or Folder()
        streams = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        if terminal:
            self.terminal, inner = pty.openpty()
            threading.Thread(target=self.read_screen, daemon=True).start()
            streams = {"stdin": inner, "stdout": inner, "stderr": inner}
        self.process = subprocess.Popen(
            [*screen.split(), "sh", "-c", command], env=self.folder.environment(), start_new_session=True, **streams)

    def read_screen(self):
        """Or the program would wait for somebody to."""
        while os.read(self.terminal, 65536):
            pass

    def pid(self):
        """Of the first of its name that runs with this one's settings; some start as nobody's child."""
        mark = f"HOME={self.folder.path}".encode()
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if (process / "comm").read_text().strip() == self.name[:15] and mark in (process / "environ").read_bytes():
                    return int(process.name)
            except OSError:
                continue
        return None

    def end(self):
        os.killpg(self.process.pid, 15)


def seconds_of(pid):
    clock = (~pid << 3) | 2  # the kernel's number of a process's clock
    return time.clock_gettime(clock)


def sum_of(path, *names):
    lines = path.read_text().splitlines()
    return sum(int(line.split()[1]) for line in lines if line.startswith(names))


def state(pid):
    tasks = pathlib.Path(f"/proc/{pid}/task")
    switches = sum(
        sum_of(task / "status", "voluntary_ctxt_switches", "nonvoluntary_ctxt_switches") for task in tasks.iterdir())
    return seconds_of(pid), switches


def main():
    conky, btop, waybar = Folder(), Folder(), Folder()
    conky.write("conky.conf", CONKY)
    btop.write("btop/btop.conf", BTOP)
    waybar.write("bar.json", json.dumps(WAYBAR))
    sway = waybar.write("sway.conf", "output * resolution 1280x720\nexec waybar -c $XDG_CONFIG_HOME/bar.json\n")
    nobody = ""
    if os.geteuid() == 0:  # which sway does not run as
        for path in (waybar.path, waybar.path / "run"):
            os.chown(path, 65534, 65534)
        nobody = "setpriv --reuid=65534 --regid=65534 --clear-groups "
    headless = nobody + "env WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 dbus-run-session --"
    tray = "trayer --width 30 & sleep 2; exec "
    host = f"exec {BUILD}/bench/idle_bench {VANTRIX} {SETTLING + SECONDS + 60}"
    peers = [
        Peer("vantrix in an X11 tray", "vantrix", tray + VANTRIX),
        Peer("vantrix beside waybar (played)", "vantrix", host + " waybar"),
        Peer("vantrix beside plasmashell (played)", "vantrix", host + " plasmashell"),
        Peer("vantrix --print json", "vantrix", f"exec {VANTRIX} --print json", screen="env DBUS_SESSION_BUS_ADDRESS=disabled:"),
        Peer("bare Qt icon in an X11 tray", "bare_tray_icon", f"{tray}{BUILD}/bench/bare_tray_icon"),
        Peer("conky", "conky", f"exec conky -c {conky.path}/conky.conf", conky),
        Peer("gkrellm (at its own pace)", "gkrellm", "exec gkrellm"),
        Peer("btop", "btop", "stty rows 50 cols 150; exec btop", btop, screen="env LC_ALL=C.UTF-8", terminal=True),
        Peer("waybar under sway", "waybar", f"exec sway -c {sway}", waybar, screen=headless),
    ]
    try:
        time.sleep(SETTLING)
        pids = {peer: peer.pid() for peer in peers}
        before = {peer: state(pid) for peer, pid in pids.items() if pid}
        time.sleep(SECONDS)
        print(f"{'':36} {'CPU ms/min':>10} {'switches/min':>12} {'USS MiB':>8} {'threads':>7}")
        for peer, pid in pids.items():
            if pid is None:
                print(f"{peer.title:36} did not start")
                continue
            after = state(pid)
            cpu, switches = (60 / SECONDS * (b - a) for a, b in zip(before[peer], after))
            private = sum_of(pathlib.Path(f"/proc/{pid}/smaps_rollup"), "Private_") / 1024
            threads = len(list(pathlib.Path(f"/proc/{pid}/task").iterdir()))
            print(f"{peer.title:36} {cpu * 1000:10.1f} {switches:12.0f} {private:8.1f} {threads:7}")
    finally:
        for peer in peers:
            peer.end()


main()
