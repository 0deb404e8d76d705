"""What happens in a world: done by functions, and undone by generators when they go on. One of a kind at a time."""

import fcntl
import os
import shutil
import signal
import subprocess
from functools import partial

import dbus

from world import PATIENCE, SERVICES, SESSION, SYSTEM, copy, remove

ITEM, MENU, OBJECTS = "org.kde.StatusNotifierItem", "com.canonical.dbusmenu", "org.freedesktop.DBus.ObjectManager"


def damaged(world, text):
    place, odd = world.random.randrange(len(text) + 1), world.random.choice(["-1", ":", "\n", "9" * 23, "nan", "\xff"])
    return world.random.choice([text[:place], text[:place] + odd + text[place + 1:], "\0" * place, "9" * 100_000])


def torn(world, path):
    path.write_text(damaged(world, path.read_text("latin-1")), "latin-1")


def leased(path):
    """Whoever opens the file waits, unless not waiting is asked for. Returns what must be kept meanwhile."""
    file = open(path, "wb")
    fcntl.fcntl(file, fcntl.F_SETLEASE, fcntl.F_WRLCK)
    return file


def odd(world, path):
    """Something else where a file was."""
    remove(path)
    return world.random.choice([os.mkfifo, os.mkdir, leased, lambda at: os.symlink(at, at), lambda at: at.touch(0),
                                lambda at: os.symlink("/dev/zero", at), lambda at: None])(path)


def machine_changes(world):
    tree = world.machine
    names, most, change = world.random.choice([(tree.devices, 5, lambda _, path: remove(path)), (tree.files, 30, torn),
                                               (tree.files, 30, odd)])
    names = world.random.sample(names, world.random.randrange(1, most))
    kept = [change(world, tree.folder / name) for name in names]
    yield
    del kept
    for name in names:
        tree.put_back(name)


def device_comes(world):
    name = world.random.choice(world.machine.devices)
    new = world.machine.folder / name.parent / f"{name.name.rstrip('0123456789')}{world.random.randrange(50, 99)}"
    copy(world.machine.whole / name, new)
    yield
    remove(new)


def load(world):
    (world.machine.folder / "proc/stat").write_text("".join(
        f"cpu{core} {world.random.randrange(1 << 20)} 0 0 {world.random.randrange(1 << 20)} 0 0 0 0 0 0\n"
        for core in ["", *range(8)]))


def fill_disk(_, path):
    (path.parent.parent / "filler").write_bytes(bytes(shutil.disk_usage(path).free))


def settings_change(world):
    kept = world.random.choice([
        lambda world, path: path.write_text(world.some_settings()), torn, odd, fill_disk,
        lambda _, path: path.parent.chmod(0), lambda _, path: path.parent.chmod(0o500),
        lambda _, path: remove(path.parent)])(world, world.settings)
    yield
    del kept
    world.settings.parent.mkdir(exist_ok=True)
    world.settings.parent.chmod(0o700)
    remove(world.settings.parent.parent / "filler")
    remove(world.settings)
    world.settings.write_text(world.some_settings())


def gone(world, name=None):
    name = name or world.random.choice([SESSION, SYSTEM, *SERVICES])
    world.desktop.end(name)
    yield
    world.begin(name)


def hangs(world, name=None):
    process = world.desktop.processes[name or world.random.choice([SESSION, SYSTEM, *SERVICES])]
    process.send_signal(signal.SIGSTOP)
    world.stopped |= {process}
    yield
    process.send_signal(signal.SIGCONT)
    world.stopped -= {process}


def asked_for(world):
    what = world.random.choice([["--show-popover"], ["--show-settings", "alerts"], ["--show-settings"]])
    if world.process not in world.stopped:
        subprocess.run([world.binary, *what], env=world.desktop.environment, timeout=PATIENCE, check=True)


def clicked(world):
    """Anywhere but in a menu, where it could end the program, and at the popover's head, which opens one."""
    screen = world.desktop.screen
    windows = [window.rect for window in screen.windows() if window.program == "vantrix" and window.shown]
    if any(100 < rect.height < 300 for rect in windows):
        return screen.key("Escape")
    rect = world.random.choice([*windows, screen.rect])
    top = rect.top + (60 if rect.height > 100 else 0)
    return screen.click((world.random.randrange(rect.left, rect.right), world.random.randrange(top, rect.bottom)))


def keyed(world):
    world.desktop.screen.key(world.random.choice(["Escape", "Tab", "Left", "Page_Down", "End"]))


def called(world):
    number = lambda: world.random.choice([0, 1, -1, 2**31 - 1, -2**31, world.random.randrange(3000)])
    path, *message = world.random.choice([
        ("", ITEM, "Activate", "ii", number(), number()),
        ("", ITEM, "Activate", "s", "x" * 100000),
        ("", dbus.PROPERTIES_IFACE, "GetAll", "s", ITEM),
        ("/Menu", MENU, "GetLayout", "iias", number(), number(), ["label"] * 1000),
        ("/Menu", MENU, "Event", "isvu", 1000 + abs(number()) % 9, "clicked", {"a": [1]}, 0),
        ("/Menu", MENU, "EventGroup", "a(isvu)", [(number(), "opened", 0, 0)] * 500)])
    names = world.call(SESSION, "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "ListNames", "")
    for name in [name for name in names if name.startswith(ITEM) and world.process not in world.stopped]:
        world.call(SESSION, name, "/StatusNotifierItem" + path, *message)


def accessory_changes(world):
    path = dbus.ObjectPath(f"/org/bluez/hci0/dev_00_11_22_33_44_0{world.random.randrange(8)}")
    level = world.random.choice([dbus.Byte(world.random.randrange(256), variant_level=1), "full", dbus.Int64(-1)])
    device = {"org.bluez.Device1": dbus.Dictionary({"Address": path[-17:].replace("_", ":"), "Connected": True}, "sv"),
              "org.bluez.Battery1": dbus.Dictionary({"Percentage": level}, "sv")}
    world.call(SYSTEM, "org.bluez", "/", "org.freedesktop.DBus.Mock", "EmitSignal", "sssav", OBJECTS,
               *world.random.choice([("InterfacesAdded", "oa{sa{sv}}", [path, device]),
                                     ("InterfacesRemoved", "oas", [path, list(device)])]))


MACHINE = (load, machine_changes, machine_changes, device_comes)
KINDS = ((settings_change,), (partial(gone, name="trayer"),),
         (gone, gone, hangs, *[called] * 3, *[accessory_changes] * 3),
         *[(asked_for, *[clicked] * 4, keyed)] * 3, (*[keyed] * 15, partial(hangs, name="vantrix")))
