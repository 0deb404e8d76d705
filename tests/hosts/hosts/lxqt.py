"""LXQt: lxqt-panel with its two status areas, old and new."""

from hosts.host import Host

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
    handle = {False: 7}
    programs = ("lxqt-panel", "openbox")
    panel_command = ("lxqt-panel",)

    def start(self, desktop):
        desktop.environment["XDG_CURRENT_DESKTOP"] = "LXQt"
        desktop.write(".config/lxqt/panel.conf", PANEL)
        self.go(desktop, dark=True)  # as Debian has it
        desktop.start("openbox")
        self.start_panel(desktop)

    def go(self, desktop, dark):
        theme, icons = ("debian", "breeze-dark") if dark else ("light", "breeze")
        desktop.write(".config/lxqt/lxqt.conf", f"[General]\ntheme={theme}\nicon_theme={icons}\n")
