"""trayer: a tray alone, for window managers that bring none."""

from hosts.host import Host, tray_owner


class Trayer(Host):
    programs = ("trayer", "openbox")
    themes = ()

    def __init__(self, height, *options):
        self.name = f"trayer {height} px"
        self.options = ("--edge", "top", "--align", "right", "--widthtype", "request", "--heighttype", "pixel",
                        "--height", str(height), *options)

    def start(self, desktop):
        desktop.start("openbox")
        self.start_panel(desktop)

    def start_panel(self, desktop):
        desktop.start("trayer", *self.options)
        desktop.wait("tray", lambda: tray_owner(desktop))

    def restart(self, desktop):
        desktop.end("trayer")
        self.start_panel(desktop)
