"""XFCE: xfce4-panel with its Status Tray plugin, which takes both kinds of items."""

from hosts.host import Host

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="true"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="mode" type="uint" value="{mode}"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="{size}"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/><value type="int" value="2"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray">
      <property name="square-icons" type="bool" value="{square}"/>
    </property>
  </property>
</channel>
"""


class Xfce(Host):
    name = "XFCE"
    themes = (True, False)
    programs = ("xfce4-panel", "xfsettingsd", "xfwm4", "xfconf-query")
    panel_command = ("xfce4-panel", "--disable-wm-check")

    def __init__(self, variant="", size=26, mode=0, square="false", dpi=None, environment=None, screen=Host.size):
        self.name = " ".join(filter(None, (self.name, variant)))
        self.values = {"size": size, "mode": mode, "square": square}
        self.dpi = dpi
        self.environment = environment or {}
        self.size = screen

    def start(self, desktop):
        desktop.environment["XDG_CURRENT_DESKTOP"] = "XFCE"
        desktop.write(".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", PANEL.format(**self.values))
        if self.dpi:
            desktop.run("xfconf-query", "-c", "xsettings", "-p", "/Xft/DPI", "-n", "-t", "int", "-s", str(self.dpi))
        desktop.start("xfsettingsd", "--disable-daemon")
        desktop.wait("settings", lambda: desktop.inner.owner("_XSETTINGS_S0"))
        desktop.start("xfwm4", "--compositor=off")
        self.start_panel(desktop)

    def go(self, desktop, dark):
        for channel, name, kind, value in (
                ("xfce4-panel", "/panels/dark-mode", "bool", "true" if dark else "false"),
                ("xsettings", "/Net/ThemeName", "string", "Adwaita-dark" if dark else "Adwaita")):
            desktop.run("xfconf-query", "-c", channel, "-p", name, "-n", "-t", kind, "-s", value)
