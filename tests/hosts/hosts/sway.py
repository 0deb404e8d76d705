"""sway, nested in the X screen, with one of two bars: its own, or waybar."""

import os

from hosts.host import Host, watched
from rectangle import Rectangle

CONFIG = """xwayland force
default_border none
output * resolution 1280x800 background #3a6ea5 solid_color
bar {{
    position top
    {bar}
}}
"""
SWAYBAR = "colors {{\n background #{ground}\n statusline #{text}\n }}\n tray_output *"
WAYBAR = "swaybar_command waybar"
STYLE = "window#waybar {{ background: #{ground}; color: #{text}; }}"
COLOURS = {True: {"ground": "323232", "text": "ffffff"}, False: {"ground": "eeeeee", "text": "000000"}}


class Sway(Host):
    """With `bar`, which is "swaybar" or "waybar"."""

    draws_menus = True

    def __init__(self, bar):
        self.name = f"{bar} on sway"
        self.bar = bar
        self.panel = Rectangle(0, 0, 1280, 30 if bar == "waybar" else 23)
        self.programs = ("sway", "swaymsg", "swaybar", "Xwayland") + (("waybar",) if bar == "waybar" else ())

    def configure(self, desktop, dark):
        bar = WAYBAR if self.bar == "waybar" else SWAYBAR.format(**COLOURS[dark])
        desktop.write(".config/sway/config", CONFIG.format(bar=bar))
        if self.bar == "waybar":
            desktop.write(".config/waybar/config", '{"position": "top", "height": 30, "modules-right": ["tray"]}')
            desktop.write(".config/waybar/style.css", STYLE.format(**COLOURS[dark]))

    def start(self, desktop):
        self.configure(desktop, dark=True)
        desktop.environment |= {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman", "XDG_CURRENT_DESKTOP": "sway",
                                "WLR_LIBINPUT_NO_DEVICES": "1"}
        runtime = desktop.environment["XDG_RUNTIME_DIR"]
        desktop.enter("sway", socket="wayland-1")
        name = desktop.wait("sway", lambda: next((n for n in os.listdir(runtime) if n.startswith("sway-ipc")), None))
        desktop.environment["SWAYSOCK"] = f"{runtime}/{name}"
        desktop.wait("bar", lambda: watched(desktop))

    def restart(self, desktop):
        """Starts the bar anew, too. Not waited for: the answer comes late, or never."""
        desktop.start("swaymsg", "reload")

    def go(self, desktop, dark):
        self.configure(desktop, dark)
        self.restart(desktop)
