"""GNOME with its AppIndicator extension, as X11 session, and nested as Wayland session."""

import time

from hosts.host import Host
from rectangle import Rectangle

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
    draws_menus = labels = True
    programs = ("gnome-shell", "gsettings", "gdbus")
    panel_command = ("gnome-shell", "--x11")
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
            desktop.enter("gnome-shell", "--nested", "--wayland", socket="wayland-0",
                          MUTTER_DEBUG_DUMMY_MODE_SPECS=self.size)
            time.sleep(15)
            self.leave_overview(desktop)
        else:
            self.start_panel(desktop)

    def start_panel(self, desktop):
        super().start_panel(desktop)
        self.leave_overview(desktop)

    def leave_overview(self, desktop):
        time.sleep(5)
        desktop.run("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path", "/org/gnome/Shell",
                    "--method", "org.freedesktop.DBus.Properties.Set", "org.gnome.Shell", "OverviewActive", "<false>")
        time.sleep(2)

    def go(self, desktop, dark):
        scheme = "prefer-dark" if dark else "default"
        desktop.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", scheme)
