"""KDE Plasma: on X11 without compositing, and as Wayland session within the X screen."""

import shutil
import time

from hosts.host import Host
from rectangle import Rectangle

PANEL = """panels().forEach(panel => panel.remove())
const panel = new Panel
panel.location = "bottom"
panel.height = 40
panel.addWidget("org.kde.plasma.panelspacer")
panel.addWidget("org.kde.plasma.systemtray")"""
KWIN = "[Compositing]\nEnabled=false\n"


class Plasma(Host):
    panel_command = ("plasmashell",)
    themes = (True, False)

    def __init__(self, wayland=False):
        self.name = "Plasma on " + ("Wayland" if wayland else "X11")
        self.wayland = self.draws_menus = wayland
        self.kwin = "kwin_wayland" if wayland else "kwin_x11"
        self.version = 6 if shutil.which("kded6") else 5
        # Left of the symbols that the status area has of its own; the panel of version 6 floats.
        self.panel = Rectangle(640, 752, 1240, 792) if self.version == 6 else Rectangle(640, 760, 1224, 800)
        self.programs = ("plasmashell", self.kwin, "plasma-apply-colorscheme", "gdbus")

    def start(self, desktop):
        desktop.environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                                "KDE_SESSION_VERSION": str(self.version), "XDG_MENU_PREFIX": "plasma-",
                                "XDG_SESSION_TYPE": "wayland" if self.wayland else "x11"}
        desktop.write(".config/kwinrc", KWIN)
        if self.wayland:
            desktop.enter("kwin_wayland", "--x11-display", desktop.environment["DISPLAY"], "--width=1280",
                          "--height=800", "--xwayland", "--no-lockscreen", "--socket=wayland-0", socket="wayland-0",
                          KWIN_COMPOSE="Q")
        else:
            desktop.start("kwin_x11")
        desktop.start(f"kded{self.version}")
        self.start_panel(desktop)
        desktop.start("xembedsniproxy")
        self.ask(desktop, PANEL)
        time.sleep(10)

    def ready(self, desktop):
        return self.ask(desktop, "print('there')")

    def ask(self, desktop, script):
        """What plasmashell says; empty while it does not answer."""
        try:
            return desktop.run("gdbus", "call", "--session", "--timeout=5", "--dest", "org.kde.plasmashell",
                               "--object-path", "/PlasmaShell", "--method", "org.kde.PlasmaShell.evaluateScript",
                               script)
        except RuntimeError:
            time.sleep(1)
            return ""

    def start_panel(self, desktop):
        super().start_panel(desktop)
        time.sleep(10)

    def go(self, desktop, dark):
        desktop.run("plasma-apply-colorscheme", "BreezeDark" if dark else "BreezeLight")
