"""The row as the program draws it where nothing cuts it: in a tray that gives each window what it asks for."""

import time

from Xlib import X

from desktop import Desktop, soon
from picture import ink, ink_picture
from program import Program


class Tray:
    def __init__(self, screen):
        self.screen, self.display = screen, screen.display
        visual = X.CopyFromParent
        self.window = screen.root.create_window(0, 0, 600, 60, 0, screen.display.screen().root_depth,
                                                visual=visual, background_pixel=screen.display.screen().white_pixel)
        self.window.map()
        self.window.set_selection_owner(self.display.get_atom("_NET_SYSTEM_TRAY_S0"), X.CurrentTime)
        self.display.sync()

    def embed(self):
        """Embeds what has asked for it; False until something has."""
        while self.display.pending_events():
            event = self.display.next_event()
            if event.type == X.ClientMessage and event.client_type == self.display.get_atom("_NET_SYSTEM_TRAY_OPCODE"):
                child = self.display.create_resource_object("window", event.data[1][2])
                child.reparent(self.window, 10, 10)
                child.map()
                self.display.sync()
                return True
        return False


def reference_row(folder, binary, machine):
    """The ink of the whole row."""
    desktop = Desktop(folder)
    tray = Tray(desktop.screen)
    program = Program(desktop, binary, machine)
    program.start()
    desktop.wait("row to embed", tray.embed)
    time.sleep(4)  # until every reading is there
    row = soon(program.row_window, 5)
    picture = desktop.screen.picture(row.rect)
    for name in ("vantrix", "dbus-daemon", "Xvfb"):
        desktop.end(name)
    return ink_picture(ink(picture))
