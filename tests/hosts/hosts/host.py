"""What every host of a status area can do, and what the checks need to know of it."""

import shutil

import dbus

from desktop import PATH


class Host:
    """Each has `start(desktop)`, which returns when its panel is ready, and `go(desktop, dark)`, which makes desktop and
    panel dark or light."""

    name = ""
    programs = ()  # without them it is not installed
    panel_command = ()  # the program that shows the panel, among those
    themes = (False, True)  # dark or not: what it is made to be in turn, at last what it was at first
    restarts = True  # its panel can be started anew within the session
    panel = None  # where the panel, or the part of it for items, is within the screen; None where it is a window
    handle = {}  # dark or not: pixels before its first item that are its own
    draws_menus = False  # they are no windows of the X screen that the program is on
    labels = False  # it shows an item's text, and a click on that opens the menu, a double click the popover
    environment = {}  # Vantrix's own, beside the session's
    size = "1280x800"

    def missing(self):
        return [program for program in self.programs if not shutil.which(program, path=PATH)]

    def ready(self, desktop):
        """Whether the panel has its status area."""
        return tray_owner(desktop)

    def start_panel(self, desktop):
        desktop.start(*self.panel_command)
        desktop.wait("status area", lambda: self.ready(desktop), 60)

    def restart(self, desktop):
        """Ends the panel and starts it anew."""
        desktop.end(self.panel_command[0])
        self.start_panel(desktop)


def tray_owner(desktop):
    return desktop.inner.owner("_NET_SYSTEM_TRAY_S0")


def watched(desktop):
    """There is a status area on the bus."""
    bus = dbus.bus.BusConnection(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
    return bus.name_has_owner("org.kde.StatusNotifierWatcher")
