"""What every host of a status area can do, and what the checks need to know of it."""

import shutil

import dbus


class Host:
    name = ""
    programs = ()  # without them it is not installed
    themes = (False, True)  # dark or not: what it is made to be in turn while running, at last what it was at first
    restarts = True  # its panel can be started anew within the session
    panel = None  # where the panel is, within the screen; None for the whole screen
    handle = 0  # pixels before its first item that are its own
    environment = {}  # Vantrix's own, beside the session's
    size = "1280x800"

    def missing(self):
        return [program for program in self.programs if not shutil.which(program)]

    def start(self, desktop):
        """Starts the desktop up to its panel, and returns when that is ready."""
        raise NotImplementedError

    def restart(self, desktop):
        """Ends the panel and starts it anew."""
        raise NotImplementedError

    def go(self, desktop, dark):
        """Makes the desktop, and the panel, dark or light."""
        raise NotImplementedError


def tray_owner(desktop):
    return desktop.inner.owner("_NET_SYSTEM_TRAY_S0")


def watched(desktop):
    """There is a status area on the bus."""
    bus = dbus.bus.BusConnection(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
    return bus.name_has_owner("org.kde.StatusNotifierWatcher")
