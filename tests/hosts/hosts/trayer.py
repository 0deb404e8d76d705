"""trayer: a tray alone, for window managers that bring none."""

from hosts.host import Host


class Trayer(Host):
    programs = ("trayer", "openbox")
    themes = ()

    def __init__(self, height):
        self.name = f"trayer {height} px"
        self.panel_command = ("trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--heighttype",
                              "pixel", "--height", str(height))

    def start(self, desktop):
        desktop.start("openbox")
        self.start_panel(desktop)
