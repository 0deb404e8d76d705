"""LXQt: lxqt-panel with its two status areas, old and new."""

from hosts.host import Host, tray_owner

PANEL = """[General]
panels=panel1
[panel1]
plugins=tray,statusnotifier
position=Bottom
panelSize=32
[tray]
type=tray
[statusnotifier]
type=statusnotifier
alignment=Right
"""


class Lxqt(Host):
    name = "LXQt"
    handle = 7
    programs = ("lxqt-panel", "openbox")

    def start(self, desktop):
        desktop.environment["XDG_CURRENT_DESKTOP"] = "LXQt"
        desktop.write(".config/lxqt/panel.conf", PANEL)
        self.go(desktop, dark=True)  # as Debian has it
        desktop.start("openbox")
        self.start_panel(desktop)

    def start_panel(self, desktop):
        desktop.start("lxqt-panel")
        desktop.wait("tray", lambda: tray_owner(desktop))

    def restart(self, desktop):
        desktop.end("lxqt-panel")
        self.start_panel(desktop)

    def go(self, desktop, dark):
        self.handle = 0 if dark else 7  # cannot be seen on the dark panel
        theme, icons = ("debian", "breeze-dark") if dark else ("light", "breeze")
        desktop.write(".config/lxqt/lxqt.conf", f"[General]\ntheme={theme}\nicon_theme={icons}\n")
