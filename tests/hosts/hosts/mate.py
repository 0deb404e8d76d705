"""MATE: mate-panel with its notification area, which takes both kinds of items."""

from hosts.host import Host

SETTINGS = """[org/mate/panel/general]
object-id-list=['notification-area']
toplevel-id-list=['only']

[org/mate/panel/toplevels/only]
expand=true
orientation='{orientation}'
size={size}

[org/mate/panel/objects/notification-area]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='only'
position=0
panel-right-stick=true
locked=true
"""


class Mate(Host):
    name = "MATE"
    themes = (True, False)
    programs = ("mate-panel", "mate-settings-daemon", "marco")
    panel_command = ("mate-panel",)

    def __init__(self, variant="", orientation="top", size=26):
        self.name = " ".join(filter(None, (self.name, variant)))
        self.values = {"orientation": orientation, "size": size}

    def start(self, desktop):
        desktop.environment |= {"XDG_CURRENT_DESKTOP": "MATE", "GSETTINGS_BACKEND": "keyfile"}
        desktop.write(".config/glib-2.0/settings/keyfile", SETTINGS.format(**self.values))
        self.go(desktop, dark=False)
        desktop.start("mate-settings-daemon")
        desktop.wait("settings", lambda: desktop.inner.owner("_XSETTINGS_S0"))
        desktop.start("marco", "--no-composite")
        self.start_panel(desktop)

    def go(self, desktop, dark):
        desktop.run("gsettings", "set", "org.mate.interface", "gtk-theme", "BlackMATE" if dark else "Menta")
