"""KDE Plasma on X11, without compositing."""

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
    name = "Plasma"
    programs = ("plasmashell", "kwin_x11", "plasma-apply-colorscheme", "gdbus")
    themes = (True, False)
    panel = Rectangle(640, 740, 1224, 800)  # left of the symbols that the status area has of its own

    def start(self, desktop):
        version = "6" if shutil.which("kded6") else "5"
        desktop.environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                                "KDE_SESSION_VERSION": version, "XDG_SESSION_TYPE": "x11", "XDG_MENU_PREFIX": "plasma-"}
        desktop.write(".config/kwinrc", KWIN)
        desktop.start("kwin_x11")
        desktop.start("kded" + version)
        self.start_panel(desktop)
        desktop.start("xembedsniproxy")
        time.sleep(10)
        self.ask(desktop, PANEL)
        time.sleep(10)

    def start_panel(self, desktop):
        desktop.start("plasmashell")
        desktop.wait("plasmashell", lambda: self.ask(desktop, "print('there')"), 60)

    def ask(self, desktop, script):
        """What plasmashell says; empty while it does not answer."""
        try:
            return desktop.run("gdbus", "call", "--session", "--dest", "org.kde.plasmashell", "--object-path",
                               "/PlasmaShell", "--method", "org.kde.PlasmaShell.evaluateScript", script)
        except RuntimeError:
            time.sleep(1)
            return ""

    def restart(self, desktop):
        desktop.end("plasmashell")
        self.start_panel(desktop)
        time.sleep(10)

    def go(self, desktop, dark):
        desktop.run("plasma-apply-colorscheme", "BreezeDark" if dark else "BreezeLight")
