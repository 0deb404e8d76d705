"""GNOME with its AppIndicator extension, as X11 session, and nested as Wayland session."""

import os
import time
from pathlib import Path

from desktop import displays
from hosts.host import Host, tray_owner
from rectangle import Rectangle
from screen import Screen

SETTINGS = """[org/gnome/shell]
enabled-extensions=['ubuntu-appindicators@ubuntu.com']
disable-user-extensions=false
welcome-dialog-last-shown-version='999'

[org/gnome/desktop/interface]
enable-animations=false
clock-show-date=false

[org/gnome/desktop/session]
idle-delay=uint32 0

[org/gnome/desktop/screensaver]
lock-enabled=false
"""


class Gnome(Host):
    themes = (True, False)
    programs = ("gnome-shell", "gsettings", "gdbus")
    panel = Rectangle(760, 0, 1280, 32)  # right of the clock

    def __init__(self, wayland=False):
        self.name = "GNOME on " + ("Wayland" if wayland else "X11")
        self.wayland = wayland
        self.restarts = not wayland  # there the panel is the session

    def start(self, desktop):
        desktop.environment |= {"XDG_CURRENT_DESKTOP": "GNOME", "GSETTINGS_BACKEND": "keyfile",
                                "XDG_SESSION_TYPE": "wayland" if self.wayland else "x11"}
        desktop.write(".config/glib-2.0/settings/keyfile", SETTINGS)
        desktop.start_system_bus("logind")
        if self.wayland:
            self.start_nested(desktop)
        else:
            self.start_shell(desktop)

    def start_shell(self, desktop):
        desktop.start("gnome-shell", "--x11")
        desktop.wait("tray", lambda: tray_owner(desktop), 60)
        self.leave_overview(desktop)

    def start_nested(self, desktop):
        before = displays()
        desktop.start("gnome-shell", "--nested", "--wayland", MUTTER_DEBUG_DUMMY_MODE_SPECS=self.size)
        number = desktop.wait("XWayland", lambda: min(displays() - before, default=None), 60)
        authority = next(Path(desktop.environment["XDG_RUNTIME_DIR"]).glob(".mutter-Xwaylandauth*"))
        os.environ["XAUTHORITY"] = desktop.environment["XAUTHORITY"] = str(authority)
        desktop.environment |= {"DISPLAY": f":{number}", "WAYLAND_DISPLAY": "wayland-0"}
        time.sleep(15)  # the window manager of that screen starts with the first program on it
        desktop.inner = Screen(f":{number}")
        self.leave_overview(desktop)

    def leave_overview(self, desktop):
        time.sleep(5)
        desktop.run("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path", "/org/gnome/Shell",
                    "--method", "org.freedesktop.DBus.Properties.Set", "org.gnome.Shell", "OverviewActive", "<false>")
        time.sleep(2)

    def restart(self, desktop):
        desktop.end("gnome-shell")
        self.start_shell(desktop)

    def go(self, desktop, dark):
        scheme = "prefer-dark" if dark else "default"
        desktop.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", scheme)
