"""The row as the program draws it where nothing cuts it: in a tray that gives each window what it asks for.

To be started by run.py, in processes of its own that end with it. Usage: reference.py BINARY FOLDER PICTURE"""

import sys
import time
from pathlib import Path

from Xlib import X

from desktop import Desktop, soon
from machine import Machine
from program import Program


class Tray:
    def __init__(self, screen):
        self.screen, self.display = screen, screen.display
        root = screen.display.screen()
        self.window = screen.root.create_window(0, 0, 600, 60, 0, root.root_depth, background_pixel=root.white_pixel)
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


def reference_row(folder, binary):
    """The whole row's picture."""
    desktop = Desktop(folder / "session")
    tray = Tray(desktop.screen)
    program = Program(desktop, binary, Machine(folder / "machine"))
    program.start()
    desktop.wait("row to embed", tray.embed)
    time.sleep(6)  # until every reading is there
    return desktop.screen.picture(soon(program.row_window, 5).rect)


if __name__ == "__main__":
    reference_row(Path(sys.argv[2]), sys.argv[1]).save(sys.argv[3])
