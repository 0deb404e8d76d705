#!/usr/bin/env python3
"""Puts loads of known size on this machine and prints what the program measures beside them.

Wants a quiet machine, stress-ng, and, for the network, root. `make ground-truth` runs it. Usage: ground_truth.py PROGRAM
"""

import contextlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

MIB = 1 << 20
FRAME = 1400 + 8 + 20 + 14  # bytes of a datagram's payload and of the headers that the interface counts along with it


def told(work, seconds, command, meter=time.monotonic):
    """The lines that the program prints before and after `work`, and how far `meter` went between them."""
    arguments = ["--print", "json", "--interval", str(seconds), "--count", "2"]
    with subprocess.Popen(command + arguments, stdout=subprocess.PIPE) as program:
        first = json.loads(program.stdout.readline())
        start = meter()
        work()
        second = json.loads(program.stdout.readline())
        return first, second, meter() - start


def show(what, measured, true, form):
    difference = f"{measured - true:+8.2f} points" if "%" in form else f"{(measured - true) / true * 100:+8.3f} %"
    print(f"{what:<32} {form.format(measured):>14} {form.format(true):>14} {difference}", flush=True)


@contextlib.contextmanager
def stress(*arguments):
    with subprocess.Popen(["stress-ng", "--quiet", *arguments]) as load:
        try:
            yield load.pid
        finally:
            load.terminate()


def workers_of(pid):
    return pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split()


def processor_seconds(pids):
    return sum(int(pathlib.Path(f"/proc/{pid}/schedstat").read_text().split()[0]) for pid in pids) / 1e9


def processor(command):
    core = os.cpu_count() - 1
    with stress("--cpu", "1", "--cpu-load", "50", "--taskset", str(core)) as pid:
        time.sleep(2)  # until it has found its pace
        workers = workers_of(pid)
        _, line, used = told(lambda: None, 20, command, lambda: processor_seconds(workers))
    show("a core loaded to 50 %", line["cpu"]["perCore"][core] * 100, used / 20 * 100, "{:.1f} %")


def memory(command):
    with contextlib.ExitStack() as loads:

        def work():
            loads.enter_context(stress("--vm", "1", "--vm-bytes", "1G", "--vm-keep", "--vm-hang", "0"))
            time.sleep(8)

        before, after, _ = told(work, 9, command)
    taken = [sum(line["memory"][kind] for kind in ("app", "wired", "compressed")) for line in (before, after)]
    show("1 GiB taken", (taken[1] - taken[0]) / MIB, 1024, "{:.1f} MiB")


def disk(command):
    with tempfile.TemporaryDirectory(dir="/var/tmp") as folder:
        file = folder + "/written"
        size = 1000 * MIB

        def copy(*arguments):
            return lambda: subprocess.run(["dd", "bs=1M", "status=none", *arguments], check=True)

        _, line, seconds = told(copy("if=/dev/zero", "of=" + file, "count=1000", "oflag=direct"), 15, command)
        show("written by dd oflag=direct", line["disk"]["writeRate"] * seconds / MIB, size / MIB, "{:.2f} MiB")
        _, line, seconds = told(copy("if=" + file, "of=/dev/null", "iflag=direct"), 15, command)
        show("read by dd iflag=direct", line["disk"]["readRate"] * seconds / MIB, size / MIB, "{:.2f} MiB")


def trees(folder, port):
    """Kernel trees in which a software port passes for hardware; its counters are the kernel's own."""
    proc, sys_net = pathlib.Path(folder, "proc"), pathlib.Path(folder, "sys/class/net", port)
    proc.mkdir()
    for entry in ("stat", "meminfo", "diskstats"):
        (proc / entry).symlink_to(f"/proc/{entry}")
    (proc / "net").symlink_to("/proc/self/net")
    (sys_net / "device").mkdir(parents=True)
    for entry in ("flags", "operstate", "carrier"):
        (sys_net / entry).symlink_to(f"/sys/class/net/{port}/{entry}")
    return ["--proc-root", str(proc), "--sys-root", folder + "/sys"]


SENDER = """
import socket, sys
socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
for _ in range(int(sys.argv[1])):
    socket.sendto(bytes(1400), ("10.99.0.2", 9))
"""


def network(command):
    datagrams = 300_000
    spaces = ("vantrix-here", "vantrix-there")
    ip = lambda line: subprocess.run(["ip", *line.split()], check=True)
    try:
        for space in spaces:
            ip(f"netns add {space}")
        ip(f"-n {spaces[0]} link add vx0 type veth peer name vx1 netns {spaces[1]}")
        for number, space in enumerate(spaces):
            ip(f"-n {space} addr add 10.99.0.{number + 1}/24 dev vx{number}")
            ip(f"-n {space} link set vx{number} up")
        sender = ["ip", "netns", "exec", spaces[0], sys.executable, "-c", SENDER, str(datagrams)]
        send = lambda: subprocess.run(sender, check=True)
        for space, port, way in zip(spaces, ("vx0", "vx1"), ("upload", "download")):
            with tempfile.TemporaryDirectory() as folder:
                within = ["ip", "netns", "exec", space, *command, *trees(folder, port)]
                _, line, seconds = told(send, 10, within)
                show(f"UDP datagrams, {way}", line["network"][way] * seconds / 1e6, datagrams * FRAME / 1e6, "{:.2f} MB")
    finally:
        for space in spaces:
            subprocess.run(["ip", "netns", "del", space], stderr=subprocess.DEVNULL, check=False)


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: ground_truth.py PROGRAM")
    command = [os.path.abspath(sys.argv[1])]
    print(f"{'':<32} {'measured':>14} {'true':>14}")
    for measurement in (processor, memory, disk):
        measurement(command)
    if os.geteuid() == 0:
        network(command)
    else:
        print("UDP datagrams: only as root")


main()
