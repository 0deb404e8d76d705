"""Vantrix in a desktop session, and what the person there sees of it."""

import json

import dbus

from screen import MENUS, TOOLTIP

# The readings that most people add to the first two.
MODULES = "cpu,memory,network,disk,temperature"


class Program:
    def __init__(self, desktop, binary, machine, host=None, **environment):
        self.desktop, self.binary, self.machine, self.host = desktop, binary, machine, host
        self.environment = environment
        desktop.write(".config/vantrix/settings.json",
                      json.dumps({"menuBarEnabled": MODULES, "updateInterval": 1, "menuBarColorize": False}))

    def start(self):
        self.desktop.start(self.binary, *self.machine.options(), **self.environment)

    def end(self):
        self.desktop.end("vantrix")

    def windows(self):
        return [w for w in self.desktop.inner.windows() if w.program == "vantrix" and w.shown]

    def row_window(self):
        """The window with the row: in a tray, or a strip of its own."""
        rows = [w for w in self.windows() if w.rect.height <= 64 and w.rect.width > 8
                and (len(w.parents) > 1 or w.kind.endswith("_DOCK"))]
        return first(rows)

    def popover(self):
        return first(w for w in self.windows() if w.rect.height >= 400 and w.rect.width >= 300)

    def menu(self):
        """The window of the item's menu, whoever draws it."""
        own = (w for w in self.windows() if len(w.parents) == 1 and w.kind != TOOLTIP and 30 < w.rect.height < 300
               and not w.kind.endswith("_DOCK"))
        hosts = (w for w in self.desktop.inner.windows() if w.shown and w.kind in MENUS and w.rect.height > 30)
        return first(own) or first(hosts)

    def items(self):
        """The items that the bus has of it: pairs of identifier and proxy, in the order of their registration."""
        try:
            bus = dbus.bus.BusConnection(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
            watcher = properties(bus, "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
            entries = watcher.Get("org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems", timeout=2)
        except dbus.DBusException:
            return []
        found = []
        for entry in entries:
            service, _, path = str(entry).partition("/")
            item = properties(bus, service, "/" + (path or "StatusNotifierItem"))
            try:
                name = str(item.Get("org.kde.StatusNotifierItem", "Id", timeout=2))
            except dbus.DBusException:
                continue
            if name.startswith("vantrix"):
                found.append((name, item))
        return found


def properties(bus, service, path):
    return dbus.Interface(bus.get_object(service, path, introspect=False), "org.freedesktop.DBus.Properties")


def first(found):
    return next(iter(found), None)
