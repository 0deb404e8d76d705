"""Vantrix in a desktop session, and what the person there sees of it."""

import json

import dbus

# The readings that most people add to the first two.
MODULES = "cpu,memory,network,disk,temperature"
WIDEST = 800  # pixels of what it opens; a wider window of its own catches clicks, and shows nothing


class Program:
    def __init__(self, desktop, binary, machine, style="stacked", **environment):
        self.desktop, self.binary, self.machine, self.environment = desktop, binary, machine, environment
        desktop.write(".config/vantrix/settings.json",
                      json.dumps({"menuBarEnabled": MODULES, "menuBarStyle": style, "updateInterval": 1,
                                  "menuBarColorize": False}))

    def start(self):
        self.desktop.start(self.binary, *self.machine.options(), **self.environment)

    def end(self):
        self.desktop.end("vantrix")

    def window(self, wanted):
        return next((w for w in self.desktop.inner.windows() if w.program == "vantrix" and w.shown and wanted(w)), None)

    def row_window(self):
        """The window with the row, in a tray."""
        return self.window(lambda w: w.rect.height <= 64 and w.rect.width > 8 and len(w.parents) > 1)

    def popover(self):
        return self.window(lambda w: w.rect.height >= 400 and 300 <= w.rect.width <= WIDEST)

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


def label_of(item):
    """The row as text, for hosts that set it beside the picture."""
    return str(item.Get("org.kde.StatusNotifierItem", "XAyatanaLabel", timeout=2))


def properties(bus, service, path):
    return dbus.Interface(bus.get_object(service, path, introspect=False), "org.freedesktop.DBus.Properties")
